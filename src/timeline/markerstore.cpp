#include "markerstore.h"

#include <algorithm>
#include <iterator>

namespace CorvelGui {

void MarkerStore::add(std::vector<Entry> entries)
{
    const auto byTime = [](const Entry& a, const Entry& b) {
        return a.msecs < b.msecs;
    };
    std::stable_sort(entries.begin(), entries.end(), byTime);

    const auto oldSize = std::ptrdiff_t(m_entries.size());
    m_entries.insert(m_entries.end(), std::make_move_iterator(entries.begin()),
                     std::make_move_iterator(entries.end()));
    std::inplace_merge(m_entries.begin(), m_entries.begin() + oldSize, m_entries.end(), byTime);
    rebuild();
}

void MarkerStore::remove(std::vector<qint64> times)
{
    std::sort(times.begin(), times.end());
    auto time = times.begin();
    const auto isNextToRemove = [&](const Entry& entry) {
        time = std::find_if(time, times.end(), [&](qint64 t) { return t >= entry.msecs; });
        if (time == times.end() || *time != entry.msecs)
            return false;
        ++time;
        return true;
    };
    // Kept entries move to the front in order, each looked at once.
    auto kept = m_entries.begin();
    for (auto entry = m_entries.begin(); entry != m_entries.end(); ++entry) {
        if (isNextToRemove(*entry))
            continue;
        if (kept != entry)
            *kept = std::move(*entry);
        ++kept;
    }
    m_entries.erase(kept, m_entries.end());
    rebuild();
}

void MarkerStore::clear()
{
    *this = MarkerStore();
}

std::size_t MarkerStore::firstFrom(qint64 msecs) const
{
    return std::size_t(std::lower_bound(m_times.begin(), m_times.end(), msecs) - m_times.begin());
}

std::size_t MarkerStore::firstAfter(qint64 msecs) const
{
    return std::size_t(std::upper_bound(m_times.begin(), m_times.end(), msecs) - m_times.begin());
}

std::vector<std::size_t> MarkerStore::takeUnseen(std::size_t first, std::size_t last)
{
    std::vector<std::size_t> unseen;
    for (std::size_t index = nextUnseen(first); index < last; index = nextUnseen(index)) {
        unseen.push_back(index);
        m_entries[index].seen = true;
        m_nextUnseen[index] = index + 1;
    }
    return unseen;
}

void MarkerStore::rebuild()
{
    m_times.clear();
    m_iconKeys.clear();
    m_nextUnseen.clear();
    m_times.reserve(m_entries.size());
    m_iconKeys.reserve(m_entries.size());
    m_nextUnseen.reserve(m_entries.size() + 1);
    for (const Entry& entry : m_entries) {
        m_nextUnseen.push_back(m_times.size() + (entry.seen ? 1 : 0));
        m_times.push_back(entry.msecs);
        m_iconKeys.push_back(entry.iconKey);
    }
    m_nextUnseen.push_back(m_times.size());
}

std::size_t MarkerStore::nextUnseen(std::size_t index)
{
    if (m_nextUnseen.empty())
        return index;
    std::size_t end = index;
    while (m_nextUnseen[end] != end)
        end = m_nextUnseen[end];
    while (m_nextUnseen[index] != end)
        index = std::exchange(m_nextUnseen[index], end);
    return end;
}

} // namespace CorvelGui
