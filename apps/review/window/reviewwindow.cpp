#include "reviewwindow.h"

#include "data/loadjob.h"
#include "data/sampledata.h"
#include "export/exportpanel.h"
#include "lists/devicepane.h"
#include "lists/eventpane.h"
#include "lists/problemdock.h"
#include "look/zonecombo.h"
#include "options/reviewsettings.h"
#include "playback/playbackpane.h"
#include "playback/player.h"
#include "playback/transportbar.h"
#include "reviewmenubar.h"
#include "timeline/eventmarkers.h"
#include "timeline/previewcard.h"
#include "timeline/rangepanel.h"
#include "timeline/timelinepane.h"
#include "timeline/timelinetoolbar.h"
#include "updatemenu.h"

#include <CorvelGui/BusyIndicator>
#include <CorvelGui/PPlaybar>
#include <CorvelGui/TarvoDateTimeView>
#include <Hueloft/PMessageBox>

#include <QAction>
#include <QCheckBox>
#include <QDir>
#include <QEvent>
#include <QFileDialog>
#include <QLabel>
#include <QLocale>
#include <QSettings>
#include <QSplitter>
#include <QStatusBar>
#include <QVBoxLayout>

#include <algorithm>
#include <chrono>
#include <utility>

using CorvelGui::BusyIndicator;
using CorvelGui::TarvoDateTimeView;
using CorvelGui::TimeSpan;
using Hueloft::PMessageBox;
using namespace Qt::StringLiterals;

namespace Review {

namespace {

constexpr int problemDockHeight = 150;
constexpr int readingTime = 8'000; // milliseconds
constexpr std::chrono::milliseconds quickLoad(200);

const QString geometryKey = u"Window/Geometry"_s;
const QString stateKey = u"Window/State"_s;
const QString tablesKey = u"Window/Tables"_s;

} // namespace

ReviewWindow::ReviewWindow(const QString& zoneName, bool dark, QWidget* parent)
    : PMainWindow(parent), m_times(zoneName)
{
    createDarkFusionStyle(dark);
    setCentralWidget(createContent());
    m_preview = new PreviewCard(this);
    m_zone = new ZoneCombo(zoneName, this);
    createToolBar(dark);
    createStatusBar();
    m_problems = new ProblemDock(this);
    addDockWidget(Qt::BottomDockWidgetArea, m_problems);
    m_toolBar->insertAction(m_darkLook, m_problems->toggleViewAction());
    m_updates = new UpdateMenu(this, statusBar());
    m_menus = new ReviewMenuBar(*m_events, *m_devices, *m_toolBar, m_darkLook, m_updates, this);
    setMenuBar(m_menus);
    connectParts();
    m_timeline->setZone(zoneName);
    retranslate();
}

ReviewWindow::~ReviewWindow() = default;

QMenu* ReviewWindow::toolsMenu() const
{
    return m_menus->tools();
}

void ReviewWindow::setReview(const ReviewData& review, const ProblemList& problems)
{
    m_review = review;
    m_showsSample = false;
    m_devices->setReview(m_review);
    m_events->setReview(m_review);
    m_playback->setEvents(m_review.events);
    m_player->setPeriod(m_review.period());
    m_transport->setPlayable(!m_review.period().isEmpty());
    m_ranges->setPeriod(m_review.period());
    m_timeline->setPeriod(m_review.period());
    m_problems->setProblems(problems);
    resizeDocks({m_problems}, {problemDockHeight}, Qt::Vertical);
    showCheckedTracks();
    enableExport();
    showCounts();
    showView();
    showCurrentTime();
}

void ReviewWindow::load(const ReviewFiles& files)
{
    m_loading = std::make_unique<LoadJob>(files);
    auto* busy = new BusyIndicator(centralWidget());
    busy->setDelay(quickLoad);
    busy->show();
    connect(m_loading.get(), &LoadJob::loaded, busy, [busy] {
        busy->hide();
        busy->deleteLater();
    });
    connect(m_loading.get(), &LoadJob::loaded, this, &ReviewWindow::finishLoading);
    m_menus->open()->setEnabled(false);
    m_loading->start();
}

void ReviewWindow::finishLoading()
{
    LoadJob* job = m_loading.release();
    job->deleteLater();
    m_menus->open()->setEnabled(true);
    if (job->error().isEmpty()) {
        setReview(job->data(), job->problems());
        m_showsSample = job->isSample();
    }
    Q_EMIT loaded(job->error());
}

void ReviewWindow::openFolder()
{
    const QString folder = QFileDialog::getExistingDirectory(this, tr("Open folder"));
    if (folder.isEmpty())
        return;
    const ReviewFiles files = ReviewFiles::inFolder(folder);
    if (files.isEmpty()) {
        PMessageBox::Warning(this, tr("Open folder"),
                             tr("There is no recordings.csv, events.csv or deployments.csv in %1.")
                                 .arg(QDir::toNativeSeparators(folder)));
        return;
    }
    load(files);
    connect(m_loading.get(), &LoadJob::loaded, this, [this, job = m_loading.get()] {
        if (!job->error().isEmpty())
            PMessageBox::Warning(this, tr("Open folder"), job->error());
    });
}

void ReviewWindow::showMiddleDay()
{
    const TimeSpan period = m_review.period();
    if (period.isEmpty())
        return;
    constexpr qint64 day = qint64(24) * 60 * 60 * 1'000;
    const QDateTime middle = m_times.wallClock(period.begin + (period.end - period.begin) / 2);
    const QDateTime noon(middle.date(), QTime(12, 0), Qt::UTC);
    const qint64 time = m_times.fromWallClock(noon);
    m_timeline->jumpTo(time, day);

    const auto event = std::ranges::lower_bound(m_review.events, time, {}, &Event::time);
    if (event != m_review.events.end() && event->time < time + day / 2) {
        showCameraOf(event - m_review.events.begin());
        m_timeline->setCurrentTime(event->time);
        m_events->select(event - m_review.events.begin());
    }
}

void ReviewWindow::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    PMainWindow::changeEvent(event);
}

QWidget* ReviewWindow::createContent()
{
    auto* content = new QWidget(this);
    QWidget* tables = createTables(content);
    m_ranges = new RangePanel(m_times, content);
    m_ranges->hide();
    m_transport = new TransportBar(content);
    m_timeline = new TimelinePane(m_times.zoneName(), content);
    m_player = new Player(m_timeline, m_transport->playbar(), this);

    auto* layout = new QVBoxLayout(content);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addWidget(tables, 1);
    layout->addWidget(m_ranges);
    layout->addWidget(m_transport);
    layout->addWidget(m_timeline);
    return content;
}

QWidget* ReviewWindow::createTables(QWidget* parent)
{
    auto* tables = new QSplitter(parent);
    m_tables = tables;
    tables->setChildrenCollapsible(false);
    m_devices = new DevicePane(m_times, tables);
    m_playback = new PlaybackPane(m_times, tables);
    m_events = new EventPane(m_times, tables);
    // In proportion.
    tables->setSizes({300, 560, 440});
    return tables;
}

void ReviewWindow::createToolBar(bool dark)
{
    m_toolBar = new TimelineToolBar(m_timeline, this);
    addToolBar(m_toolBar);
    auto* spacer = new QWidget(m_toolBar);
    spacer->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    m_toolBar->addWidget(spacer);
    m_darkLook = m_toolBar->addAction(QString());
    m_darkLook->setCheckable(true);
    m_darkLook->setChecked(dark);
}

void ReviewWindow::createStatusBar()
{
    m_countsLabel = new QLabel(this);
    m_countsLabel->setContentsMargins(6, 0, 0, 0);
    m_zoneLabel = new QLabel(this);
    m_zoneLabel->setBuddy(m_zone);
    statusBar()->addWidget(m_countsLabel);
    m_exportPanel = new ExportPanel(this);
    statusBar()->addPermanentWidget(m_exportPanel);
    statusBar()->addPermanentWidget(m_zoneLabel);
    statusBar()->addPermanentWidget(m_zone);
}

void ReviewWindow::connectParts()
{
    connect(m_menus->open(), &QAction::triggered, this, &ReviewWindow::openFolder);
    connect(m_menus->exportPictures(), &QAction::triggered, this, &ReviewWindow::exportPictures);
    connect(m_exportPanel, &ExportPanel::exportingChanged, this, &ReviewWindow::enableExport);
    connect(m_exportPanel, &ExportPanel::reported, this,
            [this](const QString& text) { statusBar()->showMessage(text, readingTime); });
    connect(m_menus->quit(), &QAction::triggered, this, &QWidget::close);
    connect(m_darkLook, &QAction::toggled, this, &ReviewWindow::createDarkFusionStyle);
    connect(m_toolBar->showRanges(), &QAction::toggled, m_ranges, &QWidget::setVisible);

    connect(m_devices, &DevicePane::checkedTracksChanged, this, &ReviewWindow::showCheckedTracks);
    connect(m_devices, &DevicePane::camerasAdded, statusBar(),
            [this](const QString& text) { statusBar()->showMessage(text, readingTime); });
    connect(m_events, &EventPane::eventOpened, this, [this](qsizetype event) {
        showCameraOf(event);
        m_timeline->jumpTo(m_review.events.at(event).time);
    });

    connect(m_timeline, &TimelinePane::viewChanged, this, &ReviewWindow::showView);
    connect(m_timeline, &TimelinePane::currentTimeChanged, this, &ReviewWindow::showCurrentTime);
    connect(m_timeline, &TimelinePane::markerChosen, this, [this](const QUuid& marker) {
        const qsizetype event = EventMarkers::indexOf(marker);
        m_events->select(event);
        showCameraOf(event);
    });
    connect(m_timeline, &TimelinePane::previewChanged, this, &ReviewWindow::showPreview);

    connectPlayer();
    enableExport();

    connect(m_ranges, &RangePanel::viewWanted, this,
            [this] { m_ranges->setRange(m_timeline->view()); });
    connect(m_ranges, &RangePanel::searchWanted, m_timeline, &TimelinePane::setSearchRange);
    connect(m_ranges, &RangePanel::resultWanted, m_timeline, &TimelinePane::setResultRange);
    connect(m_ranges, &RangePanel::clearWanted, m_timeline, &TimelinePane::clearRanges);

    connect(m_zone, &ZoneCombo::zoneChanged, this, [this](const QString& zone) {
        setTimes(TimeTexts(zone, m_times.format()), zone);
        Q_EMIT settingsTouched();
    });
    connect(m_darkLook, &QAction::triggered, this, &ReviewWindow::settingsTouched);
    connect(m_zone, &ZoneCombo::zoneRefused, this, [this](const QString& text) {
        statusBar()->showMessage(
            tr("There is no time zone “%1”. Times stay in %2.").arg(text, m_times.zoneName()),
            readingTime);
    });
}

void ReviewWindow::connectPlayer()
{
    connect(m_playback, &PlaybackPane::feedChanged, this, [this] {
        const CameraFeed* feed = m_playback->feed();
        m_player->setTrack(feed ? &feed->history() : nullptr);
        m_transport->timeView()->setDeviceName(feed ? feed->camera() : QString());
        enableExport();
    });
    connect(m_transport->skipGaps(), &QCheckBox::toggled, m_player, &Player::setSkippingGaps);
    connect(m_transport->skipGaps(), &QCheckBox::clicked, this, &ReviewWindow::settingsTouched);
    connect(m_transport->timeView(), &TarvoDateTimeView::jumoToTime, m_timeline,
            [this](const QDateTime& time) { m_timeline->goTo(time.toMSecsSinceEpoch()); });
    connect(m_player, &Player::playingChanged, m_transport->timeView(),
            &TarvoDateTimeView::setPlayMode);
    connect(m_player, &Player::ranOutOfRecordings, this, [this] {
        statusBar()->showMessage(tr("There are no more recordings of this camera."), readingTime);
    });
}

void ReviewWindow::retranslate()
{
    setWindowTitle(tr("Recording review"));
    m_devices->retranslate();
    m_playback->retranslate();
    m_transport->retranslate();
    m_events->retranslate();
    m_toolBar->retranslate();
    m_menus->retranslate();
    m_exportPanel->retranslate();
    m_darkLook->setText(tr("Dark look"));
    m_zoneLabel->setText(tr("Time zone"));
    m_problems->retranslate();
    m_ranges->retranslate();
    m_timeline->retranslate();
    m_zone->retranslate();
    if (m_showsSample)
        renewSample();
    else
        showCheckedTracks();
    showCounts();
    showView();
    showCurrentTime();
}

void ReviewWindow::exportPictures()
{
    if (const CameraFeed* feed = m_playback->feed())
        m_exportPanel->ask(*feed, m_timeline->view(), m_timeline->searchRange());
}

void ReviewWindow::enableExport()
{
    m_menus->exportPictures()->setEnabled(m_playback->feed() && !m_timeline->view().isEmpty() &&
                                          !m_exportPanel->isExporting());
}

void ReviewWindow::applySettings(const ReviewSettings& settings)
{
    m_darkLook->setChecked(settings.dark);
    if (settings.zone != m_zone->zone() || settings.timeFormat != m_times.format()) {
        m_zone->setZone(settings.zone);
        setTimes(TimeTexts(settings.zone, settings.timeFormat), settings.zone);
    }
    m_transport->skipGaps()->setChecked(settings.skipGaps);
    m_player->setShortcuts(settings.shortcuts);
    m_updates->setServers(settings.servers);
}

void ReviewWindow::takeSettings(ReviewSettings& settings) const
{
    settings.dark = m_darkLook->isChecked();
    settings.zone = m_zone->zone();
    settings.skipGaps = m_transport->skipGaps()->isChecked();
}

void ReviewWindow::writeUserSettings(QSettings& settings) const
{
    settings.setValue(geometryKey, saveGeometry());
    settings.setValue(stateKey, saveState());
    settings.setValue(tablesKey, m_tables->saveState());
}

void ReviewWindow::readUserSettings(QSettings& settings)
{
    restoreGeometry(settings.value(geometryKey).toByteArray());
    restoreState(settings.value(stateKey).toByteArray());
    m_tablesState = settings.value(tablesKey).toByteArray();
    if (isVisible())
        restoreTables();
}

void ReviewWindow::restoreTables()
{
    // Only in a window of its final size the widths stay what they were.
    m_tables->restoreState(std::exchange(m_tablesState, {}));
}

void ReviewWindow::showEvent(QShowEvent* event)
{
    PMainWindow::showEvent(event);
    if (m_tablesState.isEmpty())
        return;
    layout()->activate();
    restoreTables();
}

void ReviewWindow::setTimes(const TimeTexts& times, const QString& zoneName)
{
    m_times = times;
    m_devices->setTimes(m_times);
    m_playback->setTimes(m_times);
    m_events->setTimes(m_times);
    m_ranges->setTimes(m_times);
    m_timeline->setZone(zoneName);
    m_preview->hide();
    statusBar()->clearMessage();
    showView();
    showCurrentTime();
}

// Its names and texts are those of the language; a file keeps its own.
void ReviewWindow::renewSample()
{
    const TimeSpan view = m_timeline->view();
    const qint64 time = m_timeline->currentTime();
    setReview(SampleData::make());
    m_showsSample = true;
    m_timeline->jumpTo(view.begin + (view.end - view.begin) / 2, view.end - view.begin);
    m_timeline->setCurrentTime(time);
}

void ReviewWindow::showCounts()
{
    const QLocale locale;
    m_countsLabel->setText(tr("Tracks: %1    Recordings: %2    Events: %3")
                               .arg(locale.toString(m_review.tracks.size()),
                                    locale.toString(m_review.recordingCount()),
                                    locale.toString(m_review.events.size())));
}

void ReviewWindow::showCheckedTracks()
{
    m_timeline->setTracks(m_devices->checkedTracks());
    m_playback->setTracks(m_devices->checkedTracks());
    m_events->setHiddenTracks(m_devices->uncheckedTracks());

    QList<CorvelGui::RulerMarker> markers;
    const EventList& events = m_events->events();
    markers.reserve(qsizetype(events.shownEvents().size()));
    for (const qsizetype index : events.shownEvents())
        markers.append(EventMarkers::marker(events.event(index), index, events.trackName(index)));
    m_timeline->setMarkers(markers);
}

void ReviewWindow::showView()
{
    const TimeSpan view = m_timeline->view();
    m_transport->setViewText(view.isEmpty()
                                 ? tr("There is nothing to show.")
                                 : tr("%1 – %2 (%3)")
                                       .arg(m_times.dateTime(view.begin),
                                            m_times.dateTime(view.end), m_times.zoneName()));
}

void ReviewWindow::showCameraOf(qsizetype event)
{
    if (event >= 0 && event < m_review.events.size())
        m_playback->setCamera(m_review.events.at(event).track);
}

void ReviewWindow::showCurrentTime()
{
    const qint64 msecs = m_timeline->currentTime();
    m_playback->setTime(msecs);
    m_devices->setCurrentTime(msecs);
    m_transport->timeView()->updateDateTime(
        msecs > 0 ? QDateTime::fromMSecsSinceEpoch(msecs, m_times.zone()) : QDateTime());
}

void ReviewWindow::showPreview(qint64 msecs, const QPoint& position, bool onMarker)
{
    if (msecs == 0) {
        m_preview->hide();
        return;
    }
    PreviewContent content{
        .time = m_times.exactDateTime(msecs), .events = {}, .tracks = m_devices->statesAt(msecs)};
    if (onMarker) {
        for (const Event& event : m_events->events().eventsAt(msecs))
            content.events.append({EventKinds::parse(event.kind), EventMarkers::textOf(event)});
    }
    constexpr int distance = 6;
    m_preview->showContent(content, m_timeline->mapTo(this, position - QPoint(0, distance)));
}

} // namespace Review
