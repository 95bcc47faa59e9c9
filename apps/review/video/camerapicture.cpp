// SPDX-License-Identifier: MIT
#include "camerapicture.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFontMetrics>
#include <QPainter>

#include <algorithm>

namespace Review {

namespace {

QString translated(const char* text)
{
    return QCoreApplication::translate("Review::CameraPicture", text);
}

QString explanation(const VideoFrame& frame, TrackState state)
{
    if (frame.state == VideoFrame::State::Fault)
        return translated(QT_TRANSLATE_NOOP("Review::CameraPicture", "No picture: %1"))
            .arg(frame.text);
    switch (state) {
    case TrackState::Recorded:
        return translated(QT_TRANSLATE_NOOP("Review::CameraPicture", "No picture"));
    case TrackState::Gap:
        return translated(QT_TRANSLATE_NOOP("Review::CameraPicture", "No recording at this time"));
    case TrackState::Loading:
        return translated(QT_TRANSLATE_NOOP("Review::CameraPicture",
                                            "What was recorded at this time is not known yet"));
    case TrackState::NothingKnown:
        break;
    }
    return translated(QT_TRANSLATE_NOOP("Review::CameraPicture", "Nothing is known of this time"));
}

/// Of a size that fits a picture of that height.
QFont textFont(QFont font, int height)
{
    constexpr int smallest = 11;
    constexpr int largest = 30;
    font.setPixelSize(std::clamp(height / 26, smallest, largest));
    return font;
}

} // namespace

CameraPicture::CameraPicture(const Camera& of, const VideoFrame& frame)
    : camera(of.name.simplified()), image(frame.image)
{
    const bool hasPicture = frame.state == VideoFrame::State::Picture;
    time = of.times.exactDateTime(hasPicture ? frame.time : frame.asked);
    if (hasPicture) {
        instant = frame.time;
        offset = of.times.zone().offsetFromUtc(QDateTime::fromMSecsSinceEpoch(instant, Qt::UTC));
        return;
    }
    message = explanation(frame, of.history.stateAt(frame.asked));
}

/// In the uppermost lines of @p area. Returns how high a line is.
int CameraPicture::paintNameAndTime(QPainter& painter, const QRect& area) const
{
    const QFontMetrics metrics(painter.font());
    const int margin = metrics.height() / 2;
    const QRect line(area.left() + margin, area.top() + margin, area.width() - 2 * margin,
                     metrics.height());
    // Legible on any picture.
    const auto write = [&painter](const QRect& where, int flags, const QString& text) {
        painter.setPen(Qt::black);
        painter.drawText(where.translated(1, 1), flags, text);
        painter.setPen(Qt::white);
        painter.drawText(where, flags, text);
    };
    const int timeWidth = metrics.horizontalAdvance(time) + 2;
    QRect name = line;
    // In a narrow picture one below the other.
    const bool isNarrow = metrics.horizontalAdvance(camera) + timeWidth + 2 * margin > line.width();
    if (!isNarrow)
        name.setWidth(line.width() - timeWidth - margin);
    write(name, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
          metrics.elidedText(camera, Qt::ElideRight, name.width()));
    write(isNarrow ? line.translated(0, line.height()) : line,
          (isNarrow ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter | Qt::TextSingleLine,
          metrics.elidedText(time, Qt::ElideLeft, line.width()));
    return line.height();
}

void CameraPicture::paintTexts(QPainter& painter, const QRect& area) const
{
    // As in the file of the picture.
    painter.setLayoutDirection(Qt::LeftToRight);
    painter.setFont(textFont(painter.font(), area.height()));
    const int line = paintNameAndTime(painter, area);
    if (message.isEmpty())
        return;
    const int margin = line / 2;
    painter.setPen(QColor(190, 194, 198));
    painter.drawText(area.adjusted(margin, 3 * line, -margin, -margin),
                     Qt::AlignHCenter | (image.isNull() ? Qt::AlignVCenter : Qt::AlignTop) |
                         Qt::TextWordWrap,
                     message);
}

QImage CameraPicture::withTexts() const
{
    QImage picture = image;
    if (picture.isNull()) {
        picture = QImage(size, QImage::Format_RGB32);
        picture.fill(background);
    }
    QPainter painter(&picture);
    paintTexts(painter, picture.rect());
    return picture;
}

QImage CameraPicture::withCaption() const
{
    const QFont font = textFont({}, image.height());
    const QFontMetrics metrics(font);
    // Both in one line, or in a narrow picture in two.
    const int width = metrics.horizontalAdvance(camera) + metrics.horizontalAdvance(time) + 2;
    const bool isNarrow = width + 2 * metrics.height() > image.width();
    QImage whole(image.width(), image.height() + metrics.height() * (isNarrow ? 3 : 2),
                 QImage::Format_RGB32);
    whole.fill(background);
    QPainter painter(&whole);
    painter.setFont(font);
    painter.drawImage(0, 0, image);
    paintNameAndTime(painter, whole.rect().adjusted(0, image.height(), 0, 0));
    return whole;
}

} // namespace Review
