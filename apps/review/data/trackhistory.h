// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/TrackDescription>

#include <optional>

namespace Review {

enum class TrackState {
    Recorded,
    Gap,     ///< known to be without recording
    Loading, ///< it is still to be known whether it is recorded
    NothingKnown
};

/// A track by its name.
struct NamedState
{
    QString name;
    TrackState state;

    bool operator==(const NamedState&) const = default;
};

/// Answers what is known of a track at any time.
class TrackHistory
{
public:
    explicit TrackHistory(const CorvelGui::TrackDescription& track);

    TrackState stateAt(qint64 msecs) const;
    /// Milliseconds that are recorded. What overlaps counts once.
    qint64 recordedTime() const;
    /// Empty if nothing is known.
    const CorvelGui::TimeSpan& known() const { return m_known; }
    /// The recording that begins next after @p msecs.
    std::optional<CorvelGui::TimeSpan> nextRecording(qint64 msecs) const;
    /// Sorted, none empty, with a gap between any two.
    const QList<CorvelGui::TimeSpan>& recorded() const { return m_recorded; }

private:
    CorvelGui::TimeSpan m_known;
    /// Sorted, without overlaps.
    QList<CorvelGui::TimeSpan> m_recorded;
    QList<CorvelGui::TimeSpan> m_loading;
};

} // namespace Review
