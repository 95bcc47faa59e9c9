// SPDX-License-Identifier: MIT
#pragma once

#include <QUrl>

namespace CorvelGui {

/// Whether a link of unknown origin may be opened in a browser: others could start a program.
inline bool leadsToTheWeb(const QUrl& url)
{
    return url.isValid() && !url.host().isEmpty() &&
           (url.scheme() == u"http" || url.scheme() == u"https");
}

} // namespace CorvelGui
