#pragma once

#include "data/jobprogress.h"
#include "footage.h"
#include "footageindex.h"
#include "pathpattern.h"

#include <QFileInfo>
#include <QList>
#include <QStringList>

#include <optional>

namespace Review {

/// Finds clips and pictures in folders, and when each was recorded.
class FootageScan
{
public:
    FootageScan(PathPattern pattern, FootageIndex& index, JobProgress& progress);

    /// Looks through folders, with all below them, and single files. Each folder in one that is
    /// named here is a camera; files beside them, and folders that are called like a date, belong
    /// to a camera that is called like the one above. A cancelled progress ends it early.
    /// What was found goes into @p footage.
    void scan(const QStringList& paths, Footage& footage);

private:
    struct Found
    {
        QFileInfo file;
        QString path; ///< from the name of the folder that was opened on
    };

    QList<Found> list(const QStringList& paths) const;
    /// None while the work is cancelled.
    std::optional<FileFacts> factsOf(const Found& found);
    void add(const Found& found, const FileFacts& facts, Footage& footage) const;

    const PathPattern m_pattern;
    FootageIndex& m_index;
    JobProgress& m_progress;
};

} // namespace Review
