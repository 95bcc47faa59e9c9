// SPDX-License-Identifier: MIT
#include "events.h"

#include <algorithm>
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

bool Events::startsWith(const Events& other) const
{
    const auto beginsLike = [](const QStringList& texts, const QStringList& before) {
        return texts.size() >= before.size() &&
               std::ranges::equal(texts.first(before.size()), before);
    };
    if (m_records.constData() == other.m_records.constData() && size() == other.size())
        return true;
    if (size() < other.size() || !beginsLike(kinds(), other.kinds()) ||
        !beginsLike(tracks(), other.tracks()))
        return false;
    for (qsizetype index = 0; index < other.size(); ++index) {
        const Record& record = m_records[index];
        const Record& before = other.m_records[index];
        if (record.time != before.time || record.track != before.track ||
            record.kind != before.kind || record.severity != before.severity ||
            durationAt(index) != other.durationAt(index) || utf8At(index) != other.utf8At(index))
            return false;
    }
    return true;
}

} // namespace Review
