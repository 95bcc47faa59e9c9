// SPDX-License-Identifier: MIT
#pragma once

#include "data/csvwriter.h"
#include "data/videofile.h"

#include <QSet>
#include <QStringList>
#include <QTimeZone>

#include <memory>

class QLockFile;

namespace Review {

class JobProgress;

/// The folder that an export makes. It has a name that is hidden until it is whole, and goes with
/// all in it unless it becomes so. A lock beside it tells whether its process still lives: what a
/// crash left goes with the next export into the same place.
class ClipFolder
{
public:
    /// It is to be in @p parent, and called after the instant.
    ClipFolder(const QString& parent, qint64 begin, const QTimeZone& zone);
    ~ClipFolder();

    /// Returns why it cannot be made, or nothing.
    QString create();
    /// A path in it that is not taken as yet.
    QString newFile(const QString& camera, qint64 begin, const QString& ending);
    /// Notes what a file in it shows, and of which camera.
    void list(const QString& camera, const VideoFile& file);
    /// How many files are noted.
    qsizetype count() const { return m_listed.size(); }
    /// Adds the lists, and gives it its name. Returns why that cannot be done, or nothing.
    QString finish(const QByteArray& events, const JobProgress& progress);

    const QString& path() const { return m_path; }

private:
    QString addSums(const JobProgress& progress);
    QString publish();

    const QString m_parent;
    const QString m_name;
    const QTimeZone m_zone;
    QString m_path; ///< where it is at present
    std::unique_ptr<QLockFile> m_lock;
    bool m_isWhole = false;
    QSet<QString> m_taken; ///< in small letters
    QStringList m_listed;
    CsvWriter m_recordings;
};

} // namespace Review
