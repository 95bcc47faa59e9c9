#pragma once

#include "look/translated.h"
#include "pictureexport.h"

#include <QWidget>

#include <functional>
#include <memory>

class QLabel;
class QToolButton;

namespace CorvelGui {
class PFractionalProgressBar;
class TaskbarProgress;
} // namespace CorvelGui

namespace Review {

class EventWriter;

/// Exports pictures and events. Shows how far that is, in a status bar and on the taskbar, and
/// afterwards what came of it, until the user has seen enough. Hidden when there is nothing to say.
class ExportPanel : public Translated<QWidget>
{
    Q_OBJECT

public:
    explicit ExportPanel(QWidget* parent = nullptr);
    ~ExportPanel() override;

    /// Asks what to export of a camera and exports it. Not while pictures are exported.
    void askForPictures(const Camera& camera, const CorvelGui::TimeSpan& view,
                        const CorvelGui::TimeSpan& searchRange);
    /// Asks where to put the events.
    void askForEvents(const EventWriter& events);

    /// Whether pictures are exported.
    bool isExporting() const { return m_export != nullptr; }
    /// Whether the program may quit: asks the user while pictures are exported.
    bool mayQuit();

Q_SIGNALS:
    /// Emitted whenever isExporting() changed.
    void exportingChanged(bool exporting);

protected:
    void retranslate() final;

private:
    bool mayStart(PictureExport& job);
    void start(std::unique_ptr<PictureExport> job);
    void finish(PictureExport::Outcome outcome);
    void report(const QString& folder, const std::function<QString()>& text);
    void openFolder();

    QLabel* m_label;
    CorvelGui::PFractionalProgressBar* m_progress;
    QToolButton* m_cancel;
    QWidget* m_running;
    QLabel* m_outcome;
    QToolButton* m_open;
    QToolButton* m_close;
    QWidget* m_report;

    QString m_pictureFolder; // of the export before
    QString m_eventFolder;
    QString m_reportFolder;
    /// In the language of the moment.
    std::function<QString()> m_reportText;
    std::unique_ptr<CorvelGui::TaskbarProgress> m_taskbar;
    std::unique_ptr<PictureExport> m_export;
};

} // namespace Review
