// SPDX-License-Identifier: MIT
#pragma once

#include "base/internalexport.h"
#include "rulermarker.h"
#include "trackdescription.h"

#include <QtGlobal>

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>
#include <vector>

namespace CorvelGui {

/// The markers of a ruler in the order of their times, and which of them were seen already.
///
/// They stand in blocks of some hundred, so that one comes or goes without moving the others. Of a
/// marker there are 80 bytes beside its text; its time is made anew from milliseconds and zone.
class CORVELGUI_INTERNAL_EXPORT MarkerStore
{
public:
    /// A set of icon numbers. Those from 63 on are in it together or not at all.
    class Icons
    {
    public:
        void insert(quint32 icon) { m_bits |= bitOf(icon); }
        bool contains(quint32 icon) const { return (m_bits & bitOf(icon)) != 0; }
        bool intersects(Icons other) const { return (m_bits & other.m_bits) != 0; }

    private:
        static quint64 bitOf(quint32 icon) { return quint64(1) << std::min<quint32>(icon, 63); }

        quint64 m_bits = 0;
    };

    /// Adds those with a valid time, each shown with the icon of the same index in @p icons. Equal
    /// times keep the order in which they were added. Returns, in order, the indices of those that
    /// they now stand before, as they were; size() for those behind all.
    std::vector<std::size_t> add(const QList<RulerMarker>& markers,
                                 const std::vector<quint32>& icons);
    /// Removes, for each of @p times, the first marker of that time. Returns, in order, the indices
    /// that they had.
    std::vector<std::size_t> remove(std::vector<qint64> times);
    void clear();

    std::size_t size() const;
    RulerMarker marker(std::size_t index) const;
    qint64 time(std::size_t index) const;
    quint32 icon(std::size_t index) const { return timeAndIcon(index).second; }
    std::pair<qint64, quint32> timeAndIcon(std::size_t index) const;

    /// Calls @p visit with time and severity of every marker, in order.
    template <typename Visit>
    void forEach(const Visit& visit) const
    {
        for (const Block& block : m_blocks) {
            for (std::size_t i = 0; i < block.times.size(); ++i)
                visit(block.times[i], RulerMarker::Severity(block.records[i].severity));
        }
    }

    /// Calls @p visit with span and severity of the markers that last and reach into @p view, in
    /// the order of their begins. Where all markers of a block begin within @p resolution
    /// milliseconds, those of a severity come as one.
    template <typename Visit>
    void forEachLasting(const TimeSpan& view, qint64 resolution, const Visit& visit) const
    {
        for (const Block& block : m_blocks) {
            if (block.times.front() >= view.end)
                break;
            if (block.lastEnd() > view.begin)
                block.forEachLasting(view, resolution, visit);
        }
    }

    /// The worst of the markers from @p first up to but not including @p last.
    RulerMarker::Severity worstSeverity(std::size_t first, std::size_t last) const;

    /// Index of the first marker at or after @p msecs; size() if there is none.
    std::size_t firstFrom(qint64 msecs) const;
    /// Index of the first marker after @p msecs; size() if there is none.
    std::size_t firstAfter(qint64 msecs) const;
    /// Index of the first marker from @p from up to but not including @p end whose icon is among
    /// @p icons, or shares their place in the set; @p end if there is none.
    std::size_t firstWithIcon(Icons icons, std::size_t from, std::size_t end) const;

    /// The times of those markers from @p first up to but not including @p last that were not
    /// handed out before.
    QList<QDateTime> takeUnseen(std::size_t first, std::size_t last);

private:
    struct Record
    {
        QUuid identifier;
        QString text;
        IRulerMarkerIconProvider* iconProvider;
        qint64 duration;
        int kind;
        int iconIndex;
        quint32 icon;
        quint32 zone : 29;
        quint32 severity : 2;
        quint32 seen : 1;
    };

    using Times = std::vector<qint64>::const_iterator;

    /// Neighbours in the order of time.
    struct Block
    {
        std::vector<qint64> times;
        std::vector<Record> records;
        Icons icons;
        quint32 unseen = 0;
        quint32 worst = 0; ///< severity
        /// When the last of those markers of each severity that last has ended; 0 without one.
        using Ends = std::array<qint64, RulerMarker::severityCount>;
        Ends ends = {};
        static constexpr std::size_t groupSize = 32;
        std::vector<Ends> groupEnds; ///< for so many neighbours each

        qint64 lastEnd() const { return *std::max_element(ends.begin(), ends.end()); }
        template <typename Visit>
        void forEachLasting(const TimeSpan& view, qint64 resolution, const Visit& visit) const;

        void reserve(std::size_t count);
        void append(qint64 time, Record record);
        /// Takes out the first marker of each of the times from @p time on, which it moves behind
        /// those that are found. Returns their offsets.
        std::vector<std::size_t> remove(Times& time, Times last);
    };
    using Blocks = std::vector<Block>;

    /// What comes in place of a block.
    struct Change
    {
        std::size_t block;
        Blocks blocks;
    };

    struct Position
    {
        std::size_t block;
        std::size_t offset;
    };

    struct Arrival
    {
        qint64 time;
        const RulerMarker* marker;
        quint32 icon;
    };
    using Arrivals = std::vector<Arrival>::const_iterator;

    Position positionOf(std::size_t index) const;
    Record recordOf(const Arrival& arrival);
    quint32 zoneOf(const QDateTime& time);
    QDateTime timeIn(quint32 zone, qint64 msecs) const;
    Blocks merged(std::size_t number, Arrivals first, Arrivals last, bool atEnd,
                  std::vector<std::size_t>& places);
    void replaceBlocks(std::vector<Change> changes);
    void joinSmallBlocks();
    std::size_t endOf(std::size_t block) const;
    /// The first block from @p block on with markers that were not seen; their number without one.
    std::size_t nextUnseen(std::size_t block) const;
    void indexFrom(std::size_t block);

    Blocks m_blocks; ///< none of them empty
    // Of each block, close together for searches.
    std::vector<std::size_t> m_firstIndices;
    std::vector<qint64> m_lastTimes;
    std::vector<quint8> m_unseen;   ///< whether there are any
    std::vector<QDateTime> m_zones; ///< for each zone any time in it
};

template <typename Visit>
void MarkerStore::Block::forEachLasting(const TimeSpan& view, qint64 resolution,
                                        const Visit& visit) const
{
    const auto visitAll = [&](qint64 begin, const Ends& last) {
        for (std::size_t severity = 0; severity < last.size(); ++severity) {
            if (last[severity] > view.begin)
                visit(TimeSpan{begin, last[severity]}, RulerMarker::Severity(severity));
        }
    };
    if (times.back() - times.front() <= resolution)
        return visitAll(times.front(), ends);
    for (std::size_t first = 0; first < times.size(); first += groupSize) {
        if (times[first] >= view.end)
            break;
        const std::size_t behind = std::min(first + groupSize, times.size());
        const Ends& last = groupEnds[first / groupSize];
        if (std::ranges::max(last) <= view.begin)
            continue;
        if (times[behind - 1] - times[first] <= resolution) {
            visitAll(times[first], last);
            continue;
        }
        for (std::size_t i = first; i < behind && times[i] < view.end; ++i) {
            const qint64 end = times[i] + records[i].duration;
            if (records[i].duration > 0 && end > view.begin)
                visit(TimeSpan{times[i], end}, RulerMarker::Severity(records[i].severity));
        }
    }
}

} // namespace CorvelGui
