// SPDX-License-Identifier: MIT
#include "webaddress.h"

using namespace Qt::StringLiterals;

namespace Corvel {

bool isWebAddress(const QUrl& url)
{
    return url.isValid() && !url.host().isEmpty() &&
           (url.scheme() == "http"_L1 || url.scheme() == "https"_L1);
}

bool mayRedirect(const QUrl& from, const QUrl& to)
{
    return isWebAddress(to) && (to.scheme() == "https"_L1 || from.scheme() == "http"_L1);
}

} // namespace Corvel
