// SPDX-License-Identifier: MIT
#pragma once

#include "base/internalexport.h"
#include "releaseversion.h"

#include <QByteArrayView>
#include <QString>

#include <optional>

namespace CorvelGui {

/// What a release channel says of its newest release.
///
/// A version file is UTF-8 text of lines "key=value". Lines with more or fewer than one "=" do not
/// count. Keys are taken as they stand, values are trimmed, a later line with the same key wins,
/// and unknown keys are ignored.
struct VersionFile
{
    /// "version"
    ReleaseVersion version = {};
    /// "updatefile": the name of the installer. Never empty.
    QString updateFile = {};
    /// "readmefile": the name of the release notes; may be empty.
    QString readmeFile = {};
    /// "releasedate": any text of up to 100 characters, the others are left out; may be empty.
    QString releaseDate = {};

    /// Nothing unless there are an update file and a version that begins with a number.
    CORVELGUI_INTERNAL_EXPORT static std::optional<VersionFile> parse(QByteArrayView content);
};

} // namespace CorvelGui
