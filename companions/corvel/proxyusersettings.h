// SPDX-License-Identifier: MIT
#pragma once

#include <Corvel/corvel_export.h>

#include <QString>
#include <QStringList>

namespace Corvel {

/// How the user's programs reach the network.
struct CORVEL_EXPORT ProxyUserSettings
{
    enum class Mode {
        None,   ///< straight to the server
        System, ///< by the settings of the operating system
        Http,   ///< by the HTTP proxy at host and port
        Socks5, ///< by the SOCKS5 proxy at host and port
    };

    Mode mode = Mode::System;
    QString host = {}; ///< of Mode::Http and Mode::Socks5
    quint16 port = 0;
    QString user = {}; ///< empty for a proxy that asks nobody; counts in every mode but Mode::None
    QString password = {};
    /// The servers that Mode::Http and Mode::Socks5 reach without the proxy. Each entry is one of
    /// - a name or an address, for that server: "files.example", "10.0.0.7", "fe80::1";
    /// - a name behind "*." or ".", for all servers below it: "*.example";
    /// - a subnet, for the servers named by an address in it: "10.0.0.0/8";
    /// - "<local>", for all names without a dot.
    QStringList excludedHosts = {};

    bool operator==(const ProxyUserSettings&) const = default;

    /// Whether an entry of excludedHosts holds for @p server, a name or an address. Upper and lower
    /// case are the same, and so are the two ways to write international names.
    bool excludes(const QString& server) const;

    /// Whether @p entry makes sense in excludedHosts. One that does not excludes nothing.
    static bool isHostEntry(const QString& entry);

    /// The settings of this process. The client program fills them before it makes requests;
    /// GUI thread only.
    static ProxyUserSettings m_Settings;
};

} // namespace Corvel
