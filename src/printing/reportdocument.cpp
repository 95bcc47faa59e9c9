// SPDX-License-Identifier: MIT
#include "reportdocument.h"

#include <QBuffer>
#include <QTextOption>
#include <QUrl>

#include <cmath>

using namespace Qt::StringLiterals;

namespace CorvelGui {

namespace {

constexpr qreal textPoints = 9;
constexpr qreal logicalPixelsPerInch = 96;

/// Photographs take a tenth as JPEG of what they take as PNG. What is transparent needs PNG.
QByteArray compressed(const QImage& picture)
{
    constexpr int photoQuality = 90;
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    const bool isPhoto = !picture.hasAlphaChannel();
    picture.save(&buffer, isPhoto ? "JPG" : "PNG", isPhoto ? photoQuality : -1);
    return bytes;
}

} // namespace

qreal ReportDocument::dotsOfMillimetres(qreal millimetres)
{
    constexpr qreal millimetresPerInch = 25.4;
    return millimetres * dotsPerInch / millimetresPerInch;
}

int ReportDocument::dotsOfPoints(qreal points)
{
    constexpr qreal pointsPerInch = 72;
    return qRound(points * dotsPerInch / pointsPerInch);
}

ReportDocument::ReportDocument(QObject* parent) : QTextDocument(parent)
{
    setUndoRedoEnabled(false);
    setDocumentMargin(0);
    QFont font = defaultFont();
    font.setPixelSize(dotsOfPoints(textPoints));
    font.setHintingPreference(QFont::PreferNoHinting);
    setDefaultFont(font);
    // A column keeps its width, whatever stands in it.
    QTextOption option = defaultTextOption();
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    setDefaultTextOption(option);
}

QTextImageFormat ReportDocument::addPicture(const QImage& picture, const QSizeF& room)
{
    const QSizeF meant =
        QSizeF(picture.deviceIndependentSize()) * dotsPerInch / logicalPixelsPerInch;
    const bool fits = meant.width() <= room.width() && meant.height() <= room.height();
    const QSizeF size = fits ? meant : meant.scaled(room, Qt::KeepAspectRatio);
    // No more pixels than there are dots.
    const QSize most(int(std::ceil(size.width())), int(std::ceil(size.height())));
    const bool isLarge = picture.width() > most.width();
    const QImage kept =
        isLarge ? picture.scaled(most, Qt::KeepAspectRatio, Qt::SmoothTransformation) : picture;
    const QString name = u"picture:%1"_s.arg(m_pictures.size());
    m_pictures.insert(name, compressed(kept));

    QTextImageFormat format;
    format.setName(name);
    format.setWidth(size.width());
    format.setHeight(size.height());
    return format;
}

QImage ReportDocument::picture(const QString& name) const
{
    return QImage::fromData(m_pictures.value(name));
}

QVariant ReportDocument::loadResource(int type, const QUrl& name)
{
    // Nothing else is loaded from anywhere.
    return type == ImageResource ? QVariant(picture(name.toString())) : QVariant();
}

} // namespace CorvelGui
