// SPDX-License-Identifier: MIT
#include "slicedsort.h"

#include <algorithm>

namespace CorvelGui {

namespace {

// Short enough to be sorted or merged between two looks at the clock, whatever the rows say.
constexpr size_t runLength = 128;

} // namespace

SlicedSort::SlicedSort(std::vector<int> rows, StandsBefore standsBefore)
    : m_standsBefore(std::move(standsBefore)), m_rows(std::move(rows)), m_run(runLength)
{}

bool SlicedSort::run(const QDeadlineTimer& deadline)
{
    if (!sortRuns(deadline))
        return false;
    while (m_run < m_rows.size()) {
        if (m_merged.empty())
            beginPass();
        if (!mergePass(deadline))
            return false;
        m_rows.swap(m_merged);
        m_merged.clear();
        m_run *= 2;
    }
    return true;
}

bool SlicedSort::sortRuns(const QDeadlineTimer& deadline)
{
    while (m_sorted < m_rows.size()) {
        if (deadline.hasExpired())
            return false;
        const size_t end = std::min(m_sorted + runLength, m_rows.size());
        std::sort(m_rows.begin() + std::ptrdiff_t(m_sorted), m_rows.begin() + std::ptrdiff_t(end),
                  m_standsBefore);
        m_sorted = end;
    }
    return true;
}

void SlicedSort::beginPass()
{
    m_merged.reserve(m_rows.size());
    beginMerge(0);
}

void SlicedSort::beginMerge(size_t begin)
{
    m_left = begin;
    m_leftEnd = m_right = std::min(begin + m_run, m_rows.size());
    m_rightEnd = std::min(begin + 2 * m_run, m_rows.size());
}

bool SlicedSort::mergePass(const QDeadlineTimer& deadline)
{
    while (m_merged.size() < m_rows.size()) {
        if (m_merged.size() % runLength == 0 && deadline.hasExpired())
            return false;
        if (m_left == m_leftEnd && m_right == m_rightEnd)
            beginMerge(m_rightEnd);
        const bool takesRight =
            m_left == m_leftEnd ||
            (m_right < m_rightEnd && m_standsBefore(m_rows[m_right], m_rows[m_left]));
        m_merged.push_back(m_rows[takesRight ? m_right++ : m_left++]);
    }
    return true;
}

} // namespace CorvelGui
