// SPDX-License-Identifier: MIT
#pragma once

#include "csvtable.h"
#include "jobprogress.h"
#include "problemlist.h"
#include "reviewdata.h"

#include <QCoreApplication>
#include <QHash>
#include <QTimeZone>

namespace Review {

/// The files to show. A name that is empty stands for no file.
struct ReviewFiles
{
    QString recordings;
    /// CSV, JSON lines, or a data set of camera traps, which has pictures too; by its ending.
    QString events;
    QString deployments;
    /// Folders with clips and pictures, and single ones.
    QStringList footage = {};
    /// How their paths are built; empty for the common ways.
    QString pattern = {};
    /// A file or a folder at which nobody has looked as yet.
    QString unseen = {};
    /// The folder with clips and pictures, or that of the first single one; once located.
    QString footageFolder = {};

    /// Those of recordings.csv, deployments.csv and events.csv, .jsonl or .json that are in
    /// @p folder. Where they name no recordings, the clips and pictures are looked for.
    static ReviewFiles inFolder(const QString& folder);
    /// What somebody means who names files and folders: lists by their names and endings, and
    /// footage. Looks at none of them.
    static ReviewFiles named(const QStringList& paths);
    /// The same, with what is found where nobody has looked as yet. That takes as long as a share
    /// takes to answer.
    ReviewFiles located() const;

    /// Of all of them, in bytes.
    qint64 size() const;
    bool isEmpty() const
    {
        return recordings.isEmpty() && events.isEmpty() && deployments.isEmpty() &&
               footage.isEmpty() && unseen.isEmpty();
    }
    /// What the user calls them, once located: the folder that they are in.
    QString name() const;
};

/// Loads recordings, events and deployments from files. Malformed lines are left out and noted.
class ReviewLoader
{
    Q_DECLARE_TR_FUNCTIONS(Review::ReviewLoader)

public:
    /// Times of camera traps without an offset are those of @p zone. Returns why a file cannot be
    /// read, or an empty string. What a cancelled load leaves is incomplete.
    QString load(const ReviewFiles& files, const QTimeZone& zone = QTimeZone::utc());
    /// Any thread may look at it, or end the load by it.
    JobProgress& progress() { return m_progress; }
    const JobProgress& progress() const { return m_progress; }

    const ReviewData& data() const { return m_data; }
    ProblemList& problems() { return m_problems; }
    const ProblemList& problems() const { return m_problems; }

private:
    QString loadRecordings(const QString& path);
    QString loadDeployments(const QString& path);
    QString loadEvents(const QString& path);
    QString loadCameraTraps(const QString& path);
    void add(const QString& camera, const VideoFile& file);
    CorvelGui::TrackDescription& track(const QString& identifier);

    ReviewData m_data;
    ProblemList m_problems;
    QHash<QString, qsizetype> m_trackIndexes;
    JobProgress m_progress;
    QTimeZone m_zone = QTimeZone::utc();
};

} // namespace Review
