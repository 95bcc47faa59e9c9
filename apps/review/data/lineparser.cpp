// SPDX-License-Identifier: MIT
#include "lineparser.h"

#include "instant.h"

#include <algorithm>
#include <cmath>

using CorvelGui::TimeSpan;
using namespace Qt::StringLiterals;

namespace Review {

namespace {

constexpr const char* lineContext = "Review::LineParser";

QString excerpt(QByteArrayView text)
{
    constexpr qsizetype longest = 40;
    const QString whole = QString::fromUtf8(text.first(std::min(text.size(), 4 * longest)));
    const QString start = whole.left(longest).simplified();
    return whole.size() > longest ? start + u"…"_s : start;
}

} // namespace

LineFault LineParser::parseTime(QByteArrayView text, qint64& result)
{
    const Instant instant = Instant::parse(text);
    result = instant.msecs;
    switch (instant.fault) {
    case Instant::Fault::Malformed:
        return {lineContext, QT_TR_NOOP("“%1” is not an ISO 8601 date and time"), {excerpt(text)}};
    case Instant::Fault::NoOffset:
        return {lineContext,
                QT_TR_NOOP("“%1” has neither an offset from UTC nor a Z"),
                {excerpt(text)}};
    case Instant::Fault::BeforeEpoch:
        return {lineContext, QT_TR_NOOP("“%1” lies before the year 1970"), {excerpt(text)}};
    case Instant::Fault::None:
        break;
    }
    return {};
}

LineFault LineParser::parseSeconds(QByteArrayView text, qint64& msecs)
{
    constexpr double longest = 1e9;
    bool isNumber = true;
    const double seconds = text.isEmpty() ? 0.0 : text.toDouble(&isNumber);
    if (!isNumber || !(seconds >= 0.0) || seconds > longest)
        return {lineContext, QT_TR_NOOP("“%1” is not a number of seconds"), {excerpt(text)}};
    msecs = std::llround(seconds * 1'000);
    return {};
}

LineFault LineParser::parseSeverity(QByteArrayView text, std::optional<Severity>& severity)
{
    severity.reset();
    if (text.isEmpty())
        return {};
    for (std::size_t i = 0; i < severityWords.size(); ++i) {
        const char number = char('0' + i);
        if (text == QByteArrayView(&number, 1) ||
            text.compare(severityWords[i], Qt::CaseInsensitive) == 0) {
            severity = Severity(i);
            return {};
        }
    }
    return {lineContext,
            QT_TR_NOOP("“%1” is neither none nor information, warning or alarm"),
            {excerpt(text)}};
}

LineFault LineParser::parseTrackSpan(const CsvTable::Values& values, QString& track, TimeSpan& span)
{
    track = QString::fromUtf8(values[0]);
    if (track.isEmpty())
        return {lineContext, QT_TR_NOOP("the camera has no name")};
    if (const LineFault fault = parseTime(values[1], span.begin); !fault.isEmpty())
        return fault;
    if (const LineFault fault = parseTime(values[2], span.end); !fault.isEmpty())
        return fault;
    if (span.end < span.begin)
        return {lineContext, QT_TR_NOOP("the end lies before the begin")};
    if (span.isEmpty())
        return {lineContext, QT_TR_NOOP("begin and end are the same instant")};
    return {};
}

} // namespace Review
