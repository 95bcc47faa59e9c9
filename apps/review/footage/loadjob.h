// SPDX-License-Identifier: MIT
#pragma once

#include "data/reviewloader.h"
#include "footage.h"
#include "footagescan.h"

#include <QObject>
#include <QThread>

#include <memory>
#include <optional>
#include <utility>

namespace Review {

/// What was read, also before recordings that were found in folders are put to their times.
struct LoadedFiles
{
    /// What the user named.
    ReviewFiles named = {};
    /// What was found there.
    ReviewFiles files = {};
    ReviewData listed = {};
    /// When the lists in it were changed last, and how long they were.
    QList<std::pair<QDateTime, qint64>> lists = {};
    Footage footage = {};
    std::optional<FootageIndex> index = {};
    /// All of it, each recording at its time.
    ReviewData data = {};
};

/// Loads files, and finds those in folders, on a thread of its own, so that the window stays alive.
class LoadJob : public QObject
{
    Q_OBJECT

public:
    /// Loads the sample when no file is named. Recordings whose times are without an offset were
    /// made in @p zone.
    LoadJob(const ReviewFiles& files, const QTimeZone& zone,
            const FolderCorrections& corrections = {}, const ReadingOrder& order = {},
            QObject* parent = nullptr);
    /// Looks again at what was read before: for what was added to lists, for files that are new,
    /// and for those that were not read yet.
    LoadJob(const LoadedFiles& known, const FolderCorrections& corrections,
            const ReadingOrder& order, QObject* parent = nullptr);
    /// Corrects the times of what was read before.
    LoadJob(const LoadedFiles& known, const TimeCorrections& corrections,
            QObject* parent = nullptr);
    /// Cancels a load that is under way.
    ~LoadJob() override;

    void start() { m_thread->start(); }
    /// Ends the load early; loaded() is emitted nevertheless.
    void cancel();
    bool isCancelled() const;
    /// How far it has come, from 0 to 100.
    int percent() const;

    /// Empty before loaded(), when a file could not be read, and when the load was cancelled.
    const ReviewData& data() const;
    const LoadedFiles& read() const;
    const ProblemList& problems() const;
    /// Why a file could not be read, or an empty string.
    QString error() const;
    /// As they were named; those of read() are located.
    const ReviewFiles& files() const { return m_files; }
    /// Those that were wanted, if it is a correction.
    const TimeCorrections& corrections() const { return m_corrections; }
    /// Whether nothing is new but the times.
    bool isCorrection() const { return m_isCorrection; }
    /// Whether the lists were read, and not those known that have not changed.
    bool hasNewLists() const;
    /// Whether a second look found anything that was not known.
    bool hasNews() const;

Q_SIGNALS:
    /// Emitted once, from the event loop of the thread that made the job. When cancelled, nothing
    /// but isCancelled() and files() may be asked: a share may still not have answered.
    void loaded();

private:
    class Work;

    LoadJob(std::shared_ptr<Work> work, const TimeCorrections& corrections, QObject* parent);
    void end();

    std::shared_ptr<Work> m_work;
    const ReviewFiles m_files;
    const TimeCorrections m_corrections;
    const bool m_isCorrection;
    bool m_ended = false;
    QThread* const m_thread;
};

} // namespace Review
