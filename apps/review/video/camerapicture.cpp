#include "camerapicture.h"

#include <QCoreApplication>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>
#include <QRandomGenerator>

#include <algorithm>
#include <cmath>
#include <numbers>

using namespace Qt::StringLiterals;

namespace Review {

namespace {

constexpr int width = CameraPicture::size.width();
constexpr int height = CameraPicture::size.height();
constexpr int horizon = 300;

// Not qHash(), which may differ between runs.
quint32 seedOf(const QString& name)
{
    quint32 seed = 2'166'136'261U;
    for (const QChar character : name)
        seed = (seed ^ character.unicode()) * 16'777'619U;
    return seed;
}

/// From 0 at night to 1 at noon, with an hour of twilight at each end of the day.
double daylight(double hour)
{
    const double sunHeight = std::cos((hour - 12) / 24 * 2 * std::numbers::pi);
    return std::clamp((sunHeight + 0.15) / 0.6, 0.0, 1.0);
}

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

void drawVisitor(QPainter& painter, const CameraScene::Visitor& visitor, double light)
{
    constexpr int beyondTheEdge = 140;
    const double x = -beyondTheEdge + visitor.progress * (width + 2 * beyondTheEdge);
    painter.save();
    switch (visitor.kind) {
    case EventKind::Person:
        painter.translate(x, 470);
        drawPerson(painter, visitor.progress, light);
        break;
    case EventKind::Vehicle:
        painter.translate(x, 610);
        drawVehicle(painter, visitor.progress, light);
        break;
    case EventKind::Animal:
        painter.translate(x, 690);
        drawAnimal(painter, visitor.progress, light);
        break;
    case EventKind::Alarm:
    case EventKind::Bookmark:
    case EventKind::Blank:
    case EventKind::Other:
        break;
    }
    painter.restore();
}

void drawCaption(QPainter& painter, const CameraScene& scene)
{
    QFont font = painter.font();
    font.setPixelSize(26);
    painter.setFont(font);
    const auto write = [&painter](const QString& text, int flags) {
        const QRect area(24, 18, width - 48, 36);
        painter.setPen(Qt::black);
        painter.drawText(area.translated(1, 1), flags | Qt::AlignVCenter, text);
        painter.setPen(Qt::white);
        painter.drawText(area, flags | Qt::AlignVCenter, text);
    };
    write(scene.camera, Qt::AlignLeft);
    write(scene.time, Qt::AlignRight);
}

QString explanation(TrackState state)
{
    return state == TrackState::Gap
               ? QCoreApplication::translate("Review::CameraPicture", "No recording at this time")
               : QCoreApplication::translate("Review::CameraPicture",
                                             "Nothing is known of this time");
}

} // namespace

QImage CameraPicture::draw(const CameraScene& scene)
{
    QImage picture;
    if (scene.state == TrackState::Recorded) {
        picture = surroundings(scene.camera, scene.hour);
    } else {
        picture = QImage(size, QImage::Format_RGB32);
        picture.fill(QColor(28, 30, 32));
    }
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    if (scene.state == TrackState::Recorded) {
        for (const CameraScene::Visitor& visitor : scene.visitors)
            drawVisitor(painter, visitor, daylight(scene.hour));
    } else {
        QFont font = painter.font();
        font.setPixelSize(34);
        painter.setFont(font);
        painter.setPen(QColor(176, 180, 184));
        painter.drawText(picture.rect(), Qt::AlignCenter, explanation(scene.state));
    }
    drawCaption(painter, scene);
    return picture;
}

const QImage& CameraPicture::surroundings(const QString& camera, double hour)
{
    const int tenMinutes = int(hour * 6);
    if (camera == m_camera && tenMinutes == m_tenMinutes)
        return m_surroundings;
    m_camera = camera;
    m_tenMinutes = tenMinutes;
    m_surroundings = QImage(size, QImage::Format_RGB32);
    const double light = daylight(tenMinutes / 6.0);
    QRandomGenerator random(seedOf(camera));
    QPainter painter(&m_surroundings);
    drawSkyAndGround(painter, light);
    drawBuildings(painter, random, light);
    drawFence(painter, random, light);
    drawRoad(painter, light);
    return m_surroundings;
}

} // namespace Review
