// SPDX-License-Identifier: MIT
#include "eventicons.h"

#include <Hueloft/POrvGuiTheme>
#include <Hueloft/VectorIconEngine>

#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace Review {

namespace {

constexpr qreal units = 16; // side of the square in which the outlines are given

QPainterPath disc(QPointF center, qreal radiusX, qreal radiusY)
{
    QPainterPath path;
    path.addEllipse(center, radiusX, radiusY);
    return path;
}

QPainterPath disc(QPointF center, qreal radius)
{
    return disc(center, radius, radius);
}

QPainterPath rectangle(const QRectF& area, qreal radius = 0)
{
    QPainterPath path;
    path.addRoundedRect(area, radius, radius);
    return path;
}

QPainterPath polygon(const QPolygonF& corners)
{
    QPainterPath path;
    path.addPolygon(corners);
    path.closeSubpath();
    return path;
}

QPainterPath person()
{
    QPainterPath body(QPointF(2.2, 14.8));
    body.cubicTo(2.2, 10.4, 4.6, 8.6, 8, 8.6);
    body.cubicTo(11.4, 8.6, 13.8, 10.4, 13.8, 14.8);
    body.closeSubpath();
    body.addPath(disc({8, 4.4}, 3.2));
    return body;
}

QPainterPath vehicle()
{
    const QPainterPath cabin = polygon({{3, 8}, {5, 3.4}, {10.8, 3.4}, {13, 8}});
    const QPainterPath windows =
        rectangle({5, 5, 2.3, 2.4}).united(polygon({{8.5, 5}, {10, 5}, {11.2, 7.4}, {8.5, 7.4}}));
    QPainterPath path = cabin.united(rectangle({1, 7.4, 14, 4.8}, 1.4)).subtracted(windows);
    for (const QPointF& wheel : {QPointF(4.4, 12), QPointF(11.6, 12)})
        path = path.subtracted(disc(wheel, 2.6)).united(disc(wheel, 1.9));
    return path;
}

QPainterPath animal()
{
    QPainterPath paw = disc({8, 11.2}, 3.9, 3.2);
    for (const QPointF& toe :
         {QPointF(2.9, 7.6), QPointF(6, 3.9), QPointF(10, 3.9), QPointF(13.1, 7.6)})
        paw.addPath(disc(toe, 1.7, 2.2));
    return paw;
}

QPainterPath alarm()
{
    return polygon({{8, 1.4}, {15, 14.4}, {1, 14.4}})
        .subtracted(rectangle({7.1, 5.8, 1.8, 4.2}))
        .subtracted(rectangle({7.1, 11.2, 1.8, 1.8}));
}

QPainterPath bookmark()
{
    return polygon({{3.6, 1.4}, {12.4, 1.4}, {12.4, 14.6}, {8, 10.8}, {3.6, 14.6}});
}

QPainterPath blank()
{
    return rectangle({1.4, 3, 13.2, 10}, 1.5).subtracted(rectangle({3.6, 5.2, 8.8, 5.6}));
}

QPainterPath other()
{
    return polygon({{8, 1.2}, {14.8, 8}, {8, 14.8}, {1.2, 8}}).subtracted(disc({8, 8}, 3));
}

struct KindLook
{
    QPainterPath (*outline)();
    QColor onDark;
    QColor onLight;
};

const KindLook& lookOf(EventKind kind)
{
    static const KindLook looks[EventKinds::count] = {
        {person, QColor(124, 196, 255), QColor(31, 108, 182)},
        {vehicle, QColor(126, 226, 172), QColor(16, 122, 86)},
        {animal, QColor(255, 208, 96), QColor(158, 104, 0)},
        {alarm, QColor(255, 150, 132), QColor(192, 40, 28)},
        {bookmark, QColor(218, 166, 246), QColor(132, 58, 172)},
        {blank, QColor(180, 188, 198), QColor(104, 112, 124)},
        {other, QColor(242, 244, 246), QColor(58, 66, 76)},
    };
    return looks[std::clamp(int(kind), 0, EventKinds::count - 1)];
}

QIcon eventIcon(EventKind kind, bool onTimeline)
{
    const auto draw = [kind, onTimeline](QPainter& painter, const QRect& square, QIcon::Mode mode) {
        const KindLook& look = lookOf(kind);
        const bool onDark = onTimeline || Hueloft::POrvGuiTheme::bPantherTheme;
        const QColor color = mode == QIcon::Selected && !onTimeline
                                 ? QColor(Qt::white)
                                 : (onDark ? look.onDark : look.onLight);
        painter.translate(square.topLeft());
        painter.scale(square.width() / units, square.height() / units);
        if (onTimeline) {
            constexpr QColor rim(16, 18, 20);
            painter.strokePath(look.outline(),
                               QPen(rim, 1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        }
        painter.fillPath(look.outline(), color);
    };
    return QIcon(new Hueloft::VectorIconEngine(draw));
}

} // namespace

QIcon EventIcons::onTimeline(EventKind kind)
{
    return eventIcon(kind, true);
}

QIcon EventIcons::inList(EventKind kind)
{
    return eventIcon(kind, false);
}

} // namespace Review
