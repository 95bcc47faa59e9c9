#pragma once

#include "data/jobprogress.h"
#include "data/videofile.h"
#include "footageindex.h"
#include "pathpattern.h"

#include <QFileInfo>
#include <QList>
#include <QStringList>
#include <QTimeZone>

#include <array>

namespace Review {

/// Finds clips and pictures in folders, and when each was recorded.
class FootageScan
{
public:
    /// What said when a recording began, in the order in which it is asked.
    enum Source { Path, CreationTime, Exif, ChangeTime, SourceCount };

    struct Recording
    {
        QString camera;
        VideoFile file;
    };

    /// Times without an offset are those of @p zone.
    FootageScan(PathPattern pattern, QTimeZone zone, FootageIndex& index, JobProgress& progress);

    /// Looks through folders, with all below them, and single files. Each folder in one that is
    /// named here is a camera; files beside them, and folders that are called like a date, belong
    /// to a camera that is called like the one above. A cancelled progress ends it early.
    void scan(const QStringList& paths);

    /// In the order in which they were found.
    const QList<Recording>& recordings() const { return m_recordings; }
    /// How many of them got their time from where.
    const std::array<qsizetype, SourceCount>& sources() const { return m_sources; }

private:
    struct Found
    {
        QFileInfo file;
        QString path; ///< from the name of the folder that was opened on
    };

    QList<Found> list(const QStringList& paths) const;
    void add(const Found& found);
    qint64 instantOf(const WallTime& time) const;

    const PathPattern m_pattern;
    const QTimeZone m_zone;
    FootageIndex& m_index;
    JobProgress& m_progress;
    QList<Recording> m_recordings;
    std::array<qsizetype, SourceCount> m_sources{};
};

} // namespace Review
