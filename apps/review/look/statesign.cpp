// SPDX-License-Identifier: MIT
#include "statesign.h"

#include <Hueloft/VectorIconEngine>

#include <QApplication>
#include <QPainter>
#include <QPalette>

namespace Review {

namespace {

void hatch(QPainter& painter, const QRectF& area, const QColor& line)
{
    painter.save();
    painter.setClipRect(area, Qt::IntersectClip);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(line, 1));
    constexpr double distance = 4;
    for (double x = area.left(); x < area.right() + area.height(); x += distance)
        painter.drawLine(QPointF(x, area.top()), QPointF(x - area.height(), area.bottom()));
    painter.restore();
}

} // namespace

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
        hatch(painter, area, line);
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
