// SPDX-License-Identifier: MIT
#include "piconhelperbase.h"

#include <QFileInfo>
#include <QImage>
#include <QImageReader>
#include <QPixmap>

using namespace Qt::StringLiterals;

namespace Hueloft {

namespace {

template <typename Change>
QImage changedPixels(const QImage& image, Change change)
{
    QImage result = image.convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < result.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(result.scanLine(y));
        for (int x = 0; x < result.width(); ++x)
            line[x] = change(line[x]);
    }
    return result;
}

QRgb greyed(QRgb pixel)
{
    const int grey = qGray(pixel);
    return qRgba(grey, grey, grey, qAlpha(pixel) / 2);
}

QRgb brightened(QRgb pixel)
{
    const auto up = [](int channel) {
        return channel + (255 - channel) / 3;
    };
    return qRgba(up(qRed(pixel)), up(qGreen(pixel)), up(qBlue(pixel)), qAlpha(pixel));
}

QString highDensityPath(const QString& path)
{
    const QFileInfo file(path);
    return u"%1/%2@2x.%3"_s.arg(file.path(), file.completeBaseName(), file.suffix());
}

void addModes(QIcon& icon, const QString& path, qreal ratio)
{
    QImage image;
    if (!QFileInfo::exists(path) || !QImageReader(path).read(&image))
        return;
    const auto add = [&icon, ratio](const QImage& picture, QIcon::Mode mode) {
        QPixmap pixmap = QPixmap::fromImage(picture);
        pixmap.setDevicePixelRatio(ratio);
        icon.addPixmap(pixmap, mode);
    };
    add(image, QIcon::Normal);
    add(image, QIcon::Selected);
    add(changedPixels(image, greyed), QIcon::Disabled);
    add(changedPixels(image, brightened), QIcon::Active);
}

} // namespace

QIcon PIconHelperBase::GetIcon(const QString& path, bool withModes)
{
    if (path.isEmpty() || !QImageReader(path).canRead())
        return QIcon();
    if (!withModes)
        return QIcon(path);

    QIcon icon;
    addModes(icon, path, 1);
    addModes(icon, highDensityPath(path), 2);
    return icon;
}

} // namespace Hueloft
