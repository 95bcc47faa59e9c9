// SPDX-License-Identifier: MIT
#pragma once

#include <Corvel/corvel_export.h>

#include <QString>

namespace Corvel {

/// Server addresses as users type them.
///
/// Accepted are these two forms:
///
///     scheme://[user[:password]@]host[:port][/path][?query][#fragment]
///     host[:port]
///
/// - The scheme is http, https, ftp or rtsp, in upper or lower case.
/// - The host is an IPv4 address of four decimal numbers without leading zeros; an IPv6 address in
///   brackets, without a zone; or a name.
/// - A name is at most 253 characters in labels of 1 to 63, separated by single dots, also in the
///   form in which name servers know it. Labels are of letters, digits, hyphens and underscores,
///   with no hyphen at an end. International letters are welcome; what is no IPv4 address must not
///   look like one to a resolver, that is, its last label must be neither a decimal nor a
///   hexadecimal number (10.1, 0x7f.1).
/// - The port is a decimal number from 1 to 65535. A colon asks for one.
/// - The rest is what QUrl accepts in its strict mode.
/// - Nowhere may there be white space, control characters, invisible formatting characters or
///   halves of surrogate pairs. White space at the ends is not forgiven, because clients use the
///   text as it stands.
/// - More than 8000 characters are refused.
class CORVEL_EXPORT UrlChecker
{
public:
    UrlChecker() = delete;

    /// Whether @p url is accepted. Sets @p host to its host as QUrl::host() gives it: an IPv6
    /// address without brackets; a name in lower case, with international letters as such only in
    /// domains that are known to guard against look-alikes, otherwise in the form of name servers.
    /// Sets @p port to the typed port or else to that of the scheme: 80, 443, 21 and 554, and 80
    /// without a scheme. A refused text gives an empty host and port 0. @p url and @p host may be
    /// the same object.
    static bool IsUrlValid(const QString& url, QString& host, int& port);
};

} // namespace Corvel
