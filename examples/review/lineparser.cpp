#include "lineparser.h"

#include "instant.h"

#include <algorithm>

using CorvelGui::TimeSpan;
using namespace Qt::StringLiterals;

namespace Review {

namespace {

QString excerpt(QByteArrayView text)
{
    constexpr qsizetype longest = 40;
    const QString whole = QString::fromUtf8(text.first(std::min(text.size(), 4 * longest)));
    const QString start = whole.left(longest).simplified();
    return whole.size() > longest ? start + u"…"_s : start;
}

} // namespace

QString LineParser::parseTime(QByteArrayView text, qint64& result)
{
    const Instant instant = Instant::parse(text);
    result = instant.msecs;
    switch (instant.fault) {
    case Instant::Fault::Malformed:
        return tr("“%1” is not an ISO 8601 date and time").arg(excerpt(text));
    case Instant::Fault::NoOffset:
        return tr("“%1” has neither an offset from UTC nor a Z").arg(excerpt(text));
    case Instant::Fault::BeforeEpoch:
        return tr("“%1” lies before the year 1970").arg(excerpt(text));
    case Instant::Fault::None:
        break;
    }
    return {};
}

QString LineParser::parseTrackSpan(const CsvTable::Values& values, QString& track, TimeSpan& span)
{
    track = QString::fromUtf8(values[0]);
    if (track.isEmpty())
        return tr("the track has no name");
    if (const QString fault = parseTime(values[1], span.begin); !fault.isEmpty())
        return fault;
    if (const QString fault = parseTime(values[2], span.end); !fault.isEmpty())
        return fault;
    if (span.end < span.begin)
        return tr("the end lies before the begin");
    if (span.isEmpty())
        return tr("begin and end are the same instant");
    return {};
}

} // namespace Review
