// SPDX-License-Identifier: MIT
#pragma once

#include "severity.h"

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

#include <initializer_list>
#include <optional>

namespace Review {

/// Something that happened.
struct Event
{
    /// Milliseconds since the Unix epoch.
    qint64 time = 0;
    QString kind;
    QString text;
    /// Identifier of the track that it belongs to; empty if it belongs to none.
    QString track;
    /// Milliseconds from its time to its end; 0 for a moment.
    qint64 duration = 0;
    /// None for what is as bad as its kind says.
    std::optional<Severity> severity = {};

    bool operator==(const Event&) const = default;
};

/// Texts of which there are few, by numbers from 0 on in the order in which they came.
class Words
{
public:
    int numberOf(const QString& text);
    const QStringList& texts() const { return m_texts; }

private:
    QStringList m_texts;
    QHash<QString, int> m_numbers;
};

/// Millions of events in a few bytes each. They are known by their numbers, which are those of the
/// order of time after sort(). Copies share what they hold.
class Events
{
public:
    Events() = default;
    /// Sorts them.
    Events(std::initializer_list<Event> events);

    qsizetype size() const { return m_records.size(); }
    bool isEmpty() const { return m_records.isEmpty(); }
    Event operator[](qsizetype index) const;
    qint64 timeAt(qsizetype index) const { return m_records[index].time; }
    qint64 durationAt(qsizetype index) const;
    std::optional<Severity> severityAt(qsizetype index) const;
    QString textAt(qsizetype index) const { return QString::fromUtf8(utf8At(index)); }
    QByteArrayView utf8At(qsizetype index) const;
    /// Number of the event's kind in kinds().
    int kindAt(qsizetype index) const { return int(m_records[index].kind); }
    const QStringList& kinds() const { return m_kinds.texts(); }
    /// Number of the event's track in tracks().
    int trackAt(qsizetype index) const { return m_records[index].track; }
    /// Their identifiers; events without a track have the empty one.
    const QStringList& tracks() const { return m_tracks.texts(); }
    /// The first event that did not happen before @p msecs, or size().
    qsizetype firstFrom(qint64 msecs) const;
    /// When the last of them has ended; 0 without any.
    qint64 end() const { return m_end; }
    /// Whether any of them lasts, and whether any says how bad it is.
    bool haveDurations() const { return m_haveDurations; }
    bool haveSeverities() const { return m_haveSeverities; }

    void append(const Event& event);
    /// @p text is UTF-8, and stands for that of the event.
    void append(const Event& event, QByteArrayView text);
    /// Brings them into the order of time, those of one time in that of their coming, and gives
    /// back the memory that further ones would have taken.
    void sort();

    bool operator==(const Events& other) const;
    /// Lets continues() know whether those of @p before come first, with the same numbers, also of
    /// kinds and tracks. What is all the same is shared from then on. Compares all of them: nothing
    /// for the thread of the window.
    void compareWith(const Events& before);
    /// Whether these are @p before, or are known to begin with them. Answers at once.
    bool continues(const Events& before) const;

private:
    struct Record
    {
        qint64 time;
        qint64 text; ///< where it begins in m_texts, with its length in front
        int track;
        quint32 kind : 28;
        quint32 lasts : 1;    ///< then its duration is in front of the text, too
        quint32 severity : 3; ///< or noSeverity
    };

    bool startsWith(const Events& before) const;
    qint64 keep(QByteArrayView text);
    qint64 keep(qint64 duration, QByteArrayView text);
    void appendText(QByteArrayView text);

    static constexpr quint32 noSeverity = severityWords.size();

    QList<Record> m_records;
    /// Of these events among all that were ever sorted; 0 until then.
    quint64 m_serial = 0;
    /// That of those with which they begin, or 0.
    quint64 m_begunBy = 0;
    qint64 m_end = 0;
    bool m_haveDurations = false;
    bool m_haveSeverities = false;
    QByteArray m_texts;
    Words m_kinds;
    Words m_tracks;
    /// Where the first texts are, because many events say the same; empty once sorted.
    QHash<QByteArray, qint64> m_knownTexts;
};

} // namespace Review
