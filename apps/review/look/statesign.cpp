#include "statesign.h"

#include <Hueloft/VectorIconEngine>

#include <QApplication>
#include <QPainter>
#include <QPalette>

namespace Review {

QString StateSign::text(TrackState state)
{
    switch (state) {
    case TrackState::Recorded:
        return tr("Recorded");
    case TrackState::Gap:
        return tr("No recording");
    case TrackState::Loading:
        return tr("Not known yet");
    case TrackState::NothingKnown:
        break;
    }
    return tr("Nothing known");
}

void StateSign::paint(QPainter& painter, const QRectF& area, TrackState state, const QColor& line)
{
    constexpr QColor recorded(12, 160, 130);
    switch (state) {
    case TrackState::Recorded:
        painter.fillRect(area, recorded);
        break;
    case TrackState::Gap:
        painter.setPen(QPen(line, 1));
        painter.drawRect(area.adjusted(0.5, 0.5, -0.5, -0.5));
        break;
    case TrackState::Loading:
        painter.fillRect(area, QBrush(line, Qt::BDiagPattern));
        break;
    case TrackState::NothingKnown:
        painter.setPen(QPen(line, 1, Qt::DotLine));
        painter.drawLine(QPointF(area.left(), area.center().y()),
                         QPointF(area.right(), area.center().y()));
        break;
    }
}

QIcon StateSign::icon(TrackState state)
{
    const auto draw = [state](QPainter& painter, const QRect& square, QIcon::Mode mode) {
        const bool selected = mode == QIcon::Selected;
        QColor line =
            QApplication::palette().color(selected ? QPalette::HighlightedText : QPalette::Text);
        if (!selected)
            line.setAlpha(150);
        const QRectF area(square);
        const double inset = area.height() / 4;
        painter.setRenderHint(QPainter::Antialiasing, false);
        StateSign::paint(painter, area.adjusted(1, inset, -1, -inset), state, line);
    };
    return QIcon(new Hueloft::VectorIconEngine(draw));
}

} // namespace Review
