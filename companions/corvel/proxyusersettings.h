#pragma once

#include <Corvel/corvel_export.h>

#include <QString>

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

    bool operator==(const ProxyUserSettings&) const = default;

    /// The settings of this process. The client program fills them before it makes requests;
    /// GUI thread only.
    static ProxyUserSettings m_Settings;
};

} // namespace Corvel
