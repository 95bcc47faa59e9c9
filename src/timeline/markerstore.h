#pragma once

#include "base/internalexport.h"
#include "rulermarker.h"

#include <QtGlobal>

#include <cstddef>
#include <vector>

namespace CorvelGui {

/// The markers of a ruler in the order of their times, and which of them were seen already.
///
/// Times and icon keys stand in arrays of their own, so that what happens for every frame runs over
/// plain numbers.
class CORVELGUI_INTERNAL_EXPORT MarkerStore
{
public:
    struct Entry
    {
        RulerMarker marker;
        int iconKey;
        qint64 msecs;
        bool seen = false;
    };

    /// Equal times keep the order in which they were added.
    void add(std::vector<Entry> entries);
    /// Removes, for each of @p times, the first marker of that time.
    void remove(std::vector<qint64> times);
    void clear();

    std::size_t size() const { return m_entries.size(); }
    const RulerMarker& marker(std::size_t index) const { return m_entries[index].marker; }
    qint64 time(std::size_t index) const { return m_times[index]; }
    int iconKey(std::size_t index) const { return m_iconKeys[index]; }

    /// Index of the first marker at or after @p msecs; size() if there is none.
    std::size_t firstFrom(qint64 msecs) const;
    /// Index of the first marker after @p msecs; size() if there is none.
    std::size_t firstAfter(qint64 msecs) const;

    /// Those markers from @p first up to but not including @p last that were not handed out before.
    std::vector<std::size_t> takeUnseen(std::size_t first, std::size_t last);

private:
    void rebuild();
    std::size_t nextUnseen(std::size_t index);

    std::vector<Entry> m_entries;
    std::vector<qint64> m_times;
    std::vector<int> m_iconKeys;
    // From every index the way to the next marker that was not seen, shortened with every walk.
    std::vector<std::size_t> m_nextUnseen;
};

} // namespace CorvelGui
