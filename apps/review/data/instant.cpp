// SPDX-License-Identifier: MIT
#include "instant.h"

#include <QDate>

#include <optional>

namespace Review {

namespace {

constexpr qint64 msecsPerSecond = 1'000;
constexpr qint64 msecsPerMinute = 60 * msecsPerSecond;
constexpr qint64 msecsPerHour = 60 * msecsPerMinute;
constexpr qint64 msecsPerDay = 24 * msecsPerHour;

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

/// Reads fixed-width parts of a text from left to right.
class Scanner
{
public:
    explicit Scanner(QByteArrayView text) : m_rest(text) {}

    bool atEnd() const { return m_rest.isEmpty(); }

    bool skip(QByteArrayView oneOf)
    {
        if (atEnd() || !oneOf.contains(m_rest.front()))
            return false;
        m_rest = m_rest.sliced(1);
        return true;
    }

    /// A number of exactly @p digits digits, at most @p maximum.
    std::optional<int> number(int digits, int maximum)
    {
        if (m_rest.size() < digits)
            return std::nullopt;
        int value = 0;
        for (const char c : m_rest.first(digits)) {
            if (!isDigit(c))
                return std::nullopt;
            value = value * 10 + (c - '0');
        }
        if (value > maximum)
            return std::nullopt;
        m_rest = m_rest.sliced(digits);
        return value;
    }

    /// The digits behind a decimal point, at least one, as milliseconds.
    std::optional<int> fraction()
    {
        if (atEnd() || !isDigit(m_rest.front()))
            return std::nullopt;
        int value = 0;
        for (int weight = 100; !atEnd() && isDigit(m_rest.front()); weight /= 10) {
            value += (m_rest.front() - '0') * weight;
            m_rest = m_rest.sliced(1);
        }
        return value;
    }

private:
    QByteArrayView m_rest;
};

std::optional<qint64> parseDate(Scanner& scanner)
{
    const auto year = scanner.number(4, 9999);
    if (!year || !scanner.skip("-"))
        return std::nullopt;
    const auto month = scanner.number(2, 12);
    if (!month || !scanner.skip("-"))
        return std::nullopt;
    const auto day = scanner.number(2, 31);
    if (!day || !QDate::isValid(*year, *month, *day))
        return std::nullopt;
    return QDate(1970, 1, 1).daysTo(QDate(*year, *month, *day)) * msecsPerDay;
}

std::optional<qint64> parseClock(Scanner& scanner)
{
    const auto hour = scanner.number(2, 23);
    if (!hour || !scanner.skip(":"))
        return std::nullopt;
    const auto minute = scanner.number(2, 59);
    if (!minute)
        return std::nullopt;
    qint64 result = *hour * msecsPerHour + *minute * msecsPerMinute;
    if (scanner.skip(":")) {
        const auto second = scanner.number(2, 59);
        if (!second)
            return std::nullopt;
        result += *second * msecsPerSecond;
        if (scanner.skip(".,")) {
            const auto fraction = scanner.fraction();
            if (!fraction)
                return std::nullopt;
            result += *fraction;
        }
    }
    return result;
}

std::optional<qint64> parseOffset(Scanner& scanner)
{
    if (scanner.skip("Zz"))
        return 0;
    const bool west = scanner.skip("-");
    if (!west && !scanner.skip("+"))
        return std::nullopt;
    const auto hours = scanner.number(2, 14);
    if (!hours)
        return std::nullopt;
    qint64 result = *hours * msecsPerHour;
    if (scanner.skip(":") || !scanner.atEnd()) {
        const auto minutes = scanner.number(2, 59);
        if (!minutes)
            return std::nullopt;
        result += *minutes * msecsPerMinute;
    }
    return west ? -result : result;
}

} // namespace

Instant Instant::parse(QByteArrayView text)
{
    constexpr Instant malformed{.msecs = 0, .fault = Fault::Malformed};
    Scanner scanner(text);
    const auto date = parseDate(scanner);
    if (!date || !scanner.skip("Tt "))
        return malformed;
    const auto clock = parseClock(scanner);
    if (!clock)
        return malformed;
    if (scanner.atEnd())
        return {.msecs = 0, .fault = Fault::NoOffset};
    const auto offset = parseOffset(scanner);
    if (!offset || !scanner.atEnd())
        return malformed;

    const qint64 msecs = *date + *clock - *offset;
    if (msecs < 0)
        return {.msecs = 0, .fault = Fault::BeforeEpoch};
    return {.msecs = msecs, .fault = Fault::None};
}

} // namespace Review
