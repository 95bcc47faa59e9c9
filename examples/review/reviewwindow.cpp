#include "reviewwindow.h"

#include "problemdock.h"
#include "roomydelegate.h"
#include "timelinepane.h"
#include "trackmodel.h"

#include <Hueloft/PIconHelper>

#include <QAction>
#include <QEvent>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QStatusBar>
#include <QToolBar>
#include <QTreeView>
#include <QVBoxLayout>

using CorvelGui::TimeSpan;
using Hueloft::PIconHelper;
using namespace Qt::StringLiterals;

namespace Review {

namespace {

constexpr int problemDockHeight = 150;

QTreeView* createTrackView(TrackModel* model, QWidget* parent)
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
    view->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    view->header()->setSectionResizeMode(TrackModel::Name, QHeaderView::Stretch);
    view->header()->setSectionsMovable(false);
    return view;
}

} // namespace

ReviewWindow::ReviewWindow(const ReviewData& review, const ProblemList& problems,
                           const QString& zoneName, bool dark, QWidget* parent)
    : PMainWindow(parent)
    , m_review(review)
    , m_times(zoneName)
    , m_tracks(new TrackModel(review.tracks, m_times, this))
    , m_timeline(new TimelinePane(zoneName, this))
    , m_viewLabel(new QLabel(this))
    , m_countsLabel(new QLabel(this))
{
    createDarkFusionStyle(dark);

    auto* content = new QWidget(this);
    m_trackView = createTrackView(m_tracks, content);
    auto* layout = new QVBoxLayout(content);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addWidget(m_trackView, 1);
    layout->addWidget(m_timeline);
    setCentralWidget(content);

    createActions(dark);
    m_viewLabel->setContentsMargins(6, 0, 0, 0);
    statusBar()->addWidget(m_viewLabel);
    statusBar()->addPermanentWidget(m_countsLabel);
    if (problems.count() > 0) {
        m_problems = new ProblemDock(problems, this);
        addDockWidget(Qt::BottomDockWidgetArea, m_problems);
        resizeDocks({m_problems}, {problemDockHeight}, Qt::Vertical);
        m_toolBar->insertAction(m_darkLook, m_problems->toggleViewAction());
    }

    m_timeline->setTracks(m_tracks->checkedTracks());
    m_timeline->setPeriod(m_review.period());
    connect(m_tracks, &TrackModel::checkedTracksChanged, this,
            [this] { m_timeline->setTracks(m_tracks->checkedTracks()); });
    connect(m_timeline, &TimelinePane::viewChanged, this, &ReviewWindow::showView);
    retranslate();
}

void ReviewWindow::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    PMainWindow::changeEvent(event);
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

    connect(m_zoomIn, &QAction::triggered, m_timeline, &TimelinePane::zoomIn);
    connect(m_zoomOut, &QAction::triggered, m_timeline, &TimelinePane::zoomOut);
    connect(m_wholePeriod, &QAction::triggered, m_timeline, &TimelinePane::showWholePeriod);
    connect(m_earlier, &QAction::triggered, m_timeline, &TimelinePane::stepEarlier);
    connect(m_later, &QAction::triggered, m_timeline, &TimelinePane::stepLater);
    connect(m_darkLook, &QAction::toggled, this, &ReviewWindow::createDarkFusionStyle);
}

void ReviewWindow::retranslate()
{
    setWindowTitle(tr("Recording review"));
    m_trackView->setAccessibleName(tr("Tracks"));
    m_toolBar->setWindowTitle(tr("Timeline"));
    m_zoomIn->setText(tr("Zoom in"));
    m_zoomOut->setText(tr("Zoom out"));
    m_wholePeriod->setText(tr("Whole period"));
    m_earlier->setText(tr("Earlier"));
    m_later->setText(tr("Later"));
    m_darkLook->setText(tr("Dark look"));
    if (m_problems)
        m_problems->retranslate();

    const QLocale locale;
    m_countsLabel->setText(tr("Tracks: %1    Recordings: %2    Events: %3")
                               .arg(locale.toString(m_review.tracks.size()),
                                    locale.toString(m_review.recordingCount()),
                                    locale.toString(m_review.events.size())));
    showView();
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

} // namespace Review
