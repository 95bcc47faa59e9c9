#pragma once

#include "data/reviewloader.h"
#include "footagescan.h"

#include <QObject>
#include <QThread>

#include <memory>

namespace Review {

/// Loads files, and finds those in folders, on a thread of its own, so that the window stays alive.
class LoadJob : public QObject
{
    Q_OBJECT

public:
    /// Loads the sample when no file is named. Recordings whose times are without an offset were
    /// made in @p zone.
    LoadJob(const ReviewFiles& files, const QTimeZone& zone, QObject* parent = nullptr);
    /// Cancels a load that is under way, and waits for it to end.
    ~LoadJob() override;

    void start() { m_thread->start(); }
    /// Ends the load early; loaded() is emitted nevertheless.
    void cancel() { m_loader.progress().cancel(); }
    bool isCancelled() const { return m_loader.progress().isCancelled(); }
    /// How far it has come, from 0 to 100.
    int percent() const { return m_loader.progress().percent(); }

    /// Empty before loaded(), when a file could not be read, and when the load was cancelled.
    const ReviewData& data() const { return m_data; }
    const ProblemList& problems() const { return m_loader.problems(); }
    /// Why a file could not be read, or an empty string.
    const QString& error() const { return m_error; }
    const ReviewFiles& files() const { return m_files; }
    /// How many recordings that were found in folders got their time from where.
    const std::array<qsizetype, FootageScan::SourceCount>& timeSources() const
    {
        return m_timeSources;
    }

Q_SIGNALS:
    /// Emitted once, from the event loop of the thread that made the job.
    void loaded();

private:
    void load();
    void findFootage();

    const ReviewFiles m_files;
    const QTimeZone m_zone;
    ReviewLoader m_loader;
    ReviewData m_data;
    QString m_error;
    std::array<qsizetype, FootageScan::SourceCount> m_timeSources{};
    const std::unique_ptr<QThread> m_thread;
};

} // namespace Review
