// SPDX-License-Identifier: MIT
#include "releaseversion.h"

#include <algorithm>
#include <array>
#include <limits>

using namespace Qt::StringLiterals;

namespace CorvelGui {

namespace {

bool isDigit(QChar character)
{
    return character >= u'0' && character <= u'9';
}

// Takes a number from the begin of @p rest.
std::optional<qint32> takeNumber(QStringView& rest)
{
    QStringView digits = rest;
    const bool negative = digits.startsWith(u'-');
    if (negative || digits.startsWith(u'+'))
        digits = digits.mid(1);
    if (digits.isEmpty() || !isDigit(digits.front()))
        return {};

    using Limits = std::numeric_limits<qint32>;
    qint64 value = 0;
    while (!digits.isEmpty() && isDigit(digits.front())) {
        value = std::min(value * 10 + (digits.front().unicode() - u'0'), qint64(Limits::max()) + 1);
        digits = digits.mid(1);
    }
    rest = digits;
    return qint32(negative ? -value : std::min(value, qint64(Limits::max())));
}

} // namespace

std::optional<ReleaseVersion> ReleaseVersion::parse(const QString& text)
{
    std::array<qint32, 4> numbers{};
    const QString trimmed = text.trimmed();
    QStringView rest = trimmed;
    for (size_t i = 0; i < numbers.size(); ++i) {
        if (i > 0) {
            if (!rest.startsWith(u'.'))
                break;
            rest = rest.mid(1);
        }
        const std::optional<qint32> number = takeNumber(rest);
        if (!number && i == 0)
            return {};
        if (!number)
            break;
        numbers[i] = *number;
    }
    return ReleaseVersion{
        .major = numbers[0], .minor = numbers[1], .build = numbers[2], .revision = numbers[3]};
}

QString ReleaseVersion::text(bool withRevision) const
{
    const QString three = u"%1.%2.%3"_s.arg(major).arg(minor).arg(build);
    return withRevision ? three + u'.' + QString::number(revision) : three;
}

} // namespace CorvelGui
