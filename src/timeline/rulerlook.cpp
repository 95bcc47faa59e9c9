// SPDX-License-Identifier: MIT
// How the ruler looks: colours, sizes, recorded tracks, painting, and where its children stand.

#include "ruler_p.h"

#include <Hueloft/POrvGuiTheme>

#include <QPainter>

#include <algorithm>
#include <cmath>

using Hueloft::POrvGuiTheme;
using namespace Qt::StringLiterals;

namespace CorvelGui {

namespace {

constexpr qint64 msecsPerDay = 86'400'000;

QColor indicatorColor(bool theme, bool playMode)
{
    if (!playMode)
        return POrvGuiTheme::colorGreen;
    return theme ? POrvGuiTheme::colorYellow : POrvGuiTheme::colorBlue;
}

/// Markers stand below the first two rows of text and above the coloured foot of the tracks.
QRect markerArea(const QRect& rect, int headerHeight, bool hasTracks)
{
    const int halfHeader = headerHeight / 2;
    return rect.adjusted(0, headerHeight + (hasTracks ? 2 * halfHeader : halfHeader), 0,
                         -halfHeader);
}

} // namespace

void Ruler::setOrvaneGuiTheme(bool on)
{
    d->theme = on;
    // Without the theme the colours stay as they are: there is no way back to those from before it.
    if (on)
        d->painter.colors = RulerColors::ofTheme();
    applyLook();
    d->markers->setOrvaneGuiTheme(on);
    updateChildren(false);
}

void Ruler::applyLook()
{
    d->indicator->setLook(indicatorColor(d->theme, d->playMode), d->fontSize);
    createGradients();
}

void Ruler::setFontSize(unsigned int points)
{
    constexpr unsigned int largest = 200;
    d->fontSize = std::clamp(points, 1U, largest);
    setOrvaneGuiTheme(d->theme);
}

bool Ruler::hasCalendarTicks() const
{
    return d->calendarTicks;
}

void Ruler::setCalendarTicks(bool on)
{
    if (d->calendarTicks == on)
        return;
    d->calendarTicks = on;
    update();
    whileAlive(
        this, [this] { updateChildren(false); }, [&] { Q_EMIT calendarTicksChanged(on); });
}

RulerRanges Ruler::Private::shownRanges() const
{
    RulerRanges all;
    if (searchDisplayed)
        all.search = searchRange;
    if (!range->range().isEmpty())
        all.selected = range->range();
    if (resultRange && resultBeginMarked)
        all.resultMarks.push_back(resultRange->begin);
    if (resultRange && resultEndMarked)
        all.resultMarks.push_back(resultRange->end);
    if (hover->isPreviewVisible() && previewTime.isValid())
        all.preview = previewTime.toMSecsSinceEpoch();
    return all;
}

void Ruler::setDateFormat(const QString& format)
{
    d->dateFormat = format;
}

void Ruler::setHeaderColor(const QColor& color)
{
    d->painter.colors.header = color;
}

void Ruler::setBodyColor(const QColor& color)
{
    d->painter.colors.body = color;
}

void Ruler::updateSize()
{
    d->headerHeight = d->indicator->labelHeight();
    d->hover->setAreaHeight(2 * d->headerHeight);
    const int rulerHeight = 4 * d->headerHeight;
    setMinimumHeight(rulerHeight);
    setMaximumHeight(rulerHeight);
    createGradients();
    layOutChildren();
}

void Ruler::paintEvent(QPaintEvent*)
{
    if (d->headerHeight != d->indicator->labelHeight())
        updateSize();

    QPainter painter(this);
    QFont font = painter.font();
    font.setPointSize(int(d->fontSize));
    painter.setFont(font);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);

    RulerScene scene{.scale = d->scale,
                     .segments = d->segments,
                     .rect = rect(),
                     .headerHeight = d->headerHeight,
                     .dateFormat = d->dateFormat,
                     .ranges = d->shownRanges(),
                     .focus = d->focus,
                     .clock = d->showsCalendar() ? &d->clock : nullptr};
    d->painter.paint(painter, scene);
    if (d->markerDetails)
        drawMarkerBars(painter, d->markers->bars(d->scale), d->scale,
                       markerArea(rect(), d->headerHeight, d->segments.hasTracks()));
}

void Ruler::setTrackDescriptions(const QList<TrackDescription>& tracks)
{
    d->segments.setTracks(tracks);
    d->lanes.setTracks(tracks);
    d->segments.setLoading(d->lanes.loading());
    tellTracksChanged();
}

QList<TrackDescription> Ruler::trackDescriptions() const
{
    return d->lanes.tracks();
}

bool Ruler::addRecordedSpans(const QString& trackIdentifier, const QList<TimeSpan>& spans)
{
    if (!d->segments.addRecorded(trackIdentifier, spans))
        return false;
    d->lanes.addRecorded(trackIdentifier, spans);
    tellTracksChanged();
    return true;
}

bool Ruler::setLoading(const QString& trackIdentifier, const TimeSpan& span, bool loading)
{
    if (!d->lanes.setLoading(trackIdentifier, span, loading))
        return false;
    d->segments.setLoading(d->lanes.loading());
    tellTracksChanged();
    return true;
}

void Ruler::tellTracksChanged()
{
    updateTrackSegments();
    whileAlive(
        this, [this] { Q_EMIT tracksChanged(); }, [this] { Q_EMIT activityChanged(); });
}

void Ruler::updateTrackSegments()
{
    d->segments.update(d->scale);
    d->rest->notice();
    update();
}

void Ruler::resizeEvent(QResizeEvent*)
{
    d->scale.setWidth(width());
    createGradients();
    layOutChildren();
    followView();
    updateChildren(true);
}

void Ruler::layOutChildren()
{
    d->arrows->layOut(d->headerHeight / 4);
    d->indicator->resize(d->indicator->width(), 4 * d->headerHeight);
    d->range->layOut();
}

void Ruler::createGradients()
{
    d->painter.createGradients(rect(), d->headerHeight);
}

void Ruler::updateChildren(bool /*merge*/)
{
    d->range->layOut();
    if (!d->active) {
        d->markers->hideReleased();
        return;
    }
    updateIndicator();
    const QRect area = markerArea(rect(), d->headerHeight, d->segments.hasTracks());
    const QList<QDateTime> firstSeen = d->markers->update(d->scale, area);
    update();
    if (!firstSeen.isEmpty())
        Q_EMIT newVisibleRulerMarkers(firstSeen);
}

void Ruler::updateIndicator()
{
    const double x = std::trunc(d->scale.xAt(qint64(getIndicatorMSecs())));
    if (d->scale.isInSight(x) && d->scale.hasView() && d->indicatorTime.isValid() &&
        !d->resultMode) {
        showIndicatorTime(d->exactIndicator);
        d->indicator->moveHotSpotTo(int(x));
        d->indicator->show();
    } else {
        d->indicator->hide();
    }
}

void Ruler::showIndicatorTime(quint64 msecs)
{
    // Where the view shows more than a day, a time alone says little.
    const bool needsDate = qint64(d->scale.millisecondsPerLevel()) > msecsPerDay;
    QString format = needsDate ? d->dateFormat + u" hh:mm:ss"_s : u"hh:mm:ss"_s;
    // Close up, a pixel is less than a tenth of a second.
    constexpr double pixelsPerMillisecond = 0.01;
    if (d->showsCalendar() && d->scale.lengthPerMillisecond() > pixelsPerMillisecond)
        format += u".zzz"_s;
    const qint64 instant = TimeScale::instant(msecs);
    d->indicator->setText(d->scale.inZone(instant).toString(format) + d->whichOfTwo(instant));
}

} // namespace CorvelGui
