// SPDX-License-Identifier: MIT
#include "timeinpath.h"

#include <utility>

namespace Review {

namespace {

bool isDigit(QChar character)
{
    return character >= u'0' && character <= u'9';
}

/// Reads a text from its begin to its end, until something is not there.
class TextReader
{
public:
    explicit TextReader(QStringView text) : m_rest(text) {}

    bool isGood() const { return m_isGood; }
    bool atDigit() const { return !m_rest.isEmpty() && isDigit(m_rest.front()); }

    /// A number of just so many digits.
    int number(qsizetype digits, int least, int most)
    {
        qint64 value = 0;
        for (qsizetype i = 0; i < digits && m_isGood; ++i) {
            m_isGood = i < m_rest.size() && isDigit(m_rest[i]);
            if (m_isGood)
                value = value * 10 + m_rest[i].digitValue();
        }
        m_isGood = m_isGood && value >= least && value <= most;
        if (m_isGood)
            m_rest = m_rest.sliced(digits);
        return int(value);
    }

    /// The next characters, if they are of @p characters.
    QStringView some(QStringView characters, qsizetype most = 1)
    {
        qsizetype count = 0;
        while (count < qMin(most, m_rest.size()) && characters.contains(m_rest[count]))
            ++count;
        return std::exchange(m_rest, m_rest.sliced(count)).first(count);
    }

    /// A whole number behind one of @p separators, or 0 and nothing is read.
    int whatFollows(QStringView separators, qsizetype digits, int most)
    {
        TextReader ahead = *this;
        ahead.some(separators);
        const int value = ahead.number(digits, 0, most);
        if (!ahead.isGood() || ahead.atDigit())
            return 0;
        *this = ahead;
        return value;
    }

private:
    QStringView m_rest;
    bool m_isGood = true;
};

/// "Z", or "+01:00" with or without the colon; seconds.
std::optional<int> readOffset(TextReader& reader, bool mayBeNumber)
{
    if (!reader.some(u"Z").isEmpty())
        return 0;
    const QStringView sign = mayBeNumber ? reader.some(u"+-") : QStringView();
    if (sign.isEmpty())
        return {};
    const int hours = reader.number(2, 0, 19);
    reader.some(u":");
    const int seconds = (hours * 60 + reader.number(2, 0, 59)) * 60;
    if (!reader.isGood() || reader.atDigit())
        return {};
    return sign == u"-" ? -seconds : seconds;
}

std::optional<WallTime> readDateAndTime(TextReader reader)
{
    const int year = reader.number(4, 1900, 2099);
    const QStringView separator = reader.some(u"-_./");
    const int month = reader.number(2, 1, 12);
    if (reader.some(u"-_./") != separator)
        return {};
    const QDate date(year, month, reader.number(2, 1, 31));
    // The parts of the time may be of other folders than the date.
    const QStringView between = reader.some(u"T_ ./-", 3);
    const int hour = reader.number(2, 0, 23);
    reader.some(u"-_.:/h");
    const int minute = reader.number(2, 0, 59);
    if (!reader.isGood() || !date.isValid())
        return {};
    const int second = reader.whatFollows(u"-_.:/m", 2, 59);
    if (reader.atDigit())
        return {};
    const int msec = reader.whatFollows(u".,", 3, 999);
    // Only behind a T is a sign that of an offset, and not of what comes next in the name.
    return WallTime{QDateTime(date, QTime(hour, minute, second, msec), Qt::UTC),
                    readOffset(reader, between == u"T")};
}

std::optional<WallTime> readSinceTheEpoch(TextReader reader)
{
    const qint64 seconds = reader.number(10, 1'000'000'000, 1'999'999'999);
    const int msecs = reader.whatFollows({}, 3, 999);
    if (!reader.isGood() || reader.atDigit())
        return {};
    return WallTime::utc(seconds * 1'000 + msecs);
}

/// At the first place where a number begins and @p read finds something.
template <typename Read>
std::optional<WallTime> firstTime(QStringView text, Read read)
{
    for (qsizetype at = 0; at < text.size(); ++at)
        if (isDigit(text[at]) && (at == 0 || !isDigit(text[at - 1])))
            if (const auto time = read(TextReader(text.sliced(at))))
                return time;
    return {};
}

} // namespace

std::optional<WallTime> timeInPath(QStringView path)
{
    for (const auto read : {readDateAndTime, readSinceTheEpoch})
        for (qsizetype slash = path.size(); slash >= 0;) {
            slash = slash == 0 ? -1 : path.lastIndexOf(u'/', slash - 1);
            if (const auto time = firstTime(path.sliced(slash + 1), read))
                return time;
        }
    return {};
}

} // namespace Review
