// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Review {

/// Where newer versions of the client are looked for, and the news of its maker.
struct UpdateServers
{
    /// Folders with a version file each, with a slash at their end.
    QString internalChannel = QStringLiteral("http://127.0.0.1:8480/internal/");
    QString publicServer = QStringLiteral("http://127.0.0.1:8480/");
    /// Answers update queries.
    QString queryServer = QStringLiteral("http://127.0.0.1:8480");
    /// A feed of news; empty for none.
    QString news = {};

    bool operator==(const UpdateServers&) const = default;
};

} // namespace Review
