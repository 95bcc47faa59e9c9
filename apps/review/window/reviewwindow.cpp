// SPDX-License-Identifier: MIT
#include "reviewwindow.h"

#include "cameratimesdialog.h"
#include "data/sampledata.h"
#include "export/eventreport.h"
#include "export/exportpanel.h"
#include "footage/loadjob.h"
#include "helpmenu.h"
#include "lists/devicepane.h"
#include "lists/eventpane.h"
#include "lists/problemdock.h"
#include "options/reviewsettings.h"
#include "playback/playbackpane.h"
#include "playback/player.h"
#include "playback/speedmenu.h"
#include "playback/transportbar.h"
#include "recordingwatch.h"
#include "reviewmenubar.h"
#include "reviewopener.h"
#include "reviewpanes.h"
#include "reviewstatusbar.h"
#include "timeline/followmenu.h"
#include "timeline/rangepanel.h"
#include "timeline/timelinepane.h"
#include "timeline/timelinetoolbar.h"
#include "updatemenu.h"
#include "video/camerapicture.h"

#include <CorvelGui/PLastActionToolButton>
#include <CorvelGui/RSSFeedDialog>

#include <QAction>
#include <QCheckBox>
#include <QClipboard>
#include <QCloseEvent>
#include <QGuiApplication>
#include <QLocale>
#include <QMenu>
#include <QMimeData>
#include <QPointer>
#include <QSettings>
#include <QUrl>

#include <algorithm>

using CorvelGui::PLastActionToolButton;
using namespace Qt::StringLiterals;

namespace Review {

namespace {

constexpr int problemDockHeight = 150;

const QString geometryKey = u"Window/Geometry"_s;
const QString stateKey = u"Window/State"_s;
const QString tablesKey = u"Window/Tables"_s;
const QString exportGroup = u"Export"_s;

} // namespace

ReviewWindow::ReviewWindow(const QString& zoneName, bool dark, QWidget* parent)
    : Translated(parent)
    , m_clock(zoneName)
    , m_panes(new ReviewPanes(m_clock, m_selection, this))
    , m_status(new ReviewStatusBar(m_clock, this))
    , m_toolBar(new TimelineToolBar(m_panes->timeline(), this))
    , m_problems(new ProblemDock(this))
    , m_updates(new UpdateMenu(this, m_status))
    , m_help(new HelpMenu(this))
    , m_opener(new ReviewOpener(this, m_clock))
    , m_watch(new RecordingWatch(m_opener))
{
    createDarkFusionStyle(dark);
    setCentralWidget(m_panes);
    setStatusBar(m_status);
    setAcceptDrops(true);
    createToolBar(dark);
    addDockWidget(Qt::BottomDockWidgetArea, m_problems);
    m_menus = new ReviewMenuBar(m_panes->events(), m_panes->devices(), *m_toolBar, m_darkLook,
                                new SpeedMenu(*m_panes->player(), this), m_updates, m_help, this);
    setMenuBar(m_menus);
    m_export->menu()->addActions(m_menus->exports());
    connectParts();
    m_menus->cameraTimes()->setEnabled(false);
    enableExport();
    retranslate();
}

ReviewWindow::~ReviewWindow()
{
    // The panes look at clock and selection to the end.
    delete m_panes;
}

QMenu* ReviewWindow::toolsMenu() const
{
    return m_menus->tools();
}

void ReviewWindow::setReview(const ReviewData& review, const ProblemList& problems)
{
    m_showsSample = false;
    m_name.clear();
    m_menus->cameraTimes()->setEnabled(false);
    m_panes->setReview(review);
    m_status->setCounts(review);
    showTitle();
    m_problems->setProblems(problems);
    resizeDocks({m_problems}, {problemDockHeight}, Qt::Vertical);
    enableExport();
}

void ReviewWindow::load(const ReviewFiles& files)
{
    m_opener->load(files);
}

void ReviewWindow::showLoaded(const LoadJob& job)
{
    if (job.isCancelled() || !job.error().isEmpty()) {
        Q_EMIT loaded(job.error());
        return;
    }
    if (job.isCorrection()) {
        m_panes->setTimes(job.data());
        return;
    }
    setReview(job.data(), job.problems());
    m_showsSample = job.files().isEmpty();
    m_name = job.read().files.name();
    showTitle();
    tellTimeSources(job.read().footage);
    m_menus->cameraTimes()->setEnabled(!job.read().footage.isEmpty());
    if (m_watch->isFollowing())
        m_panes->showNewest();
    Q_EMIT loaded({});
}

void ReviewWindow::showFound(const LoadJob& job)
{
    m_panes->renew(job.data(), job.hasNewLists());
    m_status->setCounts(job.data());
    if (job.hasNewLists())
        m_problems->setProblems(job.problems());
    m_menus->cameraTimes()->setEnabled(!job.read().footage.isEmpty());
}

void ReviewWindow::tellTimeSources(const Footage& footage)
{
    if (!footage.isEmpty())
        m_status->tell(tr("Where the times of recordings come from: %1; zone: %2")
                           .arg(CameraTimesDialog::sourcesText(footage.sources()),
                                QString::fromUtf8(footage.zone().id())));
}

void ReviewWindow::correctTimes()
{
    const LoadedFiles& loaded = m_opener->loaded();
    const QString folder = loaded.files.footageFolder;
    const QPointer dialog = new CameraTimesDialog(
        loaded.footage, m_opener->corrections().folders.value(folder), m_clock.times(), this);
    connect(dialog, &CameraTimesDialog::applied, this, [this, dialog] {
        m_opener->correct(dialog->corrections());
        Q_EMIT settingsTouched();
    });
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}

void ReviewWindow::dragEnterEvent(QDragEnterEvent* event)
{
    const QList<QUrl> urls = event->mimeData()->urls();
    if (!m_opener->isLoading() && std::ranges::any_of(urls, &QUrl::isLocalFile))
        event->acceptProposedAction();
}

void ReviewWindow::dropEvent(QDropEvent* event)
{
    QStringList paths;
    for (const QUrl& url : event->mimeData()->urls())
        if (url.isLocalFile())
            paths.append(url.toLocalFile());
    event->acceptProposedAction();
    m_opener->open(paths);
}

void ReviewWindow::showMiddleDay()
{
    m_panes->showMiddleDay();
}

void ReviewWindow::play()
{
    m_panes->player()->setSpeed(CorvelGui::PPlaybar::Speed1);
}

bool ReviewWindow::isBusy() const
{
    return m_panes->isBusy() || m_watch->isReading();
}

void ReviewWindow::tellSettled()
{
    if (!isBusy())
        Q_EMIT settled();
}

void ReviewWindow::follow()
{
    m_menus->follow()->setChecked(true);
}

void ReviewWindow::setFollowing(bool on)
{
    m_watch->setFollowing(on);
    if (on)
        m_panes->showNewest();
}

void ReviewWindow::createToolBar(bool dark)
{
    addToolBar(m_toolBar);
    auto* spacer = new QWidget(m_toolBar);
    spacer->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    m_toolBar->addWidget(spacer);
    m_export = new PLastActionToolButton(m_toolBar);
    m_toolBar->addWidget(m_export);
    m_toolBar->addAction(m_problems->toggleViewAction());
    m_darkLook = m_toolBar->addAction(QString());
    m_darkLook->setCheckable(true);
    m_darkLook->setChecked(dark);
}

void ReviewWindow::connectParts()
{
    connect(m_menus->open(), &QAction::triggered, m_opener, &ReviewOpener::askForFolder);
    connect(m_menus->openFiles(), &QAction::triggered, m_opener, &ReviewOpener::askForFiles);
    connect(m_opener, &ReviewOpener::loadingChanged, m_menus->open(), &QAction::setDisabled);
    connect(m_opener, &ReviewOpener::loadingChanged, m_menus->openFiles(), &QAction::setDisabled);
    connect(m_opener, &ReviewOpener::ended, this, &ReviewWindow::showLoaded);
    connect(m_menus->exportPictures(), &QAction::triggered, this, &ReviewWindow::exportPictures);
    connect(m_menus->cameraTimes(), &QAction::triggered, this, &ReviewWindow::correctTimes);
    connect(m_menus->exportClips(), &QAction::triggered, this, &ReviewWindow::exportClips);
    connect(m_menus->savePicture(), &QAction::triggered, this, &ReviewWindow::savePicture);
    connect(m_menus->copyPicture(), &QAction::triggered, this, &ReviewWindow::copyPicture);
    connect(&m_panes->events(), &EventPane::exportWanted, m_status->exportPanel(),
            &ExportPanel::askForEvents);
    connect(&m_panes->events(), &EventPane::reportWanted, this, &ReviewWindow::reportEvents);
    connect(m_status->exportPanel(), &ExportPanel::exportingChanged, this,
            &ReviewWindow::enableExport);
    connect(&m_panes->playback(), &PlaybackPane::cameraChanged, this, &ReviewWindow::enableExport);
    connect(m_panes, &ReviewPanes::settled, this, &ReviewWindow::tellSettled);
    connect(m_watch, &RecordingWatch::finished, this, &ReviewWindow::tellSettled);
    connect(m_watch, &RecordingWatch::found, this, &ReviewWindow::showFound);
    connect(m_panes->timeline(), &TimelinePane::viewSettled, m_watch, &RecordingWatch::setView);
    connect(m_toolBar->newest(), &QAction::triggered, m_panes, &ReviewPanes::showNewest);
    connect(m_menus->follow(), &QAction::toggled, this, &ReviewWindow::setFollowing);
    connect(m_menus->quit(), &QAction::triggered, this, &QWidget::close);
    connect(m_panes, &ReviewPanes::told, m_status, &ReviewStatusBar::tell);
    connect(m_toolBar->showRanges(), &QAction::toggled, m_panes->ranges(), &QWidget::setVisible);
    connect(m_darkLook, &QAction::toggled, this, &ReviewWindow::createDarkFusionStyle);

    connect(m_status, &ReviewStatusBar::zoneChosen, this, &ReviewWindow::settingsTouched);
    connect(m_darkLook, &QAction::triggered, this, &ReviewWindow::settingsTouched);
    for (const QAction* action :
         {m_toolBar->showActivity(), m_toolBar->showLanes(), m_toolBar->showEventDetails(),
          m_toolBar->freeZoom(), m_toolBar->dragSelects()})
        connect(action, &QAction::triggered, this, &ReviewWindow::settingsTouched);
    connect(m_toolBar->followMenu(), &FollowMenu::chosen, this, &ReviewWindow::settingsTouched);
    connect(m_panes->transport()->skipGaps(), &QCheckBox::clicked, this,
            &ReviewWindow::settingsTouched);
}

void ReviewWindow::retranslate()
{
    showTitle();
    m_darkLook->setText(tr("Dar&k look"));
    // Its names and texts are those of the language; a file keeps its own.
    if (m_showsSample)
        m_panes->setTexts(SampleData::make());
}

void ReviewWindow::showTitle()
{
    const QString name = m_showsSample ? tr("Sample") : m_name;
    setWindowTitle(name.isEmpty() ? tr("Recording review") : tr("%1 – Recording review").arg(name));
}

void ReviewWindow::exportPictures()
{
    const TimelinePane* timeline = m_panes->timeline();
    if (const Camera* camera = m_panes->playback().camera())
        m_status->exportPanel()->askForPictures(*camera, timeline->view(), timeline->chosenRange());
}

void ReviewWindow::exportClips()
{
    const TimelinePane* timeline = m_panes->timeline();
    const QList<Camera> cameras = m_panes->playback().cameras();
    if (!cameras.isEmpty())
        m_status->exportPanel()->askForClips(cameras, m_selection.camera(),
                                             m_panes->events().events().events(), timeline->view(),
                                             timeline->chosenRange());
}

void ReviewWindow::reportEvents(const QList<EventLine>& events, const QStringList& columns)
{
    m_status->exportPanel()->askForReport({.subject = m_showsSample ? tr("Sample") : m_name,
                                           .columns = columns,
                                           .events = events,
                                           .cameras = m_panes->playback().cameras(),
                                           .times = m_clock.times()});
}

const CameraPicture* ReviewWindow::shownPicture()
{
    const CameraPicture* picture = m_panes->playback().picture();
    if (picture && !picture->image.isNull())
        return picture;
    m_status->tell(tr("There is no picture of this camera at this time."));
    return nullptr;
}

void ReviewWindow::savePicture()
{
    if (const CameraPicture* picture = shownPicture())
        m_status->exportPanel()->askForPicture(*picture);
}

void ReviewWindow::copyPicture()
{
    const CameraPicture* picture = shownPicture();
    if (!picture)
        return;
    QGuiApplication::clipboard()->setImage(picture->withCaption());
    m_status->tell(tr("The picture is on the clipboard."));
}

void ReviewWindow::closeEvent(QCloseEvent* event)
{
    if (m_status->exportPanel()->mayQuit())
        Translated::closeEvent(event);
    else
        event->ignore();
}

void ReviewWindow::enableExport()
{
    const bool hasCamera = m_panes->playback().camera();
    const bool canExport = hasCamera && !m_panes->timeline()->view().isEmpty() &&
                           !m_status->exportPanel()->isExporting();
    m_menus->exportPictures()->setEnabled(canExport);
    m_menus->exportClips()->setEnabled(canExport);
    m_menus->savePicture()->setEnabled(hasCamera);
    m_menus->copyPicture()->setEnabled(hasCamera);
}

void ReviewWindow::applySettings(const ReviewSettings& settings)
{
    m_darkLook->setChecked(settings.dark);
    m_clock.set(settings.zone, settings.timeFormat);
    m_panes->transport()->skipGaps()->setChecked(settings.skipGaps);
    m_toolBar->showActivity()->setChecked(settings.activity);
    m_toolBar->showLanes()->setChecked(settings.lanes);
    m_toolBar->showEventDetails()->setChecked(settings.eventDetails);
    m_toolBar->freeZoom()->setChecked(settings.freeZoom);
    m_toolBar->dragSelects()->setChecked(settings.dragSelects);
    m_toolBar->followMenu()->setMode(settings.followMode);
    m_panes->player()->setShortcuts(settings.shortcuts);
    m_updates->setServers(settings.servers);
    m_help->setNewsAddress(QUrl(settings.servers.news));
    m_opener->setCorrections(settings.corrections);
}

void ReviewWindow::takeSettings(ReviewSettings& settings) const
{
    settings.dark = m_darkLook->isChecked();
    settings.zone = m_clock.zoneName();
    settings.skipGaps = m_panes->transport()->skipGaps()->isChecked();
    settings.activity = m_toolBar->showActivity()->isChecked();
    settings.lanes = m_toolBar->showLanes()->isChecked();
    settings.eventDetails = m_toolBar->showEventDetails()->isChecked();
    settings.freeZoom = m_toolBar->freeZoom()->isChecked();
    settings.dragSelects = m_toolBar->dragSelects()->isChecked();
    settings.followMode = m_toolBar->followMenu()->mode();
    settings.corrections = m_opener->corrections();
}

void ReviewWindow::writeUserSettings(QSettings& settings) const
{
    settings.setValue(geometryKey, saveGeometry());
    settings.setValue(stateKey, saveState());
    settings.setValue(tablesKey, m_panes->saveWidths());
    m_help->news()->writeUserSettings(settings);
    settings.beginGroup(exportGroup);
    m_export->writeUserSettings(settings);
    settings.endGroup();
}

void ReviewWindow::readUserSettings(QSettings& settings)
{
    restoreGeometry(settings.value(geometryKey).toByteArray());
    restoreState(settings.value(stateKey).toByteArray());
    m_panes->restoreWidths(settings.value(tablesKey).toByteArray());
    m_help->news()->readUserSettings(settings);
    settings.beginGroup(exportGroup);
    m_export->readUserSettings(settings);
    settings.endGroup();
}

} // namespace Review
