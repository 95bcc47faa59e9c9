// SPDX-License-Identifier: MIT
#include "timecorrection.h"

#include <Corvel/TimeZoneHelper>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

#include <cmath>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace Review {

namespace {

/// Clocks that began anew show the year 1970 or 2000.
constexpr double longestOffset = 100.0 * 366 * 24 * 60 * 60 * 1'000;

} // namespace

QString TimeCorrection::offsetText(qint64 offset)
{
    const qint64 msecs = std::abs(offset);
    QString text = u"%1%2:%3:%4"_s.arg(offset < 0 ? u"-"_s : u"+"_s)
                       .arg(msecs / 3'600'000)
                       .arg(msecs / 60'000 % 60, 2, 10, QChar(u'0'))
                       .arg(msecs / 1'000 % 60, 2, 10, QChar(u'0'));
    if (msecs % 1'000 != 0)
        text += u".%1"_s.arg(msecs % 1'000, 3, 10, QChar(u'0'));
    return text;
}

std::optional<qint64> TimeCorrection::parseOffset(const QString& text)
{
    // Also with the minus sign of typesetters.
    static const QRegularExpression pattern(
        u"^\\s*([+\u2212-]?)\\s*(?:(\\d{1,7}):(\\d\\d?):(?=\\d\\d?(?:\\D|$)))?"
        "(\\d{1,10}(?:[.,]\\d{1,3})?)\\s*$"_s);
    const QRegularExpressionMatch match = pattern.match(text);
    if (!match.hasMatch())
        return {};
    const bool hasHours = !match.capturedView(2).isEmpty();
    const double minutes = match.captured(3).toDouble();
    const double seconds = match.captured(4).replace(u',', u'.').toDouble();
    const double msecs = ((match.captured(2).toDouble() * 60 + minutes) * 60 + seconds) * 1'000;
    if (msecs > longestOffset || (hasHours && (minutes >= 60 || seconds >= 60)))
        return {};
    const qint64 offset = std::llround(msecs);
    return match.captured(1).isEmpty() || match.captured(1) == u'+' ? offset : -offset;
}

QString FolderCorrections::toText() const
{
    QJsonObject all;
    for (const auto& [folder, cameras] : folders.asKeyValueRange()) {
        QJsonObject ofFolder;
        for (const auto& [camera, correction] : cameras.asKeyValueRange())
            if (!correction.isNone())
                ofFolder.insert(camera, QJsonArray{correction.zone, correction.offset});
        if (!ofFolder.isEmpty())
            all.insert(folder, ofFolder);
    }
    return all.isEmpty() ? QString()
                         : QString::fromUtf8(QJsonDocument(all).toJson(QJsonDocument::Compact));
}

FolderCorrections FolderCorrections::fromText(const QString& text)
{
    FolderCorrections corrections;
    const QJsonObject all = QJsonDocument::fromJson(text.toUtf8()).object();
    for (auto folder = all.begin(); folder != all.end(); ++folder) {
        const QJsonObject cameras = folder.value().toObject();
        for (auto camera = cameras.begin(); camera != cameras.end(); ++camera) {
            const QString zone = camera.value()[0].toString();
            const double offset = camera.value()[1].toDouble();
            const TimeCorrection correction{
                zone.isEmpty() ? zone : Corvel::TimeZoneHelper::getTimeZone(zone),
                std::abs(offset) <= longestOffset ? qint64(offset) : 0};
            if (!correction.isNone())
                corrections.folders[folder.key()].insert(camera.key(), correction);
        }
    }
    return corrections;
}

} // namespace Review
