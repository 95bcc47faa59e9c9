// SPDX-License-Identifier: MIT
#include "pathpattern.h"

#include "timeinpath.h"

#include <algorithm>
#include <array>

namespace Review {

namespace {

enum Field { Camera, Year, Month, Day, Hour, Minute, Second, Millisecond, FieldCount };

struct Placeholder
{
    QStringView text;
    qsizetype digits; ///< 0 for a name of any length
};

constexpr std::array<Placeholder, FieldCount> placeholders = {{{u"{camera}", 0},
                                                               {u"{yyyy}", 4},
                                                               {u"{MM}", 2},
                                                               {u"{dd}", 2},
                                                               {u"{HH}", 2},
                                                               {u"{mm}", 2},
                                                               {u"{ss}", 2},
                                                               {u"{zzz}", 3}}};

using Values = std::array<QStringView, FieldCount>;

/// Whether the parts make up the whole of @p text; what stands for the placeholders goes to
/// @p values.
bool matches(const PathPart* part, const PathPart* end, QStringView text, Values& values)
{
    if (part == end)
        return text.isEmpty();
    if (part->field < 0)
        return text.startsWith(part->literal) &&
               matches(part + 1, end, text.sliced(part->literal.size()), values);
    const qsizetype digits = placeholders[size_t(part->field)].digits;
    const auto belongs = [digits](QChar character) {
        return digits > 0 ? character >= u'0' && character <= u'9' : character != u'/';
    };
    const qsizetype all = std::ranges::find_if_not(text, belongs) - text.begin();
    const qsizetype longest = digits > 0 ? std::min(all, digits) : all;
    const qsizetype shortest = digits > 0 ? digits : 1;
    for (qsizetype length = longest; length >= shortest; --length) {
        values[size_t(part->field)] = text.first(length);
        if (matches(part + 1, end, text.sliced(length), values))
            return true;
    }
    return false;
}

} // namespace

PathPattern::PathPattern(const QString& pattern)
{
    for (QStringView rest = pattern; !rest.isEmpty();) {
        const auto isNext = [rest](const Placeholder& one) {
            return rest.startsWith(one.text);
        };
        const auto known = std::ranges::find_if(placeholders, isNext);
        if (known != placeholders.end()) {
            m_parts.append(PathPart{.field = int(known - placeholders.begin())});
            rest = rest.sliced(known->text.size());
            continue;
        }
        if (m_parts.isEmpty() || m_parts.last().field >= 0)
            m_parts.append(PathPart{});
        m_parts.last().literal += rest.front();
        rest = rest.sliced(1);
    }
}

bool PathPattern::isValid() const
{
    const auto has = [this](Field field) {
        return std::ranges::count(m_parts, int(field), &PathPart::field);
    };
    return m_parts.isEmpty() || (has(Year) && has(Month) && has(Day) && has(Camera) <= 1);
}

std::optional<PathPattern::Match> PathPattern::match(const QString& path) const
{
    if (m_parts.isEmpty()) {
        const std::optional<WallTime> begin = timeInPath(path);
        return begin ? std::optional(Match{.begin = *begin}) : std::nullopt;
    }
    Values values;
    const PathPart* const parts = m_parts.constData();
    const auto number = [&values](Field field) {
        return values[field].toInt();
    };
    for (qsizetype from = 0; from >= 0 && from < path.size();) {
        values = {};
        if (matches(parts, parts + m_parts.size(), QStringView(path).sliced(from), values)) {
            const QDate date(number(Year), number(Month), number(Day));
            const QTime time(number(Hour), number(Minute), number(Second), number(Millisecond));
            if (!date.isValid() || !time.isValid())
                return {};
            return Match{{QDateTime(date, time, Qt::UTC), {}}, values[Camera].toString()};
        }
        const qsizetype slash = path.indexOf(u'/', from);
        from = slash < 0 ? -1 : slash + 1;
    }
    return {};
}

} // namespace Review
