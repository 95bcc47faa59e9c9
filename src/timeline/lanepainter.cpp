// SPDX-License-Identifier: MIT
#include "lanepainter.h"

#include "base/devicegrid.h"
#include "loadinghatch.h"
#include "rulerpainter.h"
#include "timescale.h"
#include "tracksegments.h"

#include <Hueloft/POrvGuiTheme>

#include <QPainter>

#include <algorithm>
#include <cmath>

using Hueloft::POrvGuiTheme;

namespace CorvelGui {

namespace {

constexpr double footHeight = 2.0;
constexpr double accentWidth = 3.0;
constexpr double textPadding = 8.0;

/// A lane without the line that parts it from the next one, which is equally thick below each.
QRectF bodyOf(const QRectF& lane, const DeviceGrid& grid)
{
    return grid.aligned(lane).adjusted(0, 0, 0, -grid.lineWidth(1));
}

} // namespace

void LanePainter::drawLane(QPainter& painter, const QRectF& lane,
                           const TrackLanes::Spans& spans) const
{
    const DeviceGrid grid(painter);
    const double left = rulerLeft + std::round(TimeScale::halfMargin());
    const double right = rulerLeft + std::round(scale.sightEnd());
    const QRectF body = bodyOf(lane, grid);
    const auto part = [&](double x1, double x2) {
        return grid.aligned({QPointF(x1, body.top()), QPointF(x2, body.bottom())});
    };
    painter.fillRect(part(rulerLeft, lane.right()), POrvGuiTheme::colorShark);

    const auto forEach = [&](const TimeSpans& states, const auto& fill) {
        for (const TrackSegment& segment : visibleSegments(states, scale)) {
            const double x1 = std::max(rulerLeft + std::trunc(segment.start), left);
            const double x2 =
                std::max(std::min(rulerLeft + std::trunc(segment.end), right), x1 + 1);
            fill(part(x1, x2));
        }
    };
    forEach(spans.described,
            [&](const QRectF& stretch) { painter.fillRect(stretch, POrvGuiTheme::colorBlack); });
    QList<QRectF> loading;
    forEach(spans.loading, [&](const QRectF& stretch) { loading.append(stretch); });
    fillLoading(painter, loading);
    const QColor foot = POrvGuiTheme::colorYellow.darker(200);
    forEach(spans.recorded, [&](const QRectF& stretch) {
        painter.fillRect(stretch, POrvGuiTheme::colorTuna);
        painter.fillRect(stretch.adjusted(0, stretch.height() - grid.lineWidth(footHeight), 0, 0),
                         foot);
    });

    if (!scale.hasView())
        return;
    const double begin = rulerLeft + std::trunc(scale.xAt(scale.beginLimitMs()));
    const double end = rulerLeft + std::trunc(scale.xAt(scale.endLimitMs()));
    if (begin > left)
        painter.fillRect(part(left, std::min(begin, right)), POrvGuiTheme::colorBlack);
    if (end < right)
        painter.fillRect(part(std::max(end, left), right), POrvGuiTheme::colorBlack);
}

void LanePainter::drawName(QPainter& painter, const QRectF& lane, const QString& name,
                           bool current) const
{
    const DeviceGrid grid(painter);
    const QRectF body = bodyOf(lane, grid);
    const QRectF plate(body.left(), body.top(), grid.edge(namesWidth), body.height());
    painter.fillRect(plate, current ? POrvGuiTheme::colorElephant.darker(130)
                                    : POrvGuiTheme::colorPanther);
    if (current)
        painter.fillRect(grid.aligned({plate.left(), plate.top(), accentWidth, plate.height()}),
                         POrvGuiTheme::colorBlue);
    QFont font = painter.font();
    font.setBold(current);
    painter.setFont(font);
    const QRectF text = plate.adjusted(textPadding, 0, -textPadding / 2, 0);
    painter.setPen(current ? QColor(Qt::white) : QColor(200, 200, 200));
    painter.drawText(text, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                     QFontMetricsF(font).elidedText(name, Qt::ElideRight, text.width()));
    font.setBold(false);
    painter.setFont(font);
}

void LanePainter::drawFrame(QPainter& painter, const QRectF& lane) const
{
    const DeviceGrid grid(painter);
    QRectF line = bodyOf(lane, grid);
    const double bottom = line.bottom();
    line.setLeft(grid.edge(rulerLeft));
    line.setHeight(grid.lineWidth(1));
    painter.fillRect(line, POrvGuiTheme::colorBlue);
    line.moveBottom(bottom);
    painter.fillRect(line, POrvGuiTheme::colorBlue);
}

void LanePainter::drawRanges(QPainter& painter, double height, const RulerRanges& ranges,
                             const RulerColors& colors) const
{
    const DeviceGrid grid(painter);
    if (ranges.search) {
        const double x1 =
            std::max(std::trunc(scale.xAt(ranges.search->begin)), TimeScale::halfMargin());
        const double x2 = std::min(std::trunc(scale.xAt(ranges.search->end)), scale.sightEnd());
        QColor tint = colors.search;
        tint.setAlpha(90);
        if (x1 < x2)
            painter.fillRect(grid.aligned(QRectF(rulerLeft + x1, 0, x2 - x1, height)), tint);
    }
    if (ranges.selected)
        drawSelectedRange(painter, scale, QRectF(rulerLeft, 0, 0, height), *ranges.selected,
                          colors.selection);
    const auto line = [&](qint64 time, const QColor& color, double width) {
        const double x = std::trunc(scale.xAt(time));
        const QRectF stroke(rulerLeft + x - std::floor(width / 2), 0, width, height);
        if (scale.isInSight(x))
            painter.fillRect(grid.aligned(stroke), color);
    };
    for (const qint64 mark : ranges.resultMarks)
        line(mark, colors.resultMark, 2.0);
    if (ranges.preview)
        line(*ranges.preview, colors.preview, 1.0);
}

} // namespace CorvelGui
