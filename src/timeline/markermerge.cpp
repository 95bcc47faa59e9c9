// SPDX-License-Identifier: MIT
#include "markermerge.h"

#include <algorithm>
#include <cmath>

namespace CorvelGui {

namespace {

/// Finds where a run ends.
class RunEnd
{
public:
    RunEnd(const MarkerRow& row, std::size_t first, std::size_t last)
        : m_row(row)
        , m_first(first)
        , m_last(last)
        , m_start(row.place(first))
        , m_sureMiddles(row.firstRightOf(m_start.x + m_start.halfWidth + row.narrowest(), first))
    {}

    /// The first marker that does not join.
    std::size_t find() const
    {
        for (std::size_t next = m_first + 1; next < m_last;) {
            const MarkerPlace middle = m_row.place(middleOf(next));
            const std::size_t sure = endOfSure(middle, next);
            if (sure > next) {
                next = sure;
                continue;
            }
            const MarkerPlace candidate = m_row.place(next);
            if (!joins(middle, candidate))
                return next;
            const Stretch stretch = stretchFrom(middle, candidate, next);
            do
                next = nextCandidate(next + 1, stretch);
            while (next < stretch.end && joins(m_row.place(middleOf(next)), m_row.place(next)));
            if (next < stretch.end)
                return next;
        }
        return m_last;
    }

private:
    /// Candidates that share a pixel column, and so do their middle markers.
    struct Stretch
    {
        std::size_t end;
        int narrow; ///< only a marker that reaches less far can be the reason of a refusal
    };

    std::size_t middleOf(std::size_t next) const { return (m_first + next) / 2; }
    std::size_t firstWithMiddle(std::size_t middle) const { return 2 * middle - m_first; }

    bool joins(const MarkerPlace& middle, const MarkerPlace& candidate) const
    {
        return m_start.overlaps(middle) && candidate.overlaps(middle);
    }

    /// Up to here every marker joins, even if all of them were as narrow as the narrowest: the
    /// middle only moves to the right.
    std::size_t endOfSure(const MarkerPlace& middle, std::size_t next) const
    {
        return std::min({m_row.firstRightOf(middle.x + 2 * m_row.narrowest(), next),
                         firstWithMiddle(m_sureMiddles), m_last});
    }

    Stretch stretchFrom(const MarkerPlace& middle, const MarkerPlace& candidate,
                        std::size_t next) const
    {
        const std::size_t middlesEnd = m_row.firstRightOf(middle.x, middleOf(next));
        return {
            std::min({m_row.firstRightOf(candidate.x, next), firstWithMiddle(middlesEnd), m_last}),
            // Of two that do not touch, one reaches less than half of the way.
            std::max((candidate.x - middle.x + 1) / 2, middle.x - m_start.x - m_start.halfWidth)};
    }

    /// The first one, not before @p next, that is narrow or has a narrow middle.
    std::size_t nextCandidate(std::size_t next, const Stretch& stretch) const
    {
        const std::size_t narrow = m_row.firstNarrowerThan(stretch.narrow, next, stretch.end);
        const std::size_t narrowMiddle =
            m_row.firstNarrowerThan(stretch.narrow, middleOf(next), middleOf(narrow) + 1);
        return std::min(narrow, std::max(next, firstWithMiddle(narrowMiddle)));
    }

    const MarkerRow& m_row;
    const std::size_t m_first;
    const std::size_t m_last;
    const MarkerPlace m_start;
    /// While the middle is before this one, it touches the first marker, narrow as it may be.
    const std::size_t m_sureMiddles;
};

} // namespace

MarkerRow::~MarkerRow() = default;

std::vector<MarkerRun> mergeMarkers(const MarkerRow& row, std::size_t first, std::size_t last)
{
    std::vector<MarkerRun> runs;
    while (first < last) {
        const bool isAlone = first + 1 == last || !row.place(first + 1).overlaps(row.place(first));
        const std::size_t end = isAlone ? first + 1 : RunEnd(row, first, last).find();
        runs.push_back({first, end - 1, (first + end - 1) / 2});
        first = end;
    }
    return runs;
}

int visibleHalfWidth(int width, double visibleFraction)
{
    const int visible = int(std::lround(width * visibleFraction));
    return width / 2 - (width - visible) / 2 - visible / 8;
}

} // namespace CorvelGui
