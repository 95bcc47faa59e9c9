// SPDX-License-Identifier: MIT
// The version file of a release channel: it is refused, or names a file and a version that is read
// the same way again.

#include "fuzzing.h"

#include "update/versionfile.h"

#include <QList>

using CorvelGui::ReleaseVersion;
using CorvelGui::VersionFile;
using Fuzzing::require;

namespace {

QByteArray written(const VersionFile& file)
{
    return "version=" + file.version.text(true).toUtf8() +
           "\nupdatefile=" + file.updateFile.toUtf8() + "\nreadmefile=" + file.readmeFile.toUtf8() +
           "\nreleasedate=" + file.releaseDate.toUtf8();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QByteArrayView content(reinterpret_cast<const char*>(data), qsizetype(size));
    const auto file = VersionFile::parse(content);
    if (!file)
        return 0;
    for (const QString& value : {file->updateFile, file->readmeFile, file->releaseDate}) {
        require(value == value.trimmed(), "values are trimmed");
        require(!value.contains(u'=') && !value.contains(u'\n'), "a value is of one entry");
    }
    require(!file->updateFile.isEmpty(), "there is an update file");
    require(file->releaseDate.size() <= 100, "the date has a bound");

    const auto again = VersionFile::parse(written(*file));
    require(again && again->version == file->version && again->updateFile == file->updateFile &&
                again->readmeFile == file->readmeFile && again->releaseDate == file->releaseDate,
            "what was read is read again");
    return 0;
}
