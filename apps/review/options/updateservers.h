#pragma once

#include <QString>

namespace Review {

/// Where newer versions of the client are looked for.
struct UpdateServers
{
    /// Folders with a version file each, with a slash at their end.
    QString internalChannel = QStringLiteral("http://127.0.0.1:8480/internal/");
    QString publicServer = QStringLiteral("http://127.0.0.1:8480/");
    /// Answers update queries.
    QString queryServer = QStringLiteral("http://127.0.0.1:8480");

    bool operator==(const UpdateServers&) const = default;
};

} // namespace Review
