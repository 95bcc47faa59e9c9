// SPDX-License-Identifier: MIT
#pragma once

#include "data/reviewloader.h"
#include "look/translated.h"
#include "session/clock.h"
#include "session/selection.h"

#include <CorvelGui/IUserSettings>
#include <CorvelGui/PMainWindow>

class QAction;
class QMenu;

namespace CorvelGui {
class PLastActionToolButton;
} // namespace CorvelGui

namespace Review {

struct CameraPicture;
struct EventLine;
class Footage;
class HelpMenu;
class LoadJob;
class ProblemDock;
class RecordingWatch;
class ReviewMenuBar;
class ReviewOpener;
class ReviewPanes;
struct ReviewSettings;
class ReviewStatusBar;
class TimelineToolBar;
class UpdateMenu;

/// The client's window: the panes, and around them menus, tool bar, status bar and the lines that
/// could not be loaded.
class ReviewWindow : public Translated<CorvelGui::PMainWindow>, public IUserSettings
{
    Q_OBJECT

public:
    /// @p zoneName is the zone of all times; an empty one means the zone of this machine.
    ReviewWindow(const QString& zoneName, bool dark, QWidget* parent = nullptr);
    ~ReviewWindow() override;

    /// Replaces all that is shown.
    void setReview(const ReviewData& review, const ProblemList& problems = {});
    /// Shows files, or the sample when none is named, as soon as they are loaded. Not while
    /// another load is under way.
    void load(const ReviewFiles& files);

    /// Shows the day in the middle of the period, with the indicator on the first event after noon.
    void showMiddleDay();

    void play();
    /// Follows what is being recorded, from the newest moment on.
    void follow();

    /// Whether pictures of cameras, markers or files of folders are still to come.
    bool isBusy() const;

    /// For what belongs to the whole program; hidden as long as it is empty.
    QMenu* toolsMenu() const;

    /// Puts the settings into effect as far as they concern the window.
    void applySettings(const ReviewSettings& settings);
    /// Takes what the user can set in the window itself into @p settings.
    void takeSettings(ReviewSettings& settings) const;

    /// Place and size, docks and tool bars, the widths of the panes, and the dialog for news.
    void writeUserSettings(QSettings& settings) const override;
    void readUserSettings(QSettings& settings) override;

Q_SIGNALS:
    /// Emitted when the user changed something that takeSettings() takes.
    void settingsTouched();
    /// Emitted when isBusy() became false.
    void settled();
    /// Emitted when load() has come to its end. With an @p error, which tells the user why a file
    /// cannot be read, the window shows what it did before.
    void loaded(const QString& error);

protected:
    void retranslate() final;
    /// Asks first while something is exported.
    void closeEvent(QCloseEvent* event) override;
    /// Takes files and folders of this machine.
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void createToolBar(bool dark);
    void connectParts();
    void showLoaded(const LoadJob& job);
    void showFound(const LoadJob& job);
    void setFollowing(bool on);
    void tellSettled();
    void tellTimeSources(const Footage& footage);
    void correctTimes();
    void showTitle();
    void exportPictures();
    void exportClips();
    void reportEvents(const QList<EventLine>& events, const QStringList& columns);
    /// Null, and the user is told, where none is shown.
    const CameraPicture* shownPicture();
    void savePicture();
    void copyPicture();
    void enableExport();

    Clock m_clock;
    Selection m_selection;
    bool m_showsSample = false;
    /// What the user calls what is shown; empty for the sample.
    QString m_name;

    ReviewPanes* m_panes;
    ReviewStatusBar* m_status;
    TimelineToolBar* m_toolBar;
    ProblemDock* m_problems;
    UpdateMenu* m_updates;
    HelpMenu* m_help;
    CorvelGui::PLastActionToolButton* m_export;
    QAction* m_darkLook;
    ReviewMenuBar* m_menus;
    ReviewOpener* m_opener;
    RecordingWatch* m_watch;
};

} // namespace Review
