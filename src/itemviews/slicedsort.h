// SPDX-License-Identifier: MIT
#pragma once

#include "base/internalexport.h"

#include <QDeadlineTimer>

#include <functional>
#include <vector>

namespace CorvelGui {

/// A merge sort of row numbers that can be interrupted and taken up again.
class CORVELGUI_INTERNAL_EXPORT SlicedSort
{
public:
    /// Says of two different rows whether the one stands before the other.
    using StandsBefore = std::function<bool(int row, int other)>;

    SlicedSort(std::vector<int> rows, StandsBefore standsBefore);

    /// Sorts on until @p deadline; returns whether it is done.
    bool run(const QDeadlineTimer& deadline);
    /// The rows in their order, once it is done.
    std::vector<int> take() { return std::move(m_rows); }

private:
    bool sortRuns(const QDeadlineTimer& deadline);
    void beginPass();
    bool mergePass(const QDeadlineTimer& deadline);
    void beginMerge(size_t begin);

    StandsBefore m_standsBefore;
    std::vector<int> m_rows;
    std::vector<int> m_merged;
    size_t m_sorted = 0; ///< so many rows are in sorted runs
    size_t m_run = 0;    ///< their length

    // The merge under way: [m_left, m_leftEnd) and [m_right, m_rightEnd)
    size_t m_left = 0;
    size_t m_leftEnd = 0;
    size_t m_right = 0;
    size_t m_rightEnd = 0;
};

} // namespace CorvelGui
