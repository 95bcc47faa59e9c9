#include "markerstore.h"

#include <QTimeZone>

#include <iterator>
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
    times.push_back(time);
    icons.insert(record.icon);
    unseen += record.seen ? 0 : 1;
    records.push_back(std::move(record));
}

void MarkerStore::Block::remove(Times& time, Times last)
{
    Block kept;
    kept.reserve(times.size());
    for (std::size_t i = 0; i < times.size(); ++i) {
        time = std::find_if(time, last, [&](qint64 t) { return t >= times[i]; });
        if (time != last && *time == times[i])
            ++time;
        else
            kept.append(times[i], std::move(records[i]));
    }
    *this = std::move(kept);
}

void MarkerStore::add(const QList<RulerMarker>& markers, const std::vector<quint32>& icons)
{
    std::vector<Arrival> arrivals;
    arrivals.reserve(std::size_t(markers.size()));
    for (std::size_t i = 0; i < icons.size(); ++i) {
        const RulerMarker& marker = markers[qsizetype(i)];
        if (marker.time.isValid())
            arrivals.push_back({marker.time.toMSecsSinceEpoch(), &marker, icons[i]});
    }
    if (arrivals.empty())
        return;
    const auto byTime = [](const Arrival& a, const Arrival& b) {
        return a.time < b.time;
    };
    if (!std::is_sorted(arrivals.begin(), arrivals.end(), byTime))
        std::stable_sort(arrivals.begin(), arrivals.end(), byTime);
    if (m_blocks.empty())
        m_blocks.emplace_back();

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
        const auto block = std::prev(after);
        changes.push_back(
            {std::size_t(block - m_blocks.begin()), merged(*block, next, groupEnd, atEnd)});
        next = groupEnd;
    }
    replaceBlocks(std::move(changes));
}

void MarkerStore::remove(std::vector<qint64> times)
{
    std::sort(times.begin(), times.end());
    auto block = m_blocks.begin();
    for (auto time = times.cbegin(); time != times.cend() && block != m_blocks.end();) {
        block = std::partition_point(block, m_blocks.end(), [&](const Block& candidate) {
            return candidate.times.back() < *time;
        });
        if (block != m_blocks.end())
            (block++)->remove(time, times.cend());
    }
    joinSmallBlocks();
    renumberFrom(0);
}

void MarkerStore::clear()
{
    *this = MarkerStore();
}

std::size_t MarkerStore::size() const
{
    return m_blocks.empty() ? 0 : m_blocks.back().end();
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
                       .iconProvider = record.iconProvider};
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

std::size_t MarkerStore::firstFrom(qint64 msecs) const
{
    return firstWhere([msecs](qint64 time) { return time >= msecs; });
}

std::size_t MarkerStore::firstAfter(qint64 msecs) const
{
    return firstWhere([msecs](qint64 time) { return time > msecs; });
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
                return std::min(block.first + std::size_t(found - block.records.begin()), end);
        }
        from = block.end();
    }
    return end;
}

QList<QDateTime> MarkerStore::takeUnseen(std::size_t first, std::size_t last)
{
    QList<QDateTime> times;
    while (first < last) {
        const auto [number, offset] = positionOf(first);
        Block& block = m_blocks[number];
        const std::size_t end = std::min(block.times.size(), offset + last - first);
        for (std::size_t i = offset; i < end && block.unseen > 0; ++i) {
            Record& record = block.records[i];
            if (record.seen)
                continue;
            times.append(timeIn(record.zone, block.times[i]));
            record.seen = 1;
            --block.unseen;
        }
        first = block.end();
    }
    return times;
}

MarkerStore::Position MarkerStore::positionOf(std::size_t index) const
{
    const auto block = std::prev(std::partition_point(
        m_blocks.begin(), m_blocks.end(), [index](const Block& b) { return b.first <= index; }));
    return {std::size_t(block - m_blocks.begin()), index - block->first};
}

MarkerStore::Record MarkerStore::recordOf(const Arrival& arrival)
{
    const RulerMarker& marker = *arrival.marker;
    return {.identifier = marker.identifier,
            .text = marker.text,
            .iconProvider = marker.iconProvider,
            .kind = marker.kind,
            .iconIndex = marker.iconIndex,
            .icon = arrival.icon,
            .zone = zoneOf(marker.time),
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

MarkerStore::Blocks MarkerStore::merged(Block& block, Arrivals first, Arrivals last, bool atEnd)
{
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
    renumberFrom(changes.front().block);
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

void MarkerStore::renumberFrom(std::size_t block)
{
    for (std::size_t i = block; i < m_blocks.size(); ++i)
        m_blocks[i].first = i == 0 ? 0 : m_blocks[i - 1].end();
}

} // namespace CorvelGui
