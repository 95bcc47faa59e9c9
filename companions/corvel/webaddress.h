// SPDX-License-Identifier: MIT
#pragma once

#include "internalexport.h"

#include <QUrl>

namespace Corvel {

/// Whether @p url leads to a server by http or https.
CORVEL_INTERNAL_EXPORT bool isWebAddress(const QUrl& url);

/// Whether a server at @p from may send us to @p to: to another web address, and never from https
/// to http.
CORVEL_INTERNAL_EXPORT bool mayRedirect(const QUrl& from, const QUrl& to);

} // namespace Corvel
