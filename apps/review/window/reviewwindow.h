#pragma once

#include "data/reviewloader.h"
#include "look/timetexts.h"

#include <CorvelGui/IUserSettings>
#include <CorvelGui/PMainWindow>

#include <memory>

class QAction;
class QLabel;
class QMenu;
class QSplitter;

namespace Review {

class DevicePane;
class EventPane;
class ExportPanel;
class LoadJob;
class PlaybackPane;
class Player;
class PreviewCard;
class ProblemDock;
class RangePanel;
class ReviewMenuBar;
struct ReviewSettings;
class TimelinePane;
class TimelineToolBar;
class TransportBar;
class UpdateMenu;
class ZoneCombo;

/// The client's window: cameras, the picture of one of them, and events; the timeline that shows
/// the checked ones, and what plays it; the lines that could not be loaded.
class ReviewWindow : public CorvelGui::PMainWindow, public IUserSettings
{
    Q_OBJECT

public:
    /// @p zoneName is the zone of all times; an empty one means the zone of this machine.
    ReviewWindow(const QString& zoneName, bool dark, QWidget* parent = nullptr);

    /// Replaces all that is shown.
    void setReview(const ReviewData& review, const ProblemList& problems = {});
    /// Shows files, or the sample when none is named, as soon as they are loaded. Not while
    /// another load is under way.
    void load(const ReviewFiles& files);

    ~ReviewWindow() override;

    /// Shows the day in the middle of the period, with the indicator on the first event after noon.
    void showMiddleDay();

    /// For what belongs to the whole program; hidden as long as it is empty.
    QMenu* toolsMenu() const;

    /// Puts the settings into effect as far as they concern the window.
    void applySettings(const ReviewSettings& settings);
    /// Takes what the user can set in the window itself into @p settings.
    void takeSettings(ReviewSettings& settings) const;

    /// Place and size, docks and tool bars, and the widths of the panes.
    void writeUserSettings(QSettings& settings) const override;
    void readUserSettings(QSettings& settings) override;

Q_SIGNALS:
    /// Emitted when the user changed something that takeSettings() takes.
    void settingsTouched();
    /// Emitted when load() has come to its end. With an @p error, which tells the user why a file
    /// cannot be read, the window shows what it did before.
    void loaded(const QString& error);

protected:
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    QWidget* createContent();
    QWidget* createTables(QWidget* parent);
    void createToolBar(bool dark);
    void createStatusBar();
    void connectParts();
    void connectPlayer();
    void restoreTables();
    void retranslate();

    void openFolder();
    void finishLoading();
    void exportPictures();
    void enableExport();
    void setTimes(const TimeTexts& times, const QString& zoneName);
    void renewSample();
    void showCounts();
    void showCheckedTracks();
    void showView();
    void showCameraOf(qsizetype event);
    void showCurrentTime();
    void showPreview(qint64 msecs, const QPoint& position, bool onMarker);

    ReviewData m_review;
    bool m_showsSample = false;
    TimeTexts m_times;
    QSplitter* m_tables;
    /// Until the window is shown.
    QByteArray m_tablesState;
    DevicePane* m_devices;
    EventPane* m_events;
    PlaybackPane* m_playback;
    RangePanel* m_ranges;
    TransportBar* m_transport;
    TimelinePane* m_timeline;
    Player* m_player;
    PreviewCard* m_preview;
    ProblemDock* m_problems;
    std::unique_ptr<LoadJob> m_loading;

    TimelineToolBar* m_toolBar;
    QAction* m_darkLook;
    UpdateMenu* m_updates;
    ReviewMenuBar* m_menus;

    ExportPanel* m_exportPanel;
    QLabel* m_countsLabel;
    QLabel* m_zoneLabel;
    ZoneCombo* m_zone;
};

} // namespace Review
