// SPDX-License-Identifier: MIT
#include "stringhelper.h"

#include <QFontMetrics>
#include <QLocale>
#include <QStringList>
#include <QTextBoundaryFinder>
#include <QTextDocument>

#include <algorithm>
#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace CorvelGui {

namespace {

constexpr QChar ellipsis = u'\u2026';

constexpr qsizetype longestNameInBytes = 240; // of 255, for what is written beside a file
constexpr qsizetype longestSuffix = 10;

bool isSpaceOrDot(QChar character)
{
    return character == u'.' || character.isSpace();
}

/// As much of the begin of @p text as fits into both bounds, in whole characters of a reader.
QString beginOf(const QString& text, qsizetype units, qsizetype bytes)
{
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    qsizetype end = 0;
    for (qsizetype next = finder.toNextBoundary(); next > 0 && next <= units;
         next = finder.toNextBoundary()) {
        bytes -= QStringView(text).mid(end, next - end).toUtf8().size();
        if (bytes < 0)
            break;
        end = next;
    }
    return text.left(end);
}

/// The visible characters of @p text that may stand in a name, on one line.
QString permitted(const QString& text)
{
    QString name;
    for (const char32_t character : text.toUcs4()) {
        const QChar::Category category = QChar::category(character);
        const bool invisible =
            category >= QChar::Other_Control && category <= QChar::Other_NotAssigned;
        if (QChar::isSpace(character))
            name += u' ';
        else if (character < 128 && u"<>:\"/\\|?*"_s.contains(QChar(char16_t(character))))
            name += u'_';
        else if (!invisible && character != QChar::ReplacementCharacter)
            name += QString::fromUcs4(&character, 1);
    }
    return name.simplified();
}

/// Windows drops blanks and dots at the end; at the begin a dot hides a file.
QString withoutDotsAtEnds(const QString& name)
{
    const auto begin = std::ranges::find_if_not(name, isSpaceOrDot);
    const auto end = std::find_if_not(name.crbegin(), name.crend(), isSpaceOrDot).base();
    return begin < end ? QString(begin, end - begin) : QString();
}

QString shortened(const QString& name, qsizetype longest)
{
    if (name.size() <= longest && name.toUtf8().size() <= longestNameInBytes)
        return name;
    QString suffix = name.mid(std::max(name.lastIndexOf(u'.'), qsizetype(0)));
    if (suffix.size() > longestSuffix)
        suffix.clear();
    return withoutDotsAtEnds(beginOf(name.chopped(suffix.size()), longest - suffix.size(),
                                     longestNameInBytes - suffix.toUtf8().size()) +
                             suffix);
}

bool isNameOfDevice(const QString& name)
{
    static const QStringList devices{u"con"_s, u"prn"_s,    u"aux"_s,
                                     u"nul"_s, u"conin$"_s, u"conout$"_s};
    const QString base = name.left(name.indexOf(u'.')).trimmed().toLower();
    if (devices.contains(base))
        return true;
    return base.size() == 4 && (base.startsWith(u"com"_s) || base.startsWith(u"lpt"_s)) &&
           (base.back().isDigit() || u"\u00b9\u00b2\u00b3"_s.contains(base.back()));
}

} // namespace

QString StringHelper::elidedInMiddle(const QString& text, qsizetype longest)
{
    if (text.size() <= longest || longest <= 0)
        return text.left(std::max(longest, qsizetype(0)));
    const qsizetype shown = longest - 1;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    const auto isBoundary = [&](qsizetype position) {
        finder.setPosition(position);
        return finder.isAtBoundary();
    };
    qsizetype head = (shown + 1) / 2;
    while (!isBoundary(head))
        --head;
    qsizetype tail = text.size() - shown / 2;
    while (!isBoundary(tail))
        ++tail;
    return text.left(head) + ellipsis + text.mid(tail);
}

QString StringHelper::elidedInMiddle(const QString& text, const QFontMetrics& metrics, int width)
{
    QString line = text;
    std::ranges::replace_if(
        line, [](QChar character) { return character.isSpace(); }, u' ');
    return metrics.elidedText(line, Qt::ElideMiddle, width);
}

QCollator StringHelper::naturalOrder()
{
    // The order of the C locale is that of bytes, whatever is asked of it.
    const QLocale locale;
    QCollator order(locale.language() == QLocale::C ? QLocale(QLocale::English) : locale);
    order.setNumericMode(true);
    order.setCaseSensitivity(Qt::CaseInsensitive);
    return order;
}

int StringHelper::compareNaturally(const QString& one, const QString& other)
{
    return naturalOrder().compare(one, other);
}

QString StringHelper::size(qint64 bytes)
{
    if (bytes < 0)
        return {};
    constexpr qint64 step = 1024;
    qint64 unit = 1;
    while (unit <= std::numeric_limits<qint64>::max() / step && bytes / unit >= step)
        unit *= step;
    const double count = double(bytes) / double(unit);
    const double tenths = std::round(count * 10);
    if (tenths < 100 && std::fmod(tenths, 10) != 0)
        return QLocale().formattedDataSize(bytes, 1);
    // Rounded up it may fill the next unit.
    return QLocale().formattedDataSize(count >= step - 0.5 ? unit * step : bytes, 0);
}

QString StringHelper::duration(qint64 msecs)
{
    constexpr qint64 perSecond = 1000;
    constexpr qint64 perMinute = 60;
    constexpr qint64 perHour = 60 * perMinute;
    constexpr qint64 perDay = 24 * perHour;

    const QLocale locale;
    if (msecs < perMinute * perSecond) {
        const qint64 length = std::max<qint64>(msecs, 0);
        const int decimals = length % perSecond == 0 ? 0 : 3;
        return tr("%1 s").arg(locale.toString(double(length) / perSecond, 'f', decimals));
    }
    const qint64 seconds = msecs / perSecond + (msecs % perSecond >= perSecond / 2 ? 1 : 0);
    QStringList parts;
    const auto add = [&](const QString& unit, qint64 count) {
        if (count != 0)
            parts << unit.arg(locale.toString(count));
    };
    add(tr("%1 d"), seconds / perDay);
    add(tr("%1 h"), seconds / perHour % 24);
    add(tr("%1 min"), seconds / perMinute % 60);
    add(tr("%1 s"), seconds % perMinute);
    return parts.join(u' ');
}

QString StringHelper::safeFileName(const QString& text, const QString& fallback, qsizetype longest)
{
    const QString name = shortened(withoutDotsAtEnds(permitted(text)), longest);
    if (name.isEmpty())
        return fallback;
    return isNameOfDevice(name) ? shortened(u'_' + name, longest) : name;
}

QString StringHelper::plainToolTip(const QString& text)
{
    return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text) : text;
}

QString StringHelper::plainLabel(const QString& text)
{
    return QString(text).replace(u'&', u"&&"_s);
}

} // namespace CorvelGui
