#include "pathpattern.h"

#include <QStringList>

#include <utility>

using namespace Qt::StringLiterals;

namespace Review {

namespace {

constexpr std::pair<const char*, const char*> placeholders[] = {
    {"camera", "(?<camera>[^/]+)"}, {"yyyy", "(?<yyyy>\\d{4})"}, {"MM", "(?<MM>\\d\\d)"},
    {"dd", "(?<dd>\\d\\d)"},        {"HH", "(?<HH>\\d\\d)"},     {"mm", "(?<mm>\\d\\d)"},
    {"ss", "(?<ss>\\d\\d)"},        {"zzz", "(?<zzz>\\d{3})"}};

QRegularExpression expressionOf(const QString& pattern)
{
    QString text = QRegularExpression::escape(pattern);
    for (const auto& [name, expression] : placeholders)
        text.replace(QRegularExpression::escape(u'{' + QString::fromLatin1(name) + u'}'),
                     QString::fromLatin1(expression));
    return QRegularExpression(u"(?:^|/)"_s + text + u'$');
}

std::optional<WallTime> dateAndTime(const QString& path)
{
    // The parts of the time may be of other folders than the date. Only behind a T is a sign that
    // of an offset, and not of what comes next in the name.
    static const QRegularExpression pattern(
        u"(?<!\\d)(?<yyyy>(?:19|20)\\d\\d)(?<s>[-_./]?)(?<MM>0[1-9]|1[0-2])\\k<s>"
        "(?<dd>0[1-9]|[12]\\d|3[01])(?<T>[T_ ./-]{0,3})(?<HH>[01]\\d|2[0-3])[-_.:/h]?"
        "(?<mm>[0-5]\\d)(?:[-_.:/m]?(?<ss>[0-5]\\d))?(?!\\d)(?:[.,](?<zzz>\\d{3})(?!\\d))?"
        "(?<zone>Z|[+-](?:[01]\\d):?[0-5]\\d(?!\\d))?"_s);
    const QRegularExpressionMatch match = pattern.match(path);
    const auto number = [&match](QStringView name) {
        return match.captured(name).toInt();
    };
    const QDate date(number(u"yyyy"), number(u"MM"), number(u"dd"));
    if (!match.hasMatch() || !date.isValid())
        return {};
    WallTime time{
        .clock = QDateTime(date, QTime(number(u"HH"), number(u"mm"), number(u"ss"), number(u"zzz")),
                           Qt::UTC)};
    const QString zone = match.captured(u"zone").remove(u':');
    if (zone == u'Z')
        time.offset = 0;
    else if (!zone.isEmpty() && match.captured(u"T") == u'T')
        time.offset = (zone.mid(1, 2).toInt() * 60 + zone.mid(3, 2).toInt()) *
                      (zone.startsWith(u'-') ? -60 : 60);
    return time;
}

std::optional<WallTime> sinceTheEpoch(const QString& path)
{
    static const QRegularExpression pattern(u"(?<!\\d)(1\\d{9})(\\d{3})?(?!\\d)"_s);
    const QRegularExpressionMatch match = pattern.match(path);
    if (!match.hasMatch())
        return {};
    const qint64 msecs = match.captured(1).toLongLong() * 1'000 + match.captured(2).toLongLong();
    return WallTime{QDateTime::fromMSecsSinceEpoch(msecs, Qt::UTC), 0};
}

} // namespace

PathPattern::PathPattern() = default;

PathPattern::PathPattern(const QString& pattern)
    : m_expression(expressionOf(pattern)), m_isOwn(true)
{}

bool PathPattern::isValid() const
{
    const QStringList names = m_expression.namedCaptureGroups();
    return !m_isOwn || (m_expression.isValid() && names.contains(u"yyyy"_s) &&
                        names.contains(u"MM"_s) && names.contains(u"dd"_s));
}

std::optional<PathPattern::Match> PathPattern::match(const QString& path) const
{
    if (!m_isOwn) {
        // What is nearest to the file tells most of it.
        const QStringList parts = path.split(u'/');
        for (const auto timeIn : {dateAndTime, sinceTheEpoch})
            for (qsizetype first = parts.size() - 1; first >= 0; --first)
                if (const auto time = timeIn(parts.sliced(first).join(u'/')))
                    return Match{.begin = *time};
        return {};
    }
    const QRegularExpressionMatch match = m_expression.match(path);
    const auto number = [&match](QStringView name) {
        return match.captured(name).toInt();
    };
    const QDate date(number(u"yyyy"), number(u"MM"), number(u"dd"));
    const QTime time(number(u"HH"), number(u"mm"), number(u"ss"), number(u"zzz"));
    if (!match.hasMatch() || !date.isValid() || !time.isValid())
        return {};
    return Match{{QDateTime(date, time, Qt::UTC), {}}, match.captured(u"camera")};
}

} // namespace Review
