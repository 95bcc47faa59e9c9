#include "reviewwindow.h"

#include "eventmarkers.h"
#include "eventmodel.h"
#include "previewcard.h"
#include "problemdock.h"
#include "rangepanel.h"
#include "roomydelegate.h"
#include "timelinepane.h"
#include "trackmodel.h"
#include "zonecombo.h"

#include <Hueloft/PIconHelper>

#include <QAction>
#include <QEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QSplitter>
#include <QStatusBar>
#include <QToolBar>
#include <QTreeView>
#include <QVBoxLayout>

#include <algorithm>

using CorvelGui::TimeSpan;
using Hueloft::PIconHelper;
using namespace Qt::StringLiterals;

namespace Review {

namespace {

constexpr int problemDockHeight = 150;

QTreeView* createTable(QAbstractItemModel* model, QWidget* parent)
{
    auto* view = new QTreeView(parent);
    view->setModel(model);
    view->setFrameShape(QFrame::NoFrame);
    view->setRootIsDecorated(false);
    view->setUniformRowHeights(true);
    view->setAlternatingRowColors(true);
    view->setAllColumnsShowFocus(true);
    view->setItemDelegate(new RoomyDelegate(view));
    view->header()->setStretchLastSection(false);
    view->header()->setSectionsMovable(false);
    // In a narrow table the stretched column stays readable, and the table scrolls.
    view->header()->setMinimumSectionSize(110);
    view->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    return view;
}

} // namespace

ReviewWindow::ReviewWindow(const ReviewData& review, const ProblemList& problems,
                           const QString& zoneName, bool dark, QWidget* parent)
    : PMainWindow(parent)
    , m_review(review)
    , m_times(zoneName)
    , m_tracks(new TrackModel(review.tracks, m_times, this))
    , m_events(new EventModel(review, m_times, this))
{
    createDarkFusionStyle(dark);
    setCentralWidget(createContent());
    m_preview = new PreviewCard(this);
    m_zone = new ZoneCombo(zoneName, this);
    createActions(dark);
    createStatusBar();
    if (problems.count() > 0) {
        m_problems = new ProblemDock(problems, this);
        addDockWidget(Qt::BottomDockWidgetArea, m_problems);
        resizeDocks({m_problems}, {problemDockHeight}, Qt::Vertical);
        m_toolBar->insertAction(m_darkLook, m_problems->toggleViewAction());
    }
    connectParts();

    m_timeline->setZone(zoneName);
    m_timeline->setPeriod(m_review.period());
    showCheckedTracks();
    retranslate();
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
        m_timeline->setCurrentTime(event->time);
        selectEvent(event - m_review.events.begin());
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
    auto* tables = new QSplitter(content);
    tables->setChildrenCollapsible(false);
    m_trackView = createTable(m_tracks, tables);
    m_trackView->header()->setSectionResizeMode(TrackModel::Name, QHeaderView::Stretch);
    m_eventView = createTable(m_events, tables);
    m_eventView->header()->setSectionResizeMode(EventModel::Text, QHeaderView::Stretch);
    // In proportion: the tracks have more columns that need their width.
    tables->setSizes({660, 540});

    auto* times = new QHBoxLayout;
    times->setContentsMargins(8, 5, 8, 5);
    m_timeLabel = new QLabel(content);
    QFont bold = m_timeLabel->font();
    bold.setBold(true);
    m_timeLabel->setFont(bold);
    m_viewLabel = new QLabel(content);
    for (QLabel* label : {m_timeLabel, m_viewLabel})
        label->setTextFormat(Qt::PlainText);
    times->addWidget(m_timeLabel);
    times->addStretch();
    times->addWidget(m_viewLabel);

    m_ranges = new RangePanel(m_times, m_review.period(), content);
    m_ranges->hide();
    m_timeline = new TimelinePane(m_times.zoneName(), content);

    auto* layout = new QVBoxLayout(content);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addWidget(tables, 1);
    layout->addWidget(m_ranges);
    layout->addLayout(times);
    layout->addWidget(m_timeline);
    return content;
}

void ReviewWindow::createActions(bool dark)
{
    m_toolBar = addToolBar(QString());
    m_toolBar->setObjectName(u"timelineToolBar"_s);
    m_toolBar->setMovable(false);
    m_toolBar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);

    m_zoomIn = m_toolBar->addAction(PIconHelper::GetPlusIcon_32x32(true), QString());
    m_zoomOut = m_toolBar->addAction(PIconHelper::GetMinusIcon_32x32(true), QString());
    m_wholePeriod = m_toolBar->addAction(QString());
    m_toolBar->addSeparator();
    m_earlier = m_toolBar->addAction(QString());
    m_later = m_toolBar->addAction(QString());
    m_toolBar->addSeparator();
    m_showMarkers = m_toolBar->addAction(QString());
    m_showMarkers->setCheckable(true);
    m_showMarkers->setChecked(true);
    m_showRanges = m_toolBar->addAction(QString());
    m_showRanges->setCheckable(true);
    auto* spacer = new QWidget(m_toolBar);
    spacer->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    m_toolBar->addWidget(spacer);
    m_darkLook = m_toolBar->addAction(QString());
    m_darkLook->setCheckable(true);
    m_darkLook->setChecked(dark);

    m_zoomIn->setShortcut(QKeySequence::ZoomIn);
    m_zoomOut->setShortcut(QKeySequence::ZoomOut);
    m_wholePeriod->setShortcut(Qt::CTRL | Qt::Key_0);
    m_earlier->setShortcut(Qt::ALT | Qt::Key_Left);
    m_later->setShortcut(Qt::ALT | Qt::Key_Right);
}

void ReviewWindow::createStatusBar()
{
    m_countsLabel = new QLabel(this);
    m_countsLabel->setContentsMargins(6, 0, 0, 0);
    m_zoneLabel = new QLabel(this);
    m_zoneLabel->setBuddy(m_zone);
    statusBar()->addWidget(m_countsLabel);
    statusBar()->addPermanentWidget(m_zoneLabel);
    statusBar()->addPermanentWidget(m_zone);
}

void ReviewWindow::connectParts()
{
    connect(m_zoomIn, &QAction::triggered, m_timeline, &TimelinePane::zoomIn);
    connect(m_zoomOut, &QAction::triggered, m_timeline, &TimelinePane::zoomOut);
    connect(m_wholePeriod, &QAction::triggered, m_timeline, &TimelinePane::showWholePeriod);
    connect(m_earlier, &QAction::triggered, m_timeline, &TimelinePane::stepEarlier);
    connect(m_later, &QAction::triggered, m_timeline, &TimelinePane::stepLater);
    connect(m_darkLook, &QAction::toggled, this, &ReviewWindow::createDarkFusionStyle);
    connect(m_showMarkers, &QAction::toggled, m_timeline, &TimelinePane::setMarkersShown);
    connect(m_showRanges, &QAction::toggled, m_ranges, &QWidget::setVisible);

    connect(m_tracks, &TrackModel::checkedTracksChanged, this, &ReviewWindow::showCheckedTracks);
    connect(m_eventView, &QTreeView::activated, this, [this](const QModelIndex& index) {
        m_timeline->jumpTo(m_events->eventOfRow(index.row()).time);
    });

    connect(m_timeline, &TimelinePane::viewChanged, this, &ReviewWindow::showView);
    connect(m_timeline, &TimelinePane::currentTimeChanged, this, &ReviewWindow::showCurrentTime);
    connect(m_timeline, &TimelinePane::markerChosen, this,
            [this](const QUuid& marker) { selectEvent(EventMarkers::indexOf(marker)); });
    connect(m_timeline, &TimelinePane::previewChanged, this, &ReviewWindow::showPreview);

    connect(m_ranges, &RangePanel::viewWanted, this,
            [this] { m_ranges->setRange(m_timeline->view()); });
    connect(m_ranges, &RangePanel::searchWanted, m_timeline, &TimelinePane::setSearchRange);
    connect(m_ranges, &RangePanel::resultWanted, m_timeline, &TimelinePane::setResultRange);
    connect(m_ranges, &RangePanel::clearWanted, m_timeline, &TimelinePane::clearRanges);

    connect(m_zone, &ZoneCombo::zoneChanged, this, &ReviewWindow::setZone);
    connect(m_zone, &ZoneCombo::zoneRefused, this, [this](const QString& text) {
        constexpr int readingTime = 8'000;
        statusBar()->showMessage(
            tr("There is no time zone “%1”. Times stay in %2.").arg(text, m_times.zoneName()),
            readingTime);
    });
}

void ReviewWindow::retranslate()
{
    setWindowTitle(tr("Recording review"));
    m_trackView->setAccessibleName(tr("Tracks"));
    m_eventView->setAccessibleName(tr("Events"));
    m_toolBar->setWindowTitle(tr("Timeline"));
    m_zoomIn->setText(tr("Zoom in"));
    m_zoomOut->setText(tr("Zoom out"));
    m_wholePeriod->setText(tr("Whole period"));
    m_earlier->setText(tr("Earlier"));
    m_later->setText(tr("Later"));
    m_showMarkers->setText(tr("Events"));
    m_showMarkers->setToolTip(tr("Shows the events on the timeline"));
    m_showRanges->setText(tr("Ranges"));
    m_showRanges->setToolTip(tr("Sets a search range and a result range"));
    m_darkLook->setText(tr("Dark look"));
    m_zoneLabel->setText(tr("Time zone"));
    if (m_problems)
        m_problems->retranslate();
    m_ranges->retranslate();
    m_timeline->retranslate();
    m_zone->retranslate();

    const QLocale locale;
    m_countsLabel->setText(tr("Tracks: %1    Recordings: %2    Events: %3")
                               .arg(locale.toString(m_review.tracks.size()),
                                    locale.toString(m_review.recordingCount()),
                                    locale.toString(m_review.events.size())));
    showView();
    showCurrentTime();
}

void ReviewWindow::setZone(const QString& name)
{
    m_times = TimeTexts(name);
    m_tracks->setTimes(m_times);
    m_events->setTimes(m_times);
    m_ranges->setTimes(m_times);
    m_timeline->setZone(name);
    m_preview->hide();
    statusBar()->clearMessage();
    showView();
    showCurrentTime();
}

void ReviewWindow::showCheckedTracks()
{
    m_timeline->setTracks(m_tracks->checkedTracks());
    m_events->setHiddenTracks(m_tracks->uncheckedTracks());

    QList<CorvelGui::RulerMarker> markers;
    markers.reserve(qsizetype(m_events->shownEvents().size()));
    for (const qsizetype index : m_events->shownEvents())
        markers.append(
            EventMarkers::marker(m_events->event(index), index, m_events->trackName(index)));
    m_timeline->setMarkers(markers);
}

void ReviewWindow::showView()
{
    const TimeSpan view = m_timeline->view();
    m_viewLabel->setText(view.isEmpty() ? tr("There is nothing to show.")
                                        : tr("%1 – %2 (%3)")
                                              .arg(m_times.dateTime(view.begin),
                                                   m_times.dateTime(view.end), m_times.zoneName()));
    m_zoomIn->setEnabled(m_timeline->canZoomIn());
    m_zoomOut->setEnabled(m_timeline->canZoomOut());
    m_wholePeriod->setEnabled(!m_timeline->showsWholePeriod());
    m_earlier->setEnabled(m_timeline->canStepEarlier());
    m_later->setEnabled(m_timeline->canStepLater());
}

void ReviewWindow::showCurrentTime()
{
    const qint64 msecs = m_timeline->currentTime();
    m_timeLabel->setText(msecs > 0 ? m_times.exactDateTime(msecs) : QString());
}

void ReviewWindow::selectEvent(qsizetype index)
{
    const QModelIndex row = m_events->rowOf(index);
    if (!row.isValid())
        return;
    m_eventView->setCurrentIndex(row);
    m_eventView->scrollTo(row, QAbstractItemView::PositionAtCenter);
}

void ReviewWindow::showPreview(qint64 msecs, const QPoint& position, bool onMarker)
{
    if (msecs == 0) {
        m_preview->hide();
        return;
    }
    PreviewContent content{
        .time = m_times.exactDateTime(msecs), .events = {}, .tracks = m_tracks->statesAt(msecs)};
    if (onMarker) {
        for (const Event& event : m_events->eventsAt(msecs))
            content.events.append({EventKinds::parse(event.kind), EventMarkers::textOf(event)});
    }
    constexpr int distance = 6;
    m_preview->showContent(content, m_timeline->mapTo(this, position - QPoint(0, distance)));
}

} // namespace Review
