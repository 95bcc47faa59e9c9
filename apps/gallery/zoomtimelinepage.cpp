// SPDX-License-Identifier: MIT
#include "zoomtimelinepage.h"

#include <CorvelGui/Ruler>
#include <CorvelGui/RulerMarker>
#include <CorvelGui/TimelineLanes>
#include <CorvelGui/ZoomTimeline>
#include <Hueloft/POrvGuiTheme>

#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>

#include <cmath>

using CorvelGui::Ruler;
using CorvelGui::RulerMarker;
using CorvelGui::TrackDescription;
using CorvelGui::ZoomTimeline;
using CorvelGui::ZoomTimelineOperation;
using Hueloft::POrvGuiTheme;
using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

constexpr qint64 minute = 60'000;
constexpr qint64 hour = 60 * minute;
constexpr qint64 day = 24 * hour;

constexpr qint64 begin = 1'772'409'600'000; // 2026-03-02T00:00Z
constexpr qint64 period = 20 * day;
constexpr qint64 middle = begin + 8 * day + 12 * hour;

constexpr int level12Hours = 3;
constexpr int iconCount = 3;

TrackDescription track()
{
    TrackDescription gate{u"gate"_s, u"Gate"_s, begin + day, begin + 15 * day, {}};
    for (qint64 time = gate.begin; time < gate.end; time += 47 * minute)
        gate.recorded.append({time, time + (time / minute % 31) * minute});
    return gate;
}

QDateTime at(qint64 msecs)
{
    return QDateTime::fromMSecsSinceEpoch(msecs, Qt::UTC);
}

ZoomTimeline* createTimeline(QWidget* parent)
{
    auto* timeline = new ZoomTimeline(parent);
    timeline->setTimeZone(u"UTC"_s);
    timeline->setOrvaneGuiTheme(true);
    timeline->setActive(true, false);
    timeline->ruler()->setTrackDescriptions({track()});
    timeline->setTimeLimits(quint64(begin), quint64(begin + period));
    // The view pages after the indicator; half a view ahead puts the middle into its middle.
    timeline->ruler()->changeLevel(level12Hours, 0.5);
    timeline->setIndicatorPosition(quint64(middle + 6 * hour));
    timeline->setIndicatorPosition(quint64(middle));
    return timeline;
}

QIcon drawIcon(int iconIndex)
{
    QPixmap picture(1000, 1000);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(POrvGuiTheme::colorPanther, 90));
    switch (iconIndex) {
    case 0:
        painter.setBrush(POrvGuiTheme::colorYellow);
        painter.drawPolygon(QPolygonF{{500, 90}, {920, 880}, {80, 880}});
        break;
    case 1:
        painter.setBrush(POrvGuiTheme::colorKoala);
        painter.drawRect(130, 130, 740, 740);
        break;
    default:
        painter.setBrush(POrvGuiTheme::colorPurple);
        painter.drawEllipse(90, 90, 820, 820);
    }
    return picture;
}

class MarkerIcons : public CorvelGui::IRulerMarkerIconProvider
{
public:
    int iconKey(int iconIndex) override { return iconIndex; }
    QIcon icon(int iconIndex) override { return drawIcon(iconIndex); }
};

QList<RulerMarker> markers(qint64 distance)
{
    static MarkerIcons icons;
    QList<RulerMarker> all;
    for (qint64 time = begin; time < begin + period; time += distance) {
        const int index = int(all.size());
        all.append({.identifier = QUuid::createUuid(),
                    .time = at(time),
                    .kind = index % 4 ? RulerMarker::providedIconKind : 0,
                    .iconIndex = index % iconCount,
                    .text = u"Marker %1"_s.arg(index),
                    .iconProvider = &icons});
    }
    return all;
}

/// Some record all the time, some when something moves; one is described for some days only.
QList<TrackDescription> cameras()
{
    QList<TrackDescription> all;
    const QStringList names{u"Gate"_s,  u"Yard, north"_s, u"Loading dock 1 with the long name"_s,
                            u"Lobby"_s, u"Car park"_s,    u"Stairs"_s,
                            u"Roof"_s};
    for (int i = 0; i < int(names.size()); ++i) {
        const qint64 from = i == 3 ? middle - 2 * hour : begin + day;
        TrackDescription camera{QString::number(i), names[i], from, begin + 18 * day, {}};
        const qint64 step = (13 + 17 * i) * minute;
        for (qint64 time = from; time < camera.end; time += step)
            camera.recorded.append(
                {time, time + (i % 3 == 0 ? step - 4 * minute : time / minute % 31 * minute)});
        all.append(camera);
    }
    return all;
}

/// More by day than by night, and some of it bad.
QList<RulerMarker> busyMarkers()
{
    using Severity = RulerMarker::Severity;
    QList<RulerMarker> all = markers(4 * minute);
    all.removeIf([](const RulerMarker& marker) {
        const double height =
            1 + std::sin(double(marker.time.toMSecsSinceEpoch() % day - 6 * hour) / day * 2 * M_PI);
        return marker.time.toMSecsSinceEpoch() / minute * 7 % 23 > 11 * height;
    });
    for (qsizetype i = 0; i < all.size(); ++i) {
        const bool isBusyDay = i / 90 % 5 == 3;
        all[i].severity = i % 97 == 0               ? Severity::Alarm
                          : i % 7 == 0 && isBusyDay ? Severity::Warning
                          : i % 2 == 0              ? Severity::Information
                                                    : Severity::None;
    }
    return all;
}

QList<RulerMarker> lastingMarkers()
{
    QList<RulerMarker> all = busyMarkers();
    for (qsizetype i = 0; i < all.size(); ++i)
        all[i].duration = i % 5 == 0 ? (i * 13 % 37) * minute : 0;
    all.removeIf([](const RulerMarker& marker) { return marker.time.time().minute() % 20 > 9; });
    return all;
}

} // namespace

ZoomTimelinePage::ZoomTimelinePage(QWidget* parent)
    : QWidget(parent), m_layout(new QVBoxLayout(this))
{
    addMarkers();
    addActivityAndLanes();
    addRanges();
    addFreeZoom();
    addStates();
    m_layout->addStretch();
}

ZoomTimeline* ZoomTimelinePage::add(const QString& caption)
{
    m_layout->addWidget(new QLabel(caption, this));
    ZoomTimeline* timeline = createTimeline(this);
    m_layout->addWidget(timeline);
    return timeline;
}

void ZoomTimelinePage::addMarkers()
{
    add(tr("Sparse markers"))->ruler()->onAddMarkers(markers(50 * minute));
    add(tr("Crowded markers"))->ruler()->onAddMarkers(markers(7 * minute));

    ZoomTimeline* details = add(tr("Durations, severities and numbers of markers"));
    details->ruler()->setMarkerDetails(true);
    details->ruler()->setMergedClick(Ruler::MergedClick::List);
    details->ruler()->onAddMarkers(lastingMarkers());
}

void ZoomTimelinePage::addActivityAndLanes()
{
    ZoomTimeline* busy = add(tr("Activity in the overview"));
    busy->setActivityVisible(true);
    busy->ruler()->onAddMarkers(busyMarkers());

    ZoomTimeline* lanes = add(tr("Lanes and activity"));
    lanes->ruler()->setTrackDescriptions(cameras());
    lanes->ruler()->onAddMarkers(busyMarkers());
    lanes->lanes()->setMaximumLanes(5);
    lanes->setLanesVisible(true);
    lanes->setActivityVisible(true);
    lanes->setCurrentTrack(u"2"_s);

    ZoomTimeline* loading = add(tr("Part of it is loading"));
    loading->ruler()->setLoading(u"gate"_s, {middle + hour, middle + 3 * hour}, true);
    loading->ruler()->setLoading(u"gate"_s, {middle - 4 * hour, middle - 3 * hour}, true);
    loading->setLanesVisible(true);
}

void ZoomTimelinePage::addRanges()
{
    ZoomTimeline* search = add(tr("Search range"));
    search->setSearchTimeRange(at(middle - 2 * hour), at(middle + 3 * hour), false);

    ZoomTimeline* selected = add(tr("A selected range; a drag selects another one"));
    selected->ruler()->onAddMarkers(markers(50 * minute));
    selected->ruler()->setRangeSelection(Ruler::RangeSelection::Drag);
    selected->ruler()->setEdgeScrolling(true);
    selected->ruler()->setSelectedRange({middle - 100 * minute, middle + 150 * minute});

    ZoomTimeline* result = add(tr("Result range with marks, and only the markers inside"));
    result->ruler()->onAddMarkers(markers(25 * minute));
    result->onZoomTimeLineOperation({.code = ZoomTimelineOperation::setMarkedResultRange,
                                     .from = at(middle - 2 * hour),
                                     .to = at(middle + 3 * hour),
                                     .flagA = true,
                                     .flagB = true});

    ZoomTimeline* preview = add(tr("Preview line, not playing"));
    preview->setPlayMode(false);
    preview->ruler()->setPreviewEnabled(true);
    preview->onChangedPreviewIndicatorTime(quint64(middle - 3 * hour));
    preview->ruler()->onPreviewVisible(true, false);
}

void ZoomTimelinePage::addFreeZoom()
{
    // The night in which the clocks go back.
    constexpr qint64 change = 1'792'890'000'000; // 2026-10-25T01:00Z
    ZoomTimeline* free = add(tr("Zoomed freely, with steps that people count in"));
    free->setTimeZone(u"Europe/Brussels"_s);
    free->setTimeLimits(quint64(change - 10 * day), quint64(change + 10 * day));
    free->ruler()->setContinuousZoom(true);
    free->ruler()->setZoomHistory(true);
    free->ruler()->setFineWheel(true);
    free->ruler()->setTouchGestures(true);
    free->ruler()->setView(change - 5 * hour, change + 5 * hour);
    free->setIndicatorPosition(quint64(change - 30 * minute));
}

void ZoomTimelinePage::addStates()
{
    add(tr("Blocked"))->setActive(true, true);
    add(tr("Inactive"))->setActive(false, false);

    ZoomTimeline::setZoomerEnabled(false);
    add(tr("Without a zoomer"));
    ZoomTimeline::setZoomerEnabled(true);

    ZoomTimeline* large = add(tr("Larger text"));
    large->setFontSize(12);
    large->ruler()->changeLevel(2, 0.5);
    large->ruler()->onAddMarkers(markers(20 * minute));

    m_layout->addWidget(new QLabel(tr("Without a period"), this));
    auto* empty = new ZoomTimeline(this);
    empty->setOrvaneGuiTheme(true);
    m_layout->addWidget(empty);
}

} // namespace Gallery
