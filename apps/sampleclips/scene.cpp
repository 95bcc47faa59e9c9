// SPDX-License-Identifier: MIT
#include "scene.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>
#include <QRandomGenerator>

#include <array>
#include <cmath>
#include <numbers>

namespace Review {

namespace {

// What is drawn counts in these, whatever the size of the picture.
constexpr int width = 1280;
constexpr int height = 720;
constexpr int horizon = 300;

QColor mixed(const QColor& dark, const QColor& bright, double share)
{
    const auto mix = [share](int from, int to) {
        return int(from + (to - from) * share);
    };
    return QColor(mix(dark.red(), bright.red()), mix(dark.green(), bright.green()),
                  mix(dark.blue(), bright.blue()));
}

void drawSkyAndGround(QPainter& painter, double light)
{
    QLinearGradient sky(0, 0, 0, horizon);
    sky.setColorAt(0, mixed(QColor(16, 18, 22), QColor(104, 156, 208), light));
    sky.setColorAt(1, mixed(QColor(34, 36, 40), QColor(206, 222, 232), light));
    painter.fillRect(0, 0, width, horizon, sky);
    QLinearGradient ground(0, horizon, 0, height);
    ground.setColorAt(0, mixed(QColor(58, 58, 60), QColor(150, 150, 142), light));
    ground.setColorAt(1, mixed(QColor(92, 92, 94), QColor(112, 110, 104), light));
    painter.fillRect(0, horizon, width, height - horizon, ground);
}

void drawBuildings(QPainter& painter, QRandomGenerator& random, double light)
{
    for (int left = random.bounded(-60, 40); left < width;) {
        const int breadth = random.bounded(150, 330);
        const int top = random.bounded(90, 220);
        const QColor bright = QColor::fromHsv(random.bounded(20, 50), random.bounded(20, 90),
                                              random.bounded(140, 215));
        const QColor wall = mixed(QColor(46, 46, 48), bright, light);
        painter.fillRect(left, top, breadth, horizon + 30 - top, wall);
        painter.fillRect(left, top, breadth, 6, wall.darker(130));
        for (int y = top + 22; y + 34 < horizon + 20; y += 52) {
            for (int x = left + 18; x + 26 < left + breadth - 10; x += 44) {
                const bool lit = random.bounded(5) == 0 && light < 0.4;
                const QColor glass = mixed(QColor(24, 24, 26), QColor(86, 108, 128), light);
                painter.fillRect(x, y, 26, 34, lit ? QColor(210, 206, 190) : glass);
                painter.fillRect(x + 12, y, 2, 34, wall.darker(115));
            }
        }
        left += breadth + random.bounded(20, 120);
    }
}

void drawRoad(QPainter& painter, double light)
{
    const QColor tarmac = mixed(QColor(44, 44, 46), QColor(84, 86, 90), light);
    const QColor line = mixed(QColor(120, 120, 120), QColor(228, 226, 214), light);
    painter.fillRect(0, 420, width, 210, tarmac);
    painter.fillRect(0, 416, width, 5, line);
    painter.fillRect(0, 629, width, 6, line);
    for (int x = -20; x < width; x += 130)
        painter.fillRect(x, 520, 70, 7, line);
}

void drawFence(QPainter& painter, QRandomGenerator& random, double light)
{
    const QColor metal = mixed(QColor(70, 70, 72), QColor(126, 134, 136), light);
    const int gateBegin = random.bounded(250, 800);
    const int gateEnd = gateBegin + 220;
    for (int x = 8; x < width; x += 16) {
        if (x < gateBegin || x > gateEnd)
            painter.fillRect(x, 318, 3, 82, metal);
    }
    for (const int y : {328, 384}) {
        painter.fillRect(0, y, gateBegin, 3, metal);
        painter.fillRect(gateEnd, y, width - gateEnd, 3, metal);
    }
    for (const int x : {gateBegin - 8, gateEnd})
        painter.fillRect(x, 300, 10, 104, metal.darker(120));
}

QColor visitorColor(double light, const QColor& byDay)
{
    // Infrared light makes what is near pale.
    return mixed(QColor(196, 196, 196), byDay, light > 0.1 ? 1 : 0);
}

void drawPerson(QPainter& painter, double progress, double light)
{
    const double stride = std::sin(progress * 60) * 13;
    const QColor coat = visitorColor(light, QColor(54, 76, 122));
    painter.setPen(QPen(coat.darker(140), 11, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(0, -62), QPointF(stride, 0));
    painter.drawLine(QPointF(0, -62), QPointF(-stride, 0));
    painter.setPen(QPen(coat, 9, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(0, -108), QPointF(-stride, -66));
    painter.drawLine(QPointF(0, -108), QPointF(stride, -66));
    painter.setPen(Qt::NoPen);
    painter.setBrush(coat);
    painter.drawRoundedRect(QRectF(-15, -118, 30, 62), 10, 10);
    painter.setBrush(visitorColor(light, QColor(206, 164, 132)));
    painter.drawEllipse(QPointF(0, -133), 13, 14);
}

void drawVehicle(QPainter& painter, double progress, double light)
{
    const QColor body = visitorColor(light, QColor(164, 52, 44));
    QPainterPath path;
    path.addRoundedRect(QRectF(-120, -66, 240, 46), 14, 14);
    path.addPolygon(QPolygonF({{-82, -62}, {-54, -106}, {44, -106}, {82, -62}}));
    painter.setPen(Qt::NoPen);
    painter.setBrush(body);
    painter.drawPath(path.simplified());
    painter.setBrush(visitorColor(light, QColor(60, 78, 92)).darker(light > 0.1 ? 100 : 170));
    painter.drawPolygon(QPolygonF({{-68, -66}, {-48, -98}, {-8, -98}, {-8, -66}}));
    painter.drawPolygon(QPolygonF({{2, -66}, {2, -98}, {38, -98}, {64, -66}}));
    for (const int x : {-72, 72}) {
        painter.setBrush(QColor(24, 24, 24));
        painter.drawEllipse(QPointF(x, -20), 22, 22);
        painter.setPen(QPen(QColor(150, 150, 150), 3));
        const QPointF spoke(std::cos(progress * 70) * 12, std::sin(progress * 70) * 12);
        painter.drawLine(QPointF(x, -20) - spoke, QPointF(x, -20) + spoke);
        painter.setPen(Qt::NoPen);
    }
}

void drawAnimal(QPainter& painter, double progress, double light)
{
    const double stride = std::sin(progress * 90) * 7;
    const QColor fur = visitorColor(light, QColor(116, 84, 54));
    painter.setPen(QPen(fur.darker(120), 6, Qt::SolidLine, Qt::RoundCap));
    for (const int x : {-22, 20}) {
        painter.drawLine(QPointF(x, -24), QPointF(x + stride, 0));
        painter.drawLine(QPointF(x, -24), QPointF(x - stride, 0));
    }
    painter.drawLine(QPointF(-30, -34), QPointF(-46, -48));
    painter.setPen(Qt::NoPen);
    painter.setBrush(fur);
    painter.drawEllipse(QPointF(0, -32), 34, 14);
    painter.drawEllipse(QPointF(36, -44), 13, 11);
}

void drawVisitor(QPainter& painter, const Scene::Visitor& visitor, double light)
{
    constexpr int beyondTheEdge = 140;
    const double x = -beyondTheEdge + visitor.progress * (width + 2 * beyondTheEdge);
    painter.save();
    switch (visitor.kind) {
    case EventKind::Vehicle:
        painter.translate(x, 610);
        drawVehicle(painter, visitor.progress, light);
        break;
    case EventKind::Animal:
        painter.translate(x, 690);
        drawAnimal(painter, visitor.progress, light);
        break;
    default:
        painter.translate(x, 470);
        drawPerson(painter, visitor.progress, light);
        break;
    }
    painter.restore();
}

/// A flag in the wind, so that a picture without visitors moves as well.
void drawFlag(QPainter& painter, double seconds, double light)
{
    constexpr double turnsPerSecond = 0.75;
    const QPointF top(1'130, 150);
    painter.fillRect(QRectF(top.x() - 3, top.y() - 8, 6, 250), visitorColor(light, Qt::lightGray));
    QPolygonF cloth;
    const auto edge = [&](double x, double y) {
        const double phase = x / 60 - turnsPerSecond * seconds;
        return top + QPointF(x, y + std::sin(phase * 2 * std::numbers::pi) * x / 12);
    };
    for (int x = 0; x <= 100; x += 10)
        cloth.append(edge(x, 0));
    for (int x = 100; x >= 0; x -= 10)
        cloth.append(edge(x, 54));
    painter.setPen(Qt::NoPen);
    painter.setBrush(visitorColor(light, QColor(38, 110, 150)));
    painter.drawPolygon(cloth);
}

/// In strokes, because machines that build need not have a font.
void drawSampleMark(QPainter& painter)
{
    // On a grid of 2 by 4; a letter each.
    static const std::array<QPolygonF, 7> strokes{
        QPolygonF{{2, 0}, {0, 0}, {0, 2}, {2, 2}, {2, 4}, {0, 4}},
        QPolygonF{{3, 4}, {3, 0}, {5, 0}, {5, 4}, {5, 2}, {3, 2}},
        QPolygonF{{6, 4}, {6, 0}, {7, 2}, {8, 0}, {8, 4}},
        QPolygonF{{9, 4}, {9, 0}, {11, 0}, {11, 2}, {9, 2}},
        QPolygonF{{12, 0}, {12, 4}, {14, 4}},
        QPolygonF{{17, 0}, {15, 0}, {15, 4}, {17, 4}},
        QPolygonF{{15, 2}, {16.6, 2}}};
    painter.save();
    painter.translate(1'020, 650);
    painter.scale(12, 10);
    for (const auto& [color, shift] :
         {std::pair(QColor(0, 0, 0, 160), 0.2), std::pair(QColor(255, 255, 255, 220), 0.0)}) {
        painter.setPen(QPen(color, 0.45, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.setBrush(Qt::NoBrush);
        for (const QPolygonF& stroke : strokes)
            painter.drawPolyline(stroke.translated(shift, shift));
    }
    painter.restore();
}

void prepare(QPainter& painter)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(double(Scene::size.width()) / width, double(Scene::size.height()) / height);
}

} // namespace

Scene::Scene(int camera, bool atNight)
    : m_light(atNight ? 0 : 0.9), m_surroundings(size, QImage::Format_RGB32)
{
    QRandomGenerator random{quint32(camera)};
    QPainter painter(&m_surroundings);
    prepare(painter);
    drawSkyAndGround(painter, m_light);
    drawBuildings(painter, random, m_light);
    drawFence(painter, random, m_light);
    drawRoad(painter, m_light);
}

QImage Scene::draw(double seconds, const std::optional<Visitor>& visitor) const
{
    QImage picture = m_surroundings;
    QPainter painter(&picture);
    prepare(painter);
    drawFlag(painter, seconds, m_light);
    if (visitor)
        drawVisitor(painter, *visitor, m_light);
    drawSampleMark(painter);
    return picture;
}

} // namespace Review
