// SPDX-License-Identifier: MIT
#pragma once

#include "data/jobprogress.h"
#include "data/problemlist.h"
#include "footage.h"
#include "footageindex.h"
#include "pathpattern.h"

#include <CorvelGui/TrackDescription>

#include <QFileInfo>
#include <QList>
#include <QStringList>

#include <chrono>
#include <optional>

namespace Review {

/// What is read of a folder whose files take long to read.
struct ReadingOrder
{
    /// What was recorded then comes first.
    CorvelGui::TimeSpan first = {};
    /// For how long to read; at least one file is.
    std::chrono::milliseconds patience = std::chrono::hours(24);
};

/// Finds clips and pictures in folders, and when each was recorded.
class FootageScan
{
public:
    FootageScan(PathPattern pattern, FootageIndex& index, JobProgress& progress,
                ProblemList& problems, const ReadingOrder& order = {});

    /// Looks through folders, with all below them, and single files. Each folder in one that is
    /// named here is a camera; files beside them, and folders that are called like a date, belong
    /// to a camera that is called like the one above. A cancelled progress ends it early.
    /// What was found goes into @p footage; of what was not read, as much as the paths tell.
    /// Folders that may not be looked into are problems.
    void scan(const QStringList& paths, Footage& footage);

private:
    struct Found
    {
        QFileInfo file;
        QString path; ///< from the name of the folder that was opened on
        std::optional<PathPattern::Match> match = {};
        std::optional<FileFacts> facts = {};
    };

    QList<Found> list(const QStringList& paths);
    void checkFolder(const QFileInfo& folder);
    /// Returns how many are left.
    qsizetype read(QList<Found>& all, const Footage& footage);
    /// In what order files are read.
    int urgencyOf(const Found& found, const Footage& footage) const;
    void add(const Found& found, Footage& footage) const;

    const PathPattern m_pattern;
    FootageIndex& m_index;
    JobProgress& m_progress;
    ProblemList& m_problems;
    const ReadingOrder m_order;
};

} // namespace Review
