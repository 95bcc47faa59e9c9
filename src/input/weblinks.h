// SPDX-License-Identifier: MIT
#pragma once

#include "base/internalexport.h"

#include <QList>
#include <QString>

namespace CorvelGui {

/// A web address within a text.
struct WebLink
{
    qsizetype begin = 0;
    qsizetype length = 0;

    bool operator==(const WebLink&) const = default;
};

/// The addresses in @p text that begin with http:// or https:// and name a server, in order. What
/// closes a sentence or a bracket around an address does not belong to it.
CORVELGUI_INTERNAL_EXPORT QList<WebLink> webLinks(const QString& text);

} // namespace CorvelGui
