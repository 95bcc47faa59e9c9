// SPDX-License-Identifier: MIT
#pragma once

#include "footage/loadjob.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <memory>

namespace Review {

class ReviewOpener;

/// Looks again at what was loaded: at once while there are files that were not read yet, and now
/// and then while the user wants to follow what is being recorded.
class RecordingWatch : public QObject
{
    Q_OBJECT

public:
    /// Belongs to @p opener.
    explicit RecordingWatch(ReviewOpener* opener);
    ~RecordingWatch() override;

    bool isFollowing() const { return m_following; }
    void setFollowing(bool on);
    /// Files that were recorded then are read first.
    void setView(const CorvelGui::TimeSpan& view) { m_view = view; }
    /// Whether there are files still to be read.
    bool isReading() const;

Q_SIGNALS:
    /// Emitted when a look found more, which is what the opener has loaded from now on.
    void found(const Review::LoadJob& job);
    /// Emitted when isReading() became false.
    void finished();

private:
    void followLoading(bool loading);
    void goOn();
    void look();
    void finish();

    ReviewOpener* const m_opener;
    bool m_following = false;
    CorvelGui::TimeSpan m_view;
    QTimer m_timer;
    QElapsedTimer m_elapsed; ///< since the look began
    qint64 m_duration = 0;   ///< of the last look, in milliseconds
    qint64 m_patience;       ///< for how long the next look reads, in milliseconds
    std::unique_ptr<LoadJob> m_job;
};

} // namespace Review
