#pragma once

#include "reviewloader.h"

#include <QObject>
#include <QThread>

#include <memory>

namespace Review {

/// Loads files on a thread of its own, so that the window stays alive.
class LoadJob : public QObject
{
    Q_OBJECT

public:
    /// Loads the sample when no file is named.
    explicit LoadJob(const ReviewFiles& files, QObject* parent = nullptr);
    /// Waits for a load that is under way.
    ~LoadJob() override;

    void start() { m_thread->start(); }

    /// Empty before loaded(), and when a file could not be read.
    const ReviewData& data() const { return m_data; }
    const ProblemList& problems() const { return m_problems; }
    /// Why a file could not be read, or an empty string.
    const QString& error() const { return m_error; }
    const ReviewFiles& files() const { return m_files; }

Q_SIGNALS:
    /// Emitted once, from the event loop of the thread that made the job.
    void loaded();

private:
    void load();

    const ReviewFiles m_files;
    ReviewData m_data;
    ProblemList m_problems;
    QString m_error;
    const std::unique_ptr<QThread> m_thread;
};

} // namespace Review
