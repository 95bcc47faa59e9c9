// SPDX-License-Identifier: MIT
#include "reviewmenubar.h"

#include "lists/devicepane.h"
#include "lists/eventpane.h"
#include "timeline/timelinetoolbar.h"

#include <QAction>

using namespace Qt::StringLiterals;

namespace Review {

ReviewMenuBar::ReviewMenuBar(const EventPane& events, const DevicePane& devices,
                             const TimelineToolBar& toolBar, QAction* darkLook, QMenu* speeds,
                             QMenu* updates, QMenu* help, QWidget* parent)
    : Translated(parent)
{
    m_file = addMenu(QString());
    m_open = m_file->addAction(QString());
    m_open->setShortcut(QKeySequence::Open);
    m_openFiles = m_file->addAction(QString());
    m_follow = m_file->addAction(QString());
    m_follow->setObjectName(u"followRecording"_s);
    m_follow->setCheckable(true);
    m_follow->setShortcut(Qt::CTRL | Qt::Key_L);
    m_cameraTimes = m_file->addAction(QString());
    m_cameraTimes->setObjectName(u"cameraTimes"_s);
    m_cameraTimes->setShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_T);
    m_file->addSeparator();
    m_savePicture = m_file->addAction(QString());
    m_savePicture->setObjectName(u"savePicture"_s);
    m_savePicture->setShortcut(QKeySequence::Save);
    m_copyPicture = m_file->addAction(QString());
    m_copyPicture->setShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_C);
    m_file->addSeparator();
    m_exportClips = m_file->addAction(QString());
    m_exportClips->setObjectName(u"exportClips"_s);
    m_exportClips->setShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_E);
    m_exportPictures = m_file->addAction(QString());
    m_exportPictures->setObjectName(u"exportPictures"_s);
    m_exportPictures->setShortcut(Qt::CTRL | Qt::Key_E);
    m_exportEvents = events.exportAction();
    m_reportEvents = events.reportAction();
    m_file->addActions({m_exportEvents, m_reportEvents});
    m_file->addSeparator();
    m_quit = m_file->addAction(QString());
    m_quit->setShortcut(QKeySequence::Quit);

    m_devices = addMenu(QString());
    m_devices->addActions(devices.treeActions());

    m_view = addMenu(QString());
    for (QAction* action : toolBar.viewActions()) {
        if (action)
            m_view->addAction(action);
        else
            m_view->addSeparator();
    }
    m_view->addSeparator();
    m_view->addAction(darkLook);

    addMenu(speeds);
    m_tools = addMenu(QString());
    m_tools->menuAction()->setVisible(false);

    addMenu(updates);
    addMenu(help);
    retranslate();
}

QList<QAction*> ReviewMenuBar::exports() const
{
    return {m_exportClips, m_exportPictures, m_exportEvents, m_reportEvents, m_savePicture};
}

void ReviewMenuBar::retranslate()
{
    m_file->setTitle(tr("&File"));
    m_open->setText(tr("&Open folder…"));
    m_openFiles->setText(tr("Open &files…"));
    m_follow->setText(tr("Fo&llow what is being recorded"));
    m_follow->setStatusTip(tr("Looks for new recordings and events every few seconds"));
    m_cameraTimes->setText(tr("&Times of recordings…"));
    m_savePicture->setText(tr("&Save picture…"));
    m_copyPicture->setText(tr("&Copy picture"));
    m_exportClips->setText(tr("Export &recordings…"));
    m_exportPictures->setText(tr("Export &pictures…"));
    m_quit->setText(tr("&Quit"));
    m_devices->setTitle(tr("&Devices"));
    m_view->setTitle(tr("&View"));
    m_tools->setTitle(tr("&Tools"));
}

} // namespace Review
