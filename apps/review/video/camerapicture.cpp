#include "camerapicture.h"

#include <QCoreApplication>
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
    case TrackState::NothingKnown:
        break;
    }
    return translated(QT_TRANSLATE_NOOP("Review::CameraPicture", "Nothing is known of this time"));
}

} // namespace

CameraPicture::CameraPicture(const Camera& of, const VideoFrame& frame)
    : camera(of.name.simplified()), image(frame.image)
{
    const bool hasPicture = frame.state == VideoFrame::State::Picture;
    time = of.times.exactDateTime(hasPicture ? frame.time : frame.asked);
    if (!hasPicture)
        message = explanation(frame, of.history.stateAt(frame.asked));
}

void CameraPicture::paintTexts(QPainter& painter, const QRect& area) const
{
    constexpr int smallest = 11;
    constexpr int largest = 30;
    QFont font = painter.font();
    font.setPixelSize(std::clamp(area.height() / 26, smallest, largest));
    painter.setFont(font);
    const QFontMetrics metrics(font);
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
          time);
    if (message.isEmpty())
        return;
    painter.setPen(QColor(190, 194, 198));
    painter.drawText(area.adjusted(margin, 3 * line.height(), -margin, -margin),
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

} // namespace Review
