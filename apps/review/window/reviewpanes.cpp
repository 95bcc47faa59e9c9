// SPDX-License-Identifier: MIT
#include "reviewpanes.h"

#include "data/letgo.h"
#include "lists/devicepane.h"
#include "lists/eventpane.h"
#include "markerfeed.h"
#include "playback/playbackpane.h"
#include "playback/player.h"
#include "playback/recordingbar.h"
#include "playback/transportbar.h"
#include "session/clock.h"
#include "session/selection.h"
#include "timeline/eventmarkers.h"
#include "timeline/previewcard.h"
#include "timeline/rangepanel.h"
#include "timeline/timelinepane.h"
#include "video/hoverpicture.h"

#include <CorvelGui/PopupSliderToolButton>
#include <CorvelGui/TarvoDateTimeView>

#include <QCheckBox>
#include <QSplitter>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

using CorvelGui::PopupSliderToolButton;
using CorvelGui::PPlaybar;
using CorvelGui::TarvoDateTimeView;
using CorvelGui::TimeSpan;
using CorvelGui::VideoSlider;

namespace Review {

ReviewPanes::ReviewPanes(const Clock& clock, Selection& selection, QWidget* parent)
    : Translated(parent)
    , m_clock(clock)
    , m_selection(selection)
    , m_tables(new QSplitter(this))
    , m_devices(new DevicePane(clock, selection, m_tables))
    , m_playback(new PlaybackPane(clock, selection, this))
    , m_recording(new RecordingBar(clock, selection, this))
    , m_events(new EventPane(clock, m_tables))
    , m_ranges(new RangePanel(clock, this))
    , m_transport(new TransportBar(clock, selection, this))
    , m_timeline(new TimelinePane(clock, selection, this))
    , m_markers(new MarkerFeed(m_timeline))
    , m_player(new Player(selection, m_transport->playbar(), this))
    , m_preview(new PreviewCard(window()))
    , m_hover(new HoverPicture(this))
{
    createLayout();
    connectLists();
    connectTimeline();
    connectPlayer();
    connectRecording();
}

void ReviewPanes::createLayout()
{
    auto* pictures = new QWidget;
    auto* column = new QVBoxLayout(pictures);
    column->setContentsMargins({});
    column->setSpacing(0);
    column->addWidget(m_playback, 1);
    column->addWidget(m_recording);
    m_tables->insertWidget(1, pictures);
    m_tables->setChildrenCollapsible(false);
    // In proportion.
    m_tables->setSizes({300, 560, 440});
    m_ranges->hide();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addWidget(m_tables, 1);
    layout->addWidget(m_ranges);
    layout->addWidget(m_transport);
    layout->addWidget(m_timeline);
}

void ReviewPanes::connectLists()
{
    connect(m_devices, &DevicePane::checkedTracksChanged, this, &ReviewPanes::showCheckedTracks);
    connect(m_devices, &DevicePane::told, this, &ReviewPanes::told);
    connect(m_events, &EventPane::eventOpened, this, &ReviewPanes::openEvent);
}

void ReviewPanes::connectTimeline()
{
    connect(m_markers, &MarkerFeed::finished, this, &ReviewPanes::tellSettled);
    connect(m_timeline, &TimelinePane::viewChanged, this,
            [this] { m_transport->setView(m_timeline->view()); });
    connect(m_timeline, &TimelinePane::markerChosen, this, [this](const QUuid& marker) {
        const qsizetype event = EventMarkers::indexOf(marker);
        m_events->select(event);
        showCameraOf(event);
    });
    connect(m_timeline, &TimelinePane::eventWanted, this, &ReviewPanes::openNextEvent);
    connect(m_timeline, &TimelinePane::previewChanged, this, &ReviewPanes::showPreview);
    connect(&m_clock, &Clock::changed, m_preview, &QWidget::hide);
    connect(m_hover, &HoverPicture::ready, m_preview, &PreviewCard::setPicture);

    connect(m_ranges, &RangePanel::viewWanted, this, [this] {
        m_ranges->setRange(m_timeline->view());
        m_timeline->setSelectedRange(m_timeline->view());
    });
    connect(m_timeline, &TimelinePane::selectedRangeChanged, this, [this](const TimeSpan& range) {
        if (!range.isEmpty() && range != m_ranges->range())
            m_ranges->setRange(range);
    });
    connect(m_ranges, &RangePanel::rangeTyped, m_timeline, &TimelinePane::setSelectedRange);
    connect(m_ranges, &RangePanel::searchWanted, m_timeline, &TimelinePane::setSearchRange);
    connect(m_ranges, &RangePanel::resultWanted, m_timeline, &TimelinePane::setResultRange);
    connect(m_ranges, &RangePanel::clearWanted, m_timeline, &TimelinePane::clearRanges);
}

void ReviewPanes::connectPlayer()
{
    connect(m_playback, &PlaybackPane::cameraChanged, this, [this] {
        const Camera* camera = m_playback->camera();
        m_player->setTrack(camera ? &camera->history : nullptr);
        m_transport->timeView()->setDeviceName(camera ? camera->name : QString());
        m_hover->setFiles(camera ? camera->files : QList<VideoFile>());
        m_recording->setCamera(camera);
        showRecordingEvents();
    });
    connect(m_playback, &PlaybackPane::settled, this, &ReviewPanes::tellSettled);
    connect(&m_selection, &Selection::momentChanged, this, [this] { m_isNewest = false; });
    PopupSliderToolButton* speed = m_transport->speed();
    connect(speed, &PopupSliderToolButton::valueChanged, m_player, [this](int wanted) {
        if (wanted != m_player->speed())
            m_player->setSpeed(PPlaybar::PlaybackSpeed(wanted));
    });
    connect(m_player, &Player::speedChanged, speed,
            [this, speed] { speed->setValue(m_player->speed()); });
    connect(m_player, &Player::playingChanged, this, [this](bool playing) {
        // Who has played up to the end waits for more.
        m_isNewest = m_isNewest || (!playing && m_selection.moment() >= newest());
    });
    connect(m_player, &Player::fastChanged, m_playback, &PlaybackPane::setOnlyKeyFrames);
    connect(m_transport->skipGaps(), &QCheckBox::toggled, m_player, &Player::setSkippingGaps);
    connect(m_player, &Player::playingChanged, m_transport->timeView(),
            &TarvoDateTimeView::setPlayMode);
    connect(m_player, &Player::ranOutOfRecordings, this,
            [this] { Q_EMIT told(tr("There are no more recordings of this camera.")); });
}

void ReviewPanes::connectRecording()
{
    connect(m_recording, &RecordingBar::recordingChanged, this, &ReviewPanes::showRecordingEvents);
    connect(m_recording, &RecordingBar::sought, this, [this] {
        if (!m_playback->isBusy())
            m_recording->endSeek();
    });
    connect(m_playback, &PlaybackPane::settled, m_recording, &RecordingBar::endSeek);
}

void ReviewPanes::setPeriod(const TimeSpan& period)
{
    m_player->setPeriod(period);
    m_transport->setPeriod(period);
    m_ranges->setPeriod(period);
    m_timeline->setPeriod(period);
}

void ReviewPanes::setTimes(const ReviewData& review)
{
    const TimeSpan view = m_timeline->view();
    const bool showedAll = m_timeline->showsWholePeriod();
    const TimeSpan period = review.period();
    setPeriod(period);
    setTexts(review);
    m_selection.setMoment(std::clamp(m_selection.moment(), period.begin, period.end));
    if (!showedAll)
        m_timeline->showAround(view.begin + (view.end - view.begin) / 2, view.end - view.begin);
}

void ReviewPanes::setReview(const ReviewData& review)
{
    setPeriod(review.period());
    m_devices->removeAll();
    m_playback->setTracks({}, {}); // nothing of before is compared with what comes
    setTexts(review);
    const Sight first = review.firstSight();
    m_selection.setCamera(first.track);
    m_selection.setMoment(first.msecs);
    if (!review.events.isEmpty())
        m_events->select(0);
}

void ReviewPanes::setTexts(const ReviewData& review)
{
    ReviewData before = std::exchange(m_review, review);
    m_devices->setReview(m_review);
    m_events->setReview(m_review);
    showCheckedTracks();
    letGo(std::move(before)); // which no pane has any more
}

void ReviewPanes::renew(const ReviewData& review, bool newLists)
{
    const TimeSpan period = review.period();
    const bool wasNewest = m_isNewest;
    ReviewData before = std::exchange(m_review, review);
    m_player->extendPeriod(period);
    m_transport->setPeriod(period);
    m_ranges->extendPeriod(period);
    m_timeline->extendPeriod(period);
    m_devices->setReview(m_review);
    if (newLists)
        m_events->setReview(m_review);
    showTracks();
    m_markers->goOn(m_events->events());
    letGo(std::move(before));
    if (wasNewest && !m_selection.isHeld())
        goToNewest();
}

qint64 ReviewPanes::newest() const
{
    const Camera* camera = m_playback->camera();
    const bool hasRecording = camera && !camera->history.recorded().isEmpty();
    // The end itself is no longer in it.
    return (hasRecording ? camera->history.recorded().last() : m_review.period()).end - 1;
}

void ReviewPanes::goToNewest()
{
    m_selection.setMoment(newest());
    m_isNewest = true;
}

void ReviewPanes::showNewest()
{
    if (m_review.period().isEmpty())
        return;
    m_player->pause();
    goToNewest();
    m_timeline->showMoment();
}

void ReviewPanes::showMiddleDay()
{
    const TimeSpan period = m_review.period();
    if (period.isEmpty())
        return;
    constexpr qint64 day = qint64(24) * 60 * 60 * 1'000;
    const TimeTexts& times = m_clock.times();
    const QDateTime middle = times.wallClock(period.begin + (period.end - period.begin) / 2);
    const qint64 noon = times.fromWallClock(QDateTime(middle.date(), QTime(12, 0), Qt::UTC));
    m_timeline->showAround(noon, day);
    m_selection.setMoment(noon);

    const qsizetype event = m_review.events.firstFrom(noon);
    if (event < m_review.events.size() && m_review.events.timeAt(event) < noon + day / 2) {
        openEvent(event);
        m_events->select(event);
    }
}

bool ReviewPanes::isBusy() const
{
    return m_playback->isBusy() || m_markers->isBusy();
}

void ReviewPanes::tellSettled()
{
    if (!isBusy())
        Q_EMIT settled();
}

QByteArray ReviewPanes::saveWidths() const
{
    return m_tables->saveState();
}

void ReviewPanes::restoreWidths(const QByteArray& widths)
{
    // Only in a window of its final size the widths stay what they were.
    if (isVisible())
        m_tables->restoreState(widths);
    else
        m_widths = widths;
}

void ReviewPanes::showEvent(QShowEvent* event)
{
    Translated::showEvent(event);
    if (m_widths.isEmpty())
        return;
    layout()->activate();
    m_tables->restoreState(std::exchange(m_widths, {}));
}

bool ReviewPanes::event(QEvent* event)
{
    const bool handled = Translated::event(event);
    const bool isNewRoom =
        event->type() == QEvent::Resize || event->type() == QEvent::LayoutRequest;
    if (isNewRoom && isVisible())
        keepRoom();
    return handled;
}

// The transport takes more rows where it is narrow, which windows do not ask for.
void ReviewPanes::keepRoom()
{
    setMinimumHeight(layout()->totalMinimumHeightForWidth(width()));
}

// The markers say what kinds of events are called.
void ReviewPanes::retranslate()
{
    showCheckedTracks();
}

void ReviewPanes::showCheckedTracks()
{
    showTracks();
    m_markers->show(m_events->events());
}

void ReviewPanes::showTracks()
{
    m_timeline->setTracks(m_devices->checkedTracks());
    m_playback->setTracks(m_devices->checkedTracks(), m_review.files);
    m_events->setHiddenTracks(m_devices->uncheckedTracks());
}

void ReviewPanes::showRecordingEvents()
{
    constexpr qsizetype mostMarks = 500; // more are no places any longer
    QList<VideoSlider::Mark> marks;
    for (const qsizetype event : m_events->events().eventsIn(m_recording->recording())) {
        const Event found = m_review.events[event];
        if (found.track == m_selection.camera() && marks.size() < mostMarks)
            marks.append({.position = found.time, .text = EventMarkers::textOf(found)});
    }
    m_recording->setMarks(marks);
}

void ReviewPanes::openEvent(qsizetype event)
{
    showCameraOf(event);
    m_selection.goTo(m_review.events.timeAt(event));
}

// Of those that are shown.
void ReviewPanes::openNextEvent(qint64 msecs, int direction)
{
    const EventList& list = m_events->events();
    qsizetype event =
        direction > 0 ? list.events().firstFrom(msecs + 1) : list.events().firstFrom(msecs) - 1;
    while (event >= 0 && event < list.events().size() && !list.isShown(event))
        event += direction;
    if (event < 0 || event >= list.events().size())
        return;
    openEvent(event);
    m_events->select(event);
}

void ReviewPanes::showCameraOf(qsizetype event)
{
    if (event >= 0 && event < m_review.events.size())
        m_selection.setCamera(m_review.events[event].track);
}

void ReviewPanes::showPreview(qint64 msecs, const QPoint& position, const TimeSpan& symbol)
{
    if (msecs == 0) {
        m_preview->hide();
        m_hover->forget();
        return;
    }
    PreviewContent content{.time = m_clock.times().exactDateTime(msecs),
                           .events = {},
                           .tracks = m_devices->statesAt(msecs),
                           .hasPicture = m_hover->ask(msecs)};
    const QList<qsizetype> numbers = m_events->events().eventsIn(symbol);
    for (const qsizetype number :
         numbers.first(std::min(PreviewCard::mostEvents, numbers.size()))) {
        const Event event = m_review.events[number];
        content.events.append({EventKinds::parse(event.kind), EventMarkers::textOf(event)});
    }
    content.furtherEvents = numbers.size() - content.events.size();
    constexpr int distance = 6;
    m_preview->showContent(content, m_timeline->mapTo(window(), position - QPoint(0, distance)));
}

} // namespace Review
