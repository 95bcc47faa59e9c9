// SPDX-License-Identifier: MIT
#include "activitypicture.h"

#include "rulerpainter.h"
#include "severitycolors.h"

#include <Hueloft/POrvGuiTheme>

#include <QPainter>

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>

using Hueloft::POrvGuiTheme;

namespace CorvelGui {

namespace {

constexpr double bandHeight = 6.0;
constexpr double barWidth = 3.0;

using Counts = std::array<quint64, RulerMarker::severityCount>;

quint64 totalOf(const Counts& counts)
{
    return std::accumulate(counts.begin(), counts.end(), quint64(0));
}

/// Neighbours of equal state in one rectangle.
void drawRecordings(QPainter& painter, const TimelineActivity& activity, double columnWidth,
                    double top, double height)
{
    using Recording = TimelineActivity::Recording;
    const auto& columns = activity.columns;
    const QColor edge = POrvGuiTheme::colorYellow.darker(200);
    for (std::size_t first = 0, next = 0; first < columns.size(); first = next) {
        const Recording recording = columns[first].recording;
        next = first + 1;
        while (next < columns.size() && columns[next].recording == recording)
            ++next;
        const QRectF part(double(first) * columnWidth, top, double(next - first) * columnWidth,
                          height);
        if (recording == Recording::Gap)
            painter.fillRect(part, POrvGuiTheme::colorBlack);
        if (recording != Recording::Recorded)
            continue;
        painter.fillRect(part, POrvGuiTheme::colorTuna.lighter(130));
        painter.fillRect(part.adjusted(0, height / 2, 0, 0), edge);
    }
}

std::vector<Counts> barsOf(const TimelineActivity& activity, std::size_t columnsPerBar)
{
    std::vector<Counts> bars((activity.columns.size() + columnsPerBar - 1) / columnsPerBar);
    for (std::size_t i = 0; i < activity.columns.size(); ++i) {
        Counts& bar = bars[i / columnsPerBar];
        for (std::size_t severity = 0; severity < bar.size(); ++severity)
            bar[severity] += activity.columns[i].events[severity];
    }
    return bars;
}

/// The height follows the root of the number, so that the few are seen beside the many.
void drawBars(QPainter& painter, const std::vector<Counts>& bars, double width, double height,
              double pixel)
{
    quint64 most = 0;
    for (const Counts& bar : bars)
        most = std::max(most, totalOf(bar));
    for (std::size_t i = 0; i < bars.size(); ++i) {
        const quint64 total = totalOf(bars[i]);
        if (total == 0)
            continue;
        const double whole = std::max(height * std::sqrt(double(total) / double(most)), 2 * pixel);
        double bottom = height;
        for (std::size_t severity = bars[i].size(); severity-- > 0;) {
            const quint64 count = bars[i][severity];
            if (count == 0)
                continue;
            // Even a single one of the worst is seen.
            const double share = std::max(whole * double(count) / double(total), 2 * pixel);
            const double top = std::max(std::round((bottom - share) / pixel) * pixel, 0.0);
            painter.fillRect(QRectF(double(i) * width, top, width - pixel, bottom - top),
                             severityColor(RulerMarker::Severity(severity)));
            bottom = top;
        }
    }
}

} // namespace

void ActivityPicture::setSource(Source source)
{
    m_source = std::move(source);
    renew();
}

void ActivityPicture::paint(QPainter& painter, const QRectF& area)
{
    const qreal ratio = painter.device()->devicePixelRatioF();
    if (!m_source || area.isEmpty())
        return;
    if (!m_picture || m_size != area.size() || m_picture->devicePixelRatio() != ratio) {
        m_size = area.size();
        m_picture = QPixmap((m_size * ratio).toSize());
        m_picture->setDevicePixelRatio(ratio);
        m_picture->fill(Qt::transparent);
        QPainter picture(&*m_picture);
        draw(picture, m_size, ratio);
    }
    painter.drawPixmap(area.topLeft(), *m_picture);
}

void ActivityPicture::draw(QPainter& painter, const QSizeF& size, qreal ratio) const
{
    const TimelineActivity activity = m_source(int(std::lround(size.width() * ratio)));
    const double pixel = 1.0 / ratio;
    drawRecordings(painter, activity, pixel, size.height() - bandHeight, bandHeight);
    const auto columnsPerBar = std::size_t(std::max(std::lround(barWidth * ratio), 2L));
    drawBars(painter, barsOf(activity, columnsPerBar), double(columnsPerBar) * pixel,
             size.height() - bandHeight - 1, pixel);
}

} // namespace CorvelGui
