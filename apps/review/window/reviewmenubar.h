// SPDX-License-Identifier: MIT
#pragma once

#include "look/translated.h"

#include <QMenuBar>

namespace Review {

class DevicePane;
class EventPane;
class TimelineToolBar;

/// The client's menus, made of the actions of its panes and of some of their own.
class ReviewMenuBar : public Translated<QMenuBar>
{
    Q_OBJECT

public:
    ReviewMenuBar(const EventPane& events, const DevicePane& devices,
                  const TimelineToolBar& toolBar, QAction* darkLook, QMenu* speeds, QMenu* updates,
                  QMenu* help, QWidget* parent = nullptr);

    QAction* open() const { return m_open; }
    QAction* openFiles() const { return m_openFiles; }
    /// Checkable: whether what is being recorded is followed.
    QAction* follow() const { return m_follow; }
    QAction* cameraTimes() const { return m_cameraTimes; }
    QAction* exportClips() const { return m_exportClips; }
    QAction* exportPictures() const { return m_exportPictures; }
    QAction* savePicture() const { return m_savePicture; }
    QAction* copyPicture() const { return m_copyPicture; }
    QAction* quit() const { return m_quit; }
    /// All that exports something, by the names of the objects.
    QList<QAction*> exports() const;
    /// For what belongs to the whole program; hidden as long as it is empty.
    QMenu* tools() const { return m_tools; }

protected:
    void retranslate() final;

private:
    QMenu* m_file;
    QAction* m_open;
    QAction* m_openFiles;
    QAction* m_follow;
    QAction* m_cameraTimes;
    QAction* m_exportClips;
    QAction* m_exportPictures;
    QAction* m_exportEvents;
    QAction* m_reportEvents;
    QAction* m_savePicture;
    QAction* m_copyPicture;
    QAction* m_quit;
    QMenu* m_devices;
    QMenu* m_view;
    QMenu* m_tools;
};

} // namespace Review
