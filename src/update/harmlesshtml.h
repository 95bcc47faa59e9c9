// SPDX-License-Identifier: MIT
#pragma once

#include "base/internalexport.h"

#include <QString>

namespace CorvelGui {

/// Reduces HTML of unknown origin to what release notes need: headings, paragraphs, lists, simple
/// tables, emphasis, and links to http and https addresses. Everything else goes: styles, scripts
/// and their content, pictures, all attributes but the targets of links, tables inside tables, deep
/// nesting, and what is beyond a sensible length. The result is well formed, and it takes the
/// colours of whatever shows it. Text stays as it is, but a very long word gets places to break it.
CORVELGUI_INTERNAL_EXPORT QString harmlessHtml(const QString& html);

} // namespace CorvelGui
