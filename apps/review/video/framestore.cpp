// SPDX-License-Identifier: MIT
#include "framestore.h"

#include <cstdlib>
#include <iterator>

namespace Review {

namespace {

qint64 bytesOf(const AVFrame& frame)
{
    qint64 bytes = 0;
    for (const AVBufferRef* buffer : frame.buf)
        if (buffer)
            bytes += qint64(buffer->size);
    return bytes;
}

} // namespace

const FrameStore::Entry& FrameStore::add(qint64 time, DecodedFrame frame,
                                         std::optional<qint64> follows)
{
    if (follows)
        if (const auto before = m_entries.find(*follows); before != m_entries.end())
            before->second.until = time;
    Entry& entry = m_entries[time];
    m_bytes -= entry.bytes;
    entry.time = time;
    entry.bytes = bytesOf(*frame);
    entry.frame = std::move(frame);
    m_bytes += entry.bytes;
    makeRoom(time);
    return entry;
}

void FrameStore::setLast(qint64 time)
{
    if (const auto entry = m_entries.find(time); entry != m_entries.end())
        entry->second.last = true;
}

const FrameStore::Entry* FrameStore::find(qint64 time)
{
    m_asked = time;
    const auto after = m_entries.upper_bound(time);
    if (after == m_entries.begin())
        return nullptr;
    const Entry& entry = std::prev(after)->second;
    const bool shown = entry.last || (entry.until && time < *entry.until);
    return shown ? &entry : nullptr;
}

const FrameStore::Entry* FrameStore::entryAt(qint64 time) const
{
    const auto entry = m_entries.find(time);
    return entry == m_entries.end() ? nullptr : &entry->second;
}

void FrameStore::clear()
{
    m_entries.clear();
    m_bytes = 0;
}

void FrameStore::makeRoom(qint64 keep)
{
    while (m_bytes > m_maximum) {
        auto victim = m_entries.end();
        for (auto entry = m_entries.begin(); entry != m_entries.end(); ++entry) {
            // The newest and the one before it stay: one of them is shown.
            if (entry->first == keep || entry->second.until == keep)
                continue;
            if (victim == m_entries.end() ||
                std::abs(entry->first - m_asked) > std::abs(victim->first - m_asked))
                victim = entry;
        }
        if (victim == m_entries.end())
            return;
        m_bytes -= victim->second.bytes;
        m_entries.erase(victim);
    }
}

} // namespace Review
