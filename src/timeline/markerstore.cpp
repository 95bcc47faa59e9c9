// SPDX-License-Identifier: MIT
#include "markerstore.h"

#include <QTimeZone>

#include <cstring>
#include <iterator>
#include <limits>
#include <utility>

namespace CorvelGui {

namespace {

constexpr std::size_t largestBlock = 512;

bool isSameZone(const QDateTime& a, const QDateTime& b)
{
    if (a.timeSpec() != b.timeSpec())
        return false;
    if (a.timeSpec() == Qt::TimeZone)
        return a.timeZone() == b.timeZone();
    return a.timeSpec() != Qt::OffsetFromUTC || a.offsetFromUtc() == b.offsetFromUtc();
}

} // namespace

void MarkerStore::Block::reserve(std::size_t count)
{
    times.reserve(count);
    records.reserve(count);
}

void MarkerStore::Block::append(qint64 time, Record record)
{
    if (times.size() % groupSize == 0)
        groupEnds.push_back({});
    times.push_back(time);
    icons.insert(record.icon);
    unseen += record.seen ? 0 : 1;
    worst = std::max<quint32>(worst, record.severity);
    if (record.duration > 0) {
        for (Ends* last : {&ends, &groupEnds.back()}) {
            qint64& end = (*last)[record.severity];
            end = std::max(end, time + record.duration);
        }
    }
    records.push_back(std::move(record));
}

std::vector<std::size_t> MarkerStore::Block::remove(Times& time, Times last)
{
    std::vector<std::size_t> removed;
    Block kept;
    kept.reserve(times.size());
    for (std::size_t i = 0; i < times.size(); ++i) {
        time = std::find_if(time, last, [&](qint64 t) { return t >= times[i]; });
        if (time == last || *time != times[i]) {
            kept.append(times[i], std::move(records[i]));
        } else {
            ++time;
            removed.push_back(i);
        }
    }
    *this = std::move(kept);
    return removed;
}

std::vector<std::size_t> MarkerStore::add(const QList<RulerMarker>& markers,
                                          const std::vector<quint32>& icons)
{
    std::vector<Arrival> arrivals;
    arrivals.reserve(std::size_t(markers.size()));
    for (std::size_t i = 0; i < icons.size(); ++i) {
        const RulerMarker& marker = markers[qsizetype(i)];
        if (marker.time.isValid())
            arrivals.push_back({marker.time.toMSecsSinceEpoch(), &marker, icons[i]});
    }
    if (arrivals.empty())
        return {};
    const auto byTime = [](const Arrival& a, const Arrival& b) {
        return a.time < b.time;
    };
    if (!std::is_sorted(arrivals.begin(), arrivals.end(), byTime))
        std::stable_sort(arrivals.begin(), arrivals.end(), byTime);
    if (m_blocks.empty()) {
        m_blocks.emplace_back();
        m_firstIndices.push_back(0);
    }

    std::vector<std::size_t> places;
    places.reserve(arrivals.size());
    std::vector<Change> changes;
    for (auto next = arrivals.cbegin(); next != arrivals.cend();) {
        // Into the last block that begins up to its time, behind all that have its time.
        const auto after = std::partition_point(
            std::next(m_blocks.begin()), m_blocks.end(),
            [&](const Block& block) { return block.times.front() <= next->time; });
        const bool atEnd = after == m_blocks.end();
        const auto groupEnd =
            atEnd ? arrivals.cend()
                  : std::partition_point(next, arrivals.cend(), [&](const Arrival& arrival) {
                        return arrival.time < after->times.front();
                    });
        const auto block = std::size_t(after - m_blocks.begin()) - 1;
        changes.push_back({block, merged(block, next, groupEnd, atEnd, places)});
        next = groupEnd;
    }
    replaceBlocks(std::move(changes));
    return places;
}

std::vector<std::size_t> MarkerStore::remove(std::vector<qint64> times)
{
    std::vector<std::size_t> places;
    std::sort(times.begin(), times.end());
    auto block = m_lastTimes.cbegin();
    for (auto time = times.cbegin(); time != times.cend(); ++block) {
        block = std::lower_bound(block, m_lastTimes.cend(), *time);
        if (block == m_lastTimes.cend())
            break;
        const auto number = std::size_t(block - m_lastTimes.cbegin());
        for (const std::size_t offset : m_blocks[number].remove(time, times.cend()))
            places.push_back(m_firstIndices[number] + offset);
    }
    joinSmallBlocks();
    indexFrom(0);
    return places;
}

void MarkerStore::clear()
{
    *this = MarkerStore();
}

std::size_t MarkerStore::size() const
{
    return m_blocks.empty() ? 0 : endOf(m_blocks.size() - 1);
}

RulerMarker MarkerStore::marker(std::size_t index) const
{
    const auto [block, offset] = positionOf(index);
    const Record& record = m_blocks[block].records[offset];
    RulerMarker marker{.identifier = record.identifier,
                       .time = timeIn(record.zone, m_blocks[block].times[offset]),
                       .kind = record.kind,
                       .iconIndex = record.iconIndex,
                       .text = record.text,
                       .iconProvider = record.iconProvider,
                       .duration = record.duration,
                       .severity = RulerMarker::Severity(record.severity)};
    if (marker.text.isEmpty() && marker.iconProvider)
        marker.text = marker.iconProvider->text(marker);
    return marker;
}

qint64 MarkerStore::time(std::size_t index) const
{
    const auto [block, offset] = positionOf(index);
    return m_blocks[block].times[offset];
}

std::pair<qint64, quint32> MarkerStore::timeAndIcon(std::size_t index) const
{
    const auto [block, offset] = positionOf(index);
    return {m_blocks[block].times[offset], m_blocks[block].records[offset].icon};
}

RulerMarker::Severity MarkerStore::worstSeverity(std::size_t first, std::size_t last) const
{
    quint32 worst = 0;
    while (first < last) {
        const auto [number, offset] = positionOf(first);
        const Block& block = m_blocks[number];
        const std::size_t count = std::min(block.times.size() - offset, last - first);
        if (count == block.times.size()) {
            worst = std::max(worst, block.worst);
        } else if (block.worst > worst) {
            for (std::size_t i = offset; i < offset + count; ++i)
                worst = std::max<quint32>(worst, block.records[i].severity);
        }
        first += count;
    }
    return RulerMarker::Severity(worst);
}

std::size_t MarkerStore::firstFrom(qint64 msecs) const
{
    const auto found = std::lower_bound(m_lastTimes.begin(), m_lastTimes.end(), msecs);
    if (found == m_lastTimes.end())
        return size();
    const auto block = std::size_t(found - m_lastTimes.begin());
    const std::vector<qint64>& times = m_blocks[block].times;
    return m_firstIndices[block] +
           std::size_t(std::lower_bound(times.begin(), times.end(), msecs) - times.begin());
}

std::size_t MarkerStore::firstAfter(qint64 msecs) const
{
    return msecs == std::numeric_limits<qint64>::max() ? size() : firstFrom(msecs + 1);
}

std::size_t MarkerStore::firstWithIcon(Icons icons, std::size_t from, std::size_t end) const
{
    while (from < end) {
        const auto [number, offset] = positionOf(from);
        const Block& block = m_blocks[number];
        if (block.icons.intersects(icons)) {
            const auto found =
                std::find_if(block.records.begin() + std::ptrdiff_t(offset), block.records.end(),
                             [&](const Record& record) { return icons.contains(record.icon); });
            if (found != block.records.end())
                return std::min(from - offset + std::size_t(found - block.records.begin()), end);
        }
        from = endOf(number);
    }
    return end;
}

QList<QDateTime> MarkerStore::takeUnseen(std::size_t first, std::size_t last)
{
    QList<QDateTime> times;
    if (first >= last)
        return times;
    const Position from = positionOf(first);
    const Position to = positionOf(last - 1);
    for (std::size_t number = nextUnseen(from.block); number <= to.block;
         number = nextUnseen(number + 1)) {
        Block& block = m_blocks[number];
        const std::size_t end = number == to.block ? to.offset + 1 : block.times.size();
        for (std::size_t i = number == from.block ? from.offset : 0; i < end; ++i) {
            Record& record = block.records[i];
            if (record.seen)
                continue;
            times.append(timeIn(record.zone, block.times[i]));
            record.seen = 1;
            --block.unseen;
        }
        m_unseen[number] = block.unseen > 0;
    }
    return times;
}

std::size_t MarkerStore::nextUnseen(std::size_t block) const
{
    const std::size_t rest = m_unseen.size() - block;
    const void* found = rest > 0 ? std::memchr(&m_unseen[block], true, rest) : nullptr;
    return found ? std::size_t(static_cast<const quint8*>(found) - m_unseen.data())
                 : m_unseen.size();
}

MarkerStore::Position MarkerStore::positionOf(std::size_t index) const
{
    const auto after = std::upper_bound(m_firstIndices.begin(), m_firstIndices.end(), index);
    const auto block = std::size_t(after - m_firstIndices.begin()) - 1;
    return {block, index - m_firstIndices[block]};
}

MarkerStore::Record MarkerStore::recordOf(const Arrival& arrival)
{
    const RulerMarker& marker = *arrival.marker;
    return {.identifier = marker.identifier,
            .text = marker.text,
            .iconProvider = marker.iconProvider,
            .duration = std::max<qint64>(marker.duration, 0),
            .kind = marker.kind,
            .iconIndex = marker.iconIndex,
            .icon = arrival.icon,
            .zone = zoneOf(marker.time),
            .severity = quint32(marker.severity),
            .seen = 0};
}

quint32 MarkerStore::zoneOf(const QDateTime& time)
{
    const auto known = std::find_if(m_zones.begin(), m_zones.end(), [&](const QDateTime& other) {
        return isSameZone(time, other);
    });
    const auto zone = quint32(known - m_zones.begin());
    if (known == m_zones.end())
        m_zones.push_back(time);
    return zone;
}

QDateTime MarkerStore::timeIn(quint32 zone, qint64 msecs) const
{
    QDateTime time = m_zones[zone];
    time.setMSecsSinceEpoch(msecs);
    return time;
}

MarkerStore::Blocks MarkerStore::merged(std::size_t number, Arrivals first, Arrivals last,
                                        bool atEnd, std::vector<std::size_t>& places)
{
    Block& block = m_blocks[number];
    const std::size_t total = block.times.size() + std::size_t(last - first);
    // What comes in the order of time, as live events do, leaves full blocks behind.
    const bool appends = atEnd && (block.times.empty() || block.times.back() <= first->time);
    const std::size_t pieces = (total + largestBlock - 1) / largestBlock;
    const std::size_t size = appends ? largestBlock : (total + pieces - 1) / pieces;

    Blocks blocks;
    blocks.reserve(pieces);
    for (std::size_t done = 0, old = 0; done < total; ++done) {
        if (done % size == 0)
            blocks.emplace_back().reserve(std::min(size, total - done));
        if (first == last || (old < block.times.size() && block.times[old] <= first->time)) {
            blocks.back().append(block.times[old], std::move(block.records[old]));
            ++old;
        } else {
            places.push_back(m_firstIndices[number] + old);
            blocks.back().append(first->time, recordOf(*first));
            ++first;
        }
    }
    return blocks;
}

void MarkerStore::replaceBlocks(std::vector<Change> changes)
{
    const bool isInPlace = std::all_of(changes.begin(), changes.end(), [](const Change& change) {
        return change.blocks.size() == 1;
    });
    if (isInPlace) {
        for (Change& change : changes)
            m_blocks[change.block] = std::move(change.blocks.front());
    } else {
        Blocks blocks;
        auto change = changes.begin();
        for (std::size_t i = 0; i < m_blocks.size(); ++i) {
            if (change == changes.end() || change->block != i) {
                blocks.push_back(std::move(m_blocks[i]));
            } else {
                std::move(change->blocks.begin(), change->blocks.end(), std::back_inserter(blocks));
                ++change;
            }
        }
        m_blocks = std::move(blocks);
    }
    indexFrom(changes.front().block);
}

void MarkerStore::joinSmallBlocks()
{
    std::erase_if(m_blocks, [](const Block& block) { return block.times.empty(); });
    Blocks::iterator left = m_blocks.begin();
    for (auto right = left; right != m_blocks.end(); ++right) {
        if (right == left)
            continue;
        if (left->times.size() + right->times.size() <= largestBlock / 2) {
            for (std::size_t i = 0; i < right->times.size(); ++i)
                left->append(right->times[i], std::move(right->records[i]));
        } else if (++left != right) {
            *left = std::move(*right);
        }
    }
    if (left != m_blocks.end())
        m_blocks.erase(std::next(left), m_blocks.end());
}

std::size_t MarkerStore::endOf(std::size_t block) const
{
    return m_firstIndices[block] + m_blocks[block].times.size();
}

void MarkerStore::indexFrom(std::size_t block)
{
    m_firstIndices.resize(m_blocks.size());
    m_lastTimes.resize(m_blocks.size());
    m_unseen.resize(m_blocks.size());
    for (std::size_t i = block; i < m_blocks.size(); ++i) {
        m_firstIndices[i] = i == 0 ? 0 : endOf(i - 1);
        m_lastTimes[i] = m_blocks[i].times.back();
        m_unseen[i] = m_blocks[i].unseen > 0;
    }
}

} // namespace CorvelGui
