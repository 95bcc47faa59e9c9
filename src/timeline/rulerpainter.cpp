// SPDX-License-Identifier: MIT
#include "rulerpainter.h"

#include "base/devicegrid.h"
#include "base/keyboardfocus.h"
#include "loadinghatch.h"
#include "timescale.h"
#include "tracksegments.h"

#include <Hueloft/POrvGuiTheme>

#include <QLinearGradient>
#include <QPainter>
#include <QPen>

#include <algorithm>
#include <cmath>

using Hueloft::POrvGuiTheme;

namespace CorvelGui {

namespace {

constexpr double penWidth = 1.0;

QRectF headerBand(const RulerScene& scene)
{
    return {0.0, 0.0, double(scene.rect.width()), double(scene.headerHeight)};
}

QRectF bodyBand(const RulerScene& scene, double left, double right)
{
    return {QPointF(left, scene.headerHeight), QPointF(right, scene.rect.height())};
}

} // namespace

RulerColors RulerColors::ofTheme()
{
    return {.body = POrvGuiTheme::colorShark,
            .header = POrvGuiTheme::colorShark,
            .shade = POrvGuiTheme::colorBlack,
            .track = POrvGuiTheme::colorTuna,
            .trackEdge = POrvGuiTheme::colorYellow.darker(200),
            .search = POrvGuiTheme::colorDarkBlue,
            .preview = POrvGuiTheme::colorYellow,
            .previewClamped = POrvGuiTheme::colorPurple,
            .resultMark = POrvGuiTheme::colorOrange};
}

void drawSelectedRange(QPainter& painter, const TimeScale& scale, const QRectF& area,
                       const TimeSpan& range, const QColor& color)
{
    constexpr double endWidth = 2.0;
    const DeviceGrid grid(painter);
    const auto fill = [&](double x, double width, const QColor& with) {
        painter.fillRect(grid.aligned({area.left() + x, area.top(), width, area.height()}), with);
    };
    const double begin = std::trunc(scale.xAt(range.begin));
    const double end = std::trunc(scale.xAt(range.end));
    const double x1 = std::max(begin, TimeScale::halfMargin());
    const double x2 = std::min(end, scale.sightEnd());
    QColor tint = color;
    tint.setAlpha(55);
    if (x1 < x2)
        fill(x1, x2 - x1, tint);
    for (const double x : {begin, end}) {
        if (scale.isInSight(x))
            fill(x - endWidth / 2, endWidth, color);
    }
}

void RulerPainter::createGradients(const QRect& rect, int headerHeight)
{
    const auto headerGradient = [&](const QColor& top) {
        QLinearGradient gradient(0, 0, 0, headerHeight);
        gradient.setColorAt(0.0, top);
        gradient.setColorAt(0.2, colors.header);
        return gradient;
    };
    m_headerGradient = headerGradient(colors.shade);
    m_searchGradient = headerGradient(colors.search);

    const double bodyHeight = rect.bottom() - rect.top() - headerHeight;
    // The last half header, in whole pixels, fades into the edge colour.
    const int halfHeader = headerHeight / 2;
    const double fade =
        bodyHeight > 0 ? std::clamp((bodyHeight - halfHeader) / bodyHeight, 0.75, 0.95) : 0.75;
    QLinearGradient track(0, headerHeight + rect.top(), 0, rect.bottom());
    track.setColorAt(0.0, colors.header);
    track.setColorAt(0.7, colors.track);
    track.setColorAt(fade, colors.track);
    track.setColorAt(1.0, colors.trackEdge);
    m_trackGradient = track;
}

void RulerPainter::paint(QPainter& painter, const RulerScene& scene) const
{
    fillBands(painter, scene);
    if (scene.focus)
        scene.focus->draw(painter);
    if (!scene.scale.hasView())
        return;
    fillSearchRange(painter, scene);
    fillTracks(painter, scene);

    const qint64 toMidnight = msecsToMidnight(scene.scale);
    const QRectF rect =
        QRectF(scene.rect).adjusted(TimeScale::halfMargin(), 0, -TimeScale::halfMargin(), 0);
    if (scene.scale.totalDuration() == 0)
        return;
    shadeOutsideLimits(painter, scene, rect);
    if (scene.ranges.selected)
        drawSelectedRange(painter, scene.scale, scene.rect, *scene.ranges.selected,
                          colors.selection);
    drawPreviewLine(painter, scene, rect);
    drawScaleRuler(painter, scene, rect, toMidnight);
    drawResultMarks(painter, scene);
}

void RulerPainter::fillBands(QPainter& painter, const RulerScene& scene) const
{
    const DeviceGrid grid(painter);
    painter.fillRect(grid.aligned(headerBand(scene)), m_headerGradient);
    painter.fillRect(grid.aligned(bodyBand(scene, 0.0, scene.rect.width())), colors.body);
}

void RulerPainter::fillSearchRange(QPainter& painter, const RulerScene& scene) const
{
    if (scene.scale.totalDuration() == 0 || !scene.ranges.search)
        return;
    const double x1 =
        std::max(scene.scale.xAt(scene.ranges.search->begin), TimeScale::halfMargin());
    const double x2 = std::min(scene.scale.xAt(scene.ranges.search->end), scene.scale.sightEnd());
    if (x2 <= x1)
        return;
    QRectF band = headerBand(scene);
    band.setLeft(x1);
    band.setRight(x2);
    painter.fillRect(DeviceGrid(painter).aligned(band), m_searchGradient);
}

void RulerPainter::fillTracks(QPainter& painter, const RulerScene& scene) const
{
    const DeviceGrid grid(painter);
    const double left = std::round(TimeScale::halfMargin());
    const double right = std::max(std::round(scene.scale.sightEnd()), left + 1);
    const auto forEach = [&](const TrackSegmentList& segments, const auto& fill) {
        for (const TrackSegment& segment : segments) {
            const double x1 = std::max(std::trunc(segment.start), left);
            const double x2 = std::max(std::min(std::trunc(segment.end), right), x1 + 1);
            fill(grid.aligned(bodyBand(scene, x1, x2)));
        }
    };
    forEach(scene.segments.gaps(),
            [&](const QRectF& band) { painter.fillRect(band, colors.shade); });
    QList<QRectF> loading;
    forEach(scene.segments.loading(), [&](const QRectF& band) { loading.append(band); });
    fillLoading(painter, loading);
    forEach(scene.segments.recorded(),
            [&](const QRectF& band) { painter.fillRect(band, m_trackGradient); });
}

void RulerPainter::shadeOutsideLimits(QPainter& painter, const RulerScene& scene,
                                      const QRectF& rect) const
{
    const DeviceGrid grid(painter);
    const TimeScale& scale = scene.scale;
    const auto shadeWidth = [&](qint64 msecs) {
        return std::trunc(scale.lengthPerMillisecond() * msecs) + TimeScale::halfMargin();
    };
    if (scale.beginLimitMs() >= scale.viewStartMs()) {
        const double width = shadeWidth(scale.beginLimitMs() - scale.viewStartMs());
        painter.fillRect(grid.aligned(bodyBand(scene, rect.left(), rect.left() + width)),
                         colors.shade);
    }
    if (scale.viewEndMs() >= scale.endLimitMs()) {
        const double width = std::trunc(shadeWidth(scale.viewEndMs() - scale.endLimitMs()));
        painter.fillRect(grid.aligned(bodyBand(scene, rect.right() - width, rect.right())),
                         colors.shade);
    }
}

void RulerPainter::drawPreviewLine(QPainter& painter, const RulerScene& scene,
                                   const QRectF& rect) const
{
    if (!scene.ranges.preview)
        return;
    const double x = scene.scale.xAt(*scene.ranges.preview);
    const double inView = std::min(std::max(x, TimeScale::halfMargin()), scene.scale.sightEnd());
    const QRectF line(inView, rect.top(), penWidth, rect.height());
    painter.fillRect(DeviceGrid(painter).aligned(line),
                     inView == x ? colors.preview : colors.previewClamped);
}

void RulerPainter::drawResultMarks(QPainter& painter, const RulerScene& scene) const
{
    // A line with a small flag on top.
    constexpr double markWidth = 2.0;
    constexpr double flagWidth = 6.0;
    const DeviceGrid grid(painter);
    for (const qint64 time : scene.ranges.resultMarks) {
        const double x = scene.scale.xAt(time);
        if (!scene.scale.isInSight(x))
            continue;
        const double left = std::trunc(x) - markWidth / 2;
        painter.fillRect(grid.aligned(QRectF(left, 0, markWidth, scene.rect.height())),
                         colors.resultMark);
        painter.fillRect(grid.aligned(QRectF(left, 0, flagWidth, scene.headerHeight / 3.0)),
                         colors.resultMark);
    }
}

// Shaping a text takes as long as drawing it, and most come up in the next frame again.
const QStaticText& RulerPainter::shaped(const QString& text) const
{
    constexpr qsizetype most = 500;
    if (m_shapedTexts.size() >= most)
        m_shapedTexts.clear();
    QStaticText& result = m_shapedTexts[text];
    if (result.text().isEmpty()) {
        result.setTextFormat(Qt::PlainText);
        result.setText(text);
    }
    return result;
}

void RulerPainter::tintRepeated(QPainter& painter, const QRectF& rect, const ClockMark& mark,
                                int headerHeight) const
{
    const DeviceGrid grid(painter);
    const auto tint = [&](double from, double to, int alpha) {
        QColor color = colors.clockChange;
        color.setAlpha(alpha);
        const QRectF band(QPointF(std::max(from, rect.left()), rect.top()),
                          QPointF(std::min(to, rect.right()), rect.top() + headerHeight));
        if (band.width() > 0)
            painter.fillRect(grid.aligned(band), color);
    };
    // The hour that comes twice, and the second time again.
    tint(mark.x - mark.repeated, mark.x + mark.repeated, 70);
    tint(mark.x, mark.x + mark.repeated, 70);
}

void RulerPainter::drawScaleRuler(QPainter& painter, const RulerScene& scene, const QRectF& rect,
                                  qint64 toMidnight) const
{
    const DeviceGrid grid(painter);
    const double lineWidth = grid.lineWidth(penWidth);
    constexpr QColor majorColor(160, 160, 160);
    constexpr QColor minorColor(90, 90, 90);
    constexpr QColor textColor(200, 200, 200);

    const TickStyle style{painter.fontMetrics(), scene.headerHeight, scene.dateFormat};
    const TickLayout layout = scene.clock
                                  ? layoutCalendarTicks(scene.scale, rect, style, *scene.clock)
                                  : layoutTicks(scene.scale, rect, style, toMidnight);
    for (const ClockMark& mark : layout.clockMarks)
        tintRepeated(painter, rect, mark, scene.headerHeight);
    // Filled, because a painter takes ten times as long to draw a line; and without smooth edges,
    // which cost six times as much again and show nothing on whole device pixels.
    painter.setRenderHint(QPainter::Antialiasing, false);
    for (const Tick& tick : layout.ticks) {
        const double left = grid.lineCenter(tick.x, lineWidth) - lineWidth / 2;
        // With the square ends of a pen of that width.
        const QRectF line(left, tick.top - lineWidth / 2, lineWidth,
                          tick.bottom - tick.top + lineWidth);
        painter.fillRect(grid.aligned(line), tick.major ? majorColor : minorColor);
    }
    // Over the tick that stands there.
    for (const ClockMark& mark : layout.clockMarks) {
        if (mark.x >= rect.left() && mark.x < rect.right())
            painter.fillRect(
                grid.aligned(QRectF(mark.x - 1, mark.top, 2, rect.bottom() - mark.top)),
                colors.clockChange);
    }
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(textColor);
    const double ascent = QFontMetricsF(painter.font()).ascent();
    for (const TickLabel& label : layout.labels)
        painter.drawStaticText(QPointF(label.x, label.baseline - ascent), shaped(label.text));
}

} // namespace CorvelGui
