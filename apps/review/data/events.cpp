// SPDX-License-Identifier: MIT
#include "events.h"

#include <algorithm>
#include <atomic>
#include <cstring>

namespace Review {

namespace {

using Length = quint32;

constexpr qsizetype mostKnownTexts = 4'096;

} // namespace

int Words::numberOf(const QString& text)
{
    const auto known = m_numbers.constFind(text);
    if (known != m_numbers.cend())
        return *known;
    const auto number = int(m_texts.size());
    m_numbers.insert(text, number);
    m_texts.append(text);
    return number;
}

Events::Events(std::initializer_list<Event> events)
{
    for (const Event& event : events)
        append(event);
    sort();
}

Event Events::operator[](qsizetype index) const
{
    return {.time = timeAt(index),
            .kind = kinds()[kindAt(index)],
            .text = textAt(index),
            .track = tracks()[trackAt(index)],
            .duration = durationAt(index),
            .severity = severityAt(index)};
}

qint64 Events::durationAt(qsizetype index) const
{
    const Record& record = m_records[index];
    qint64 duration = 0;
    if (record.lasts)
        std::memcpy(&duration, m_texts.constData() + record.text - sizeof duration,
                    sizeof duration);
    return duration;
}

std::optional<Severity> Events::severityAt(qsizetype index) const
{
    const quint32 severity = m_records[index].severity;
    return severity == noSeverity ? std::nullopt : std::optional(Severity(severity));
}

QByteArrayView Events::utf8At(qsizetype index) const
{
    const char* text = m_texts.constData() + m_records[index].text;
    Length length = 0;
    std::memcpy(&length, text, sizeof length);
    return {text + sizeof length, qsizetype(length)};
}

qsizetype Events::firstFrom(qint64 msecs) const
{
    return std::ranges::lower_bound(m_records, msecs, {}, &Record::time) - m_records.begin();
}

void Events::append(const Event& event)
{
    append(event, event.text.toUtf8());
}

void Events::append(const Event& event, QByteArrayView text)
{
    const bool lasts = event.duration != 0;
    m_records.append({.time = event.time,
                      .text = lasts ? keep(event.duration, text) : keep(text),
                      .track = m_tracks.numberOf(event.track),
                      .kind = quint32(m_kinds.numberOf(event.kind)),
                      .lasts = lasts,
                      .severity = event.severity ? quint32(*event.severity) : noSeverity});
    m_serial = 0;
    m_begunBy = 0;
    m_end = std::max(m_end, event.time + event.duration);
    m_haveDurations |= lasts;
    m_haveSeverities |= event.severity.has_value();
}

qint64 Events::keep(QByteArrayView text)
{
    const QByteArray unkept = QByteArray::fromRawData(text.data(), text.size());
    const auto known = m_knownTexts.constFind(unkept);
    if (known != m_knownTexts.cend())
        return *known;
    const qint64 begin = m_texts.size();
    appendText(text);
    if (m_knownTexts.size() < mostKnownTexts)
        m_knownTexts.insert(QByteArray(text.data(), text.size()), begin);
    return begin;
}

qint64 Events::keep(qint64 duration, QByteArrayView text)
{
    m_texts.append(reinterpret_cast<const char*>(&duration), sizeof duration);
    const qint64 begin = m_texts.size();
    appendText(text);
    return begin;
}

void Events::appendText(QByteArrayView text)
{
    const auto length = Length(text.size());
    m_texts.append(reinterpret_cast<const char*>(&length), sizeof length);
    m_texts.append(text.data(), text.size());
}

void Events::sort()
{
    if (!std::ranges::is_sorted(m_records, {}, &Record::time))
        std::ranges::stable_sort(m_records, {}, &Record::time);
    m_records.squeeze();
    m_texts.squeeze();
    m_knownTexts = {};
    static std::atomic<quint64> serials = 0;
    m_serial = ++serials;
    m_begunBy = 0;
}

bool Events::operator==(const Events& other) const
{
    if (size() != other.size())
        return false;
    for (qsizetype index = 0; index < size(); ++index) {
        if (!((*this)[index] == other[index]))
            return false;
    }
    return true;
}

void Events::compareWith(const Events& before)
{
    if (!startsWith(before))
        return;
    if (size() == before.size())
        *this = before;
    else
        m_begunBy = before.m_serial;
}

bool Events::continues(const Events& before) const
{
    return before.m_serial != 0 && (m_serial == before.m_serial || m_begunBy == before.m_serial);
}

bool Events::startsWith(const Events& before) const
{
    const auto beginLike = [](const QStringList& texts, const QStringList& first) {
        return texts.size() >= first.size() && std::ranges::equal(texts.first(first.size()), first);
    };
    if (size() < before.size() || !beginLike(kinds(), before.kinds()) ||
        !beginLike(tracks(), before.tracks()))
        return false;
    for (qsizetype index = 0; index < before.size(); ++index) {
        const Record& record = m_records[index];
        const Record& known = before.m_records[index];
        if (record.time != known.time || record.track != known.track || record.kind != known.kind ||
            record.severity != known.severity || durationAt(index) != before.durationAt(index) ||
            utf8At(index) != before.utf8At(index))
            return false;
    }
    return true;
}

} // namespace Review
