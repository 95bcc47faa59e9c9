// SPDX-License-Identifier: MIT
#include "pictograms.h"

#include <Hueloft/VectorIconEngine>

#include <QGuiApplication>
#include <QPainter>
#include <QPalette>

namespace {

const QColor accent(0x3f, 0x9b, 0xe0);

/// Draws on a grid of 16 units.
class Sketch
{
public:
    Sketch(QPainter& painter, const QRect& square, const QColor& ink)
        : m_painter(painter), m_ink(ink)
    {
        painter.translate(square.topLeft());
        painter.scale(square.width() / 16.0, square.height() / 16.0);
    }

    void frame(qreal x, qreal y, qreal width, qreal height)
    {
        m_painter.setPen(QPen(m_ink, 1));
        m_painter.setBrush(Qt::NoBrush);
        m_painter.drawRoundedRect(QRectF(x, y, width, height), 1, 1);
    }
    void bar(qreal x, qreal y, qreal width, qreal height, bool colored = false)
    {
        m_painter.fillRect(QRectF(x, y, width, height), colored ? accent : m_ink);
    }
    void shape(const QPolygonF& corners, bool colored = false)
    {
        m_painter.setPen(Qt::NoPen);
        m_painter.setBrush(colored ? accent : m_ink);
        m_painter.drawPolygon(corners);
    }
    void knob(qreal x, qreal y)
    {
        m_painter.setPen(Qt::NoPen);
        m_painter.setBrush(accent);
        m_painter.drawEllipse(QPointF(x, y), 2.5, 2.5);
    }

private:
    QPainter& m_painter;
    QColor m_ink;
};

void draw(Sketch& sketch, Pictogram pictogram)
{
    switch (pictogram) {
    case Pictogram::Timeline:
        for (const qreal x : {1.0, 4.0, 7.0, 10.0, 13.0})
            sketch.bar(x, 3, 1, 3);
        sketch.bar(1, 8, 5, 3, true);
        sketch.bar(10, 8, 4, 3, true);
        sketch.bar(1, 12, 13, 1);
        break;
    case Pictogram::Player:
        sketch.shape({{2, 3}, {9, 8}, {2, 13}}, true);
        sketch.bar(10, 3, 2, 10);
        sketch.bar(13, 3, 2, 10);
        break;
    case Pictogram::Slider:
        sketch.bar(1, 7.5, 14, 1);
        sketch.knob(10, 8);
        break;
    case Pictogram::Entry:
        sketch.frame(1.5, 4.5, 13, 7);
        sketch.bar(4, 6, 1, 4, true);
        break;
    case Pictogram::Choice:
        sketch.frame(1.5, 4.5, 13, 7);
        sketch.shape({{9, 7}, {13, 7}, {11, 10}}, true);
        break;
    case Pictogram::Button:
        sketch.frame(1.5, 4.5, 13, 7);
        sketch.bar(4, 7.5, 8, 1, true);
        break;
    case Pictogram::Text:
        sketch.bar(2, 3, 12, 2, true);
        sketch.bar(7, 5, 2, 8, true);
        break;
    case Pictogram::List:
        for (const qreal y : {3.0, 7.0, 11.0}) {
            sketch.bar(2, y, 2, 2, true);
            sketch.bar(6, y, 8, 2);
        }
        break;
    case Pictogram::Picture:
        sketch.frame(1.5, 2.5, 13, 11);
        sketch.shape({{3, 12}, {7, 6}, {10, 10}, {11, 9}, {13, 12}}, true);
        break;
    case Pictogram::Progress:
        sketch.frame(1.5, 5.5, 13, 5);
        sketch.bar(2.5, 6.5, 7, 3, true);
        break;
    case Pictogram::Page:
        sketch.frame(2.5, 1.5, 11, 13);
        sketch.bar(5, 5, 6, 1);
        sketch.bar(5, 8, 6, 1, true);
        sketch.bar(5, 11, 4, 1);
        break;
    }
}

} // namespace

QIcon iconOf(Pictogram pictogram)
{
    return QIcon(new Hueloft::VectorIconEngine(
        [pictogram](QPainter& painter, const QRect& square, QIcon::Mode) {
            Sketch sketch(painter, square, QGuiApplication::palette().color(QPalette::WindowText));
            draw(sketch, pictogram);
        },
        22));
}
