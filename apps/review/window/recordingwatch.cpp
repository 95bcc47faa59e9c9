// SPDX-License-Identifier: MIT
#include "recordingwatch.h"

#include "reviewopener.h"

#include <algorithm>

namespace Review {

namespace {

constexpr qint64 interval = 2'000; // milliseconds
/// A folder that takes long to look through is looked at less often.
constexpr qint64 restPerWork = 4;
/// For how long files are read at a time: so long that finding them again each time is the
/// smaller part.
constexpr qint64 leastReading = 2'000; // milliseconds
constexpr qint64 readingPerSearch = 3;

} // namespace

RecordingWatch::RecordingWatch(ReviewOpener* opener)
    : QObject(opener), m_opener(opener), m_patience(leastReading)
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &RecordingWatch::look);
    connect(opener, &ReviewOpener::loadingChanged, this, &RecordingWatch::followLoading);
    connect(opener, &ReviewOpener::ended, this, &RecordingWatch::goOn);
}

RecordingWatch::~RecordingWatch() = default;

void RecordingWatch::setFollowing(bool on)
{
    m_following = on;
    goOn();
}

bool RecordingWatch::isReading() const
{
    return m_opener->loaded().footage.unread() > 0;
}

void RecordingWatch::followLoading(bool loading)
{
    if (!loading)
        return;
    m_timer.stop();
    m_job.reset();
    m_duration = 0;
    m_patience = leastReading;
}

void RecordingWatch::goOn()
{
    m_timer.stop();
    if (m_job || m_opener->isLoading() || m_opener->loaded().named.isEmpty())
        return;
    if (isReading())
        m_timer.start(0);
    else if (m_following)
        m_timer.start(int(std::max(interval, restPerWork * m_duration)));
}

void RecordingWatch::look()
{
    const std::chrono::milliseconds patience(m_patience);
    m_elapsed.start();
    m_job = std::make_unique<LoadJob>(m_opener->loaded(), m_opener->corrections(),
                                      ReadingOrder{.first = m_view, .patience = patience});
    connect(m_job.get(), &LoadJob::loaded, this, &RecordingWatch::finish);
    m_job->start();
}

void RecordingWatch::finish()
{
    m_duration = m_elapsed.elapsed();
    LoadJob* job = m_job.release();
    job->deleteLater();
    const bool wasReading = isReading();
    m_patience = std::max(leastReading, readingPerSearch * (m_duration - m_patience));
    // A folder that is gone may come back; what was found in it stays until then.
    if (job->error().isEmpty()) {
        m_opener->setLoaded(job->read());
        if (job->hasNews())
            Q_EMIT found(*job);
    }
    if (wasReading && !isReading())
        Q_EMIT finished();
    goOn();
}

} // namespace Review
