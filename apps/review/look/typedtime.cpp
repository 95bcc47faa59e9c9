// SPDX-License-Identifier: MIT
#include "typedtime.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace Review {

namespace {

QDate dateOf(const QRegularExpressionMatch& match, TimeFormat::Order order)
{
    const int first = match.captured(u"first"_s).toInt();
    const int second = match.captured(u"second"_s).toInt();
    const int third = match.captured(u"third"_s).toInt();
    if (order == TimeFormat::Order::YearFirst || match.capturedLength(u"first"_s) == 4)
        return QDate(first, second, third);
    return order == TimeFormat::Order::DayFirst ? QDate(third, second, first)
                                                : QDate(third, first, second);
}

QTime timeOf(const QRegularExpressionMatch& match)
{
    return QTime(match.captured(u"hour"_s).toInt(), match.captured(u"minute"_s).toInt(),
                 match.captured(u"seconds"_s).toInt(),
                 match.captured(u"fraction"_s).leftJustified(3, u'0').toInt());
}

} // namespace

std::optional<QDateTime> readTypedTime(const QString& text, const TimeFormat& format,
                                       const QDateTime& shown)
{
    static const QRegularExpression pattern(
        u"^(?<date>(?<first>\\d{1,4})(?<mark>[./-])(?<second>\\d{1,2})\\k<mark>(?<third>\\d{1,4}))?"
        "(?:^|$| )"
        "(?<time>(?<hour>\\d{1,2}):(?<minute>\\d{1,2})"
        "(?::(?<seconds>\\d{1,2})(?:[.,](?<fraction>\\d{1,3}))?)?)?$"_s);
    const QRegularExpressionMatch match = pattern.match(text.simplified());
    if (!match.hasMatch() || !match.capturedLength())
        return {};
    const QDate date = match.hasCaptured(u"date"_s) ? dateOf(match, format.order) : shown.date();
    const QTime time = match.hasCaptured(u"time"_s) ? timeOf(match) : shown.time();
    if (!date.isValid() || !time.isValid())
        return {};
    return QDateTime(date, time, Qt::UTC);
}

} // namespace Review
