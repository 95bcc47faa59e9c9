// SPDX-License-Identifier: MIT
#pragma once

#include "clipexport.h"
#include "look/translated.h"
#include "video/picturefile.h"

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

struct CameraPicture;
class Events;
class EventWriter;
struct ReportPlan;
class PictureExport;

/// Exports pictures, clips and events. Shows how far that is, in a status bar and on the taskbar,
/// and afterwards what came of it, until the user has seen enough. Hidden when there is nothing to
/// say.
class ExportPanel : public Translated<QWidget>
{
    Q_OBJECT

public:
    explicit ExportPanel(QWidget* parent = nullptr);
    ~ExportPanel() override;

    /// Asks which pictures of a camera to export. Not while something is exported.
    void askForPictures(const Camera& camera, const CorvelGui::TimeSpan& view,
                        const CorvelGui::TimeSpan& selectedRange);
    /// Asks which cameras to export, of which range, with @p events in it. Not while something is
    /// exported.
    void askForClips(const QList<Camera>& cameras, const QString& chosen, const Events& events,
                     const CorvelGui::TimeSpan& view, const CorvelGui::TimeSpan& selectedRange);
    /// Asks where to put a picture, and in which form.
    void askForPicture(const CameraPicture& picture);
    /// Asks where to put the events.
    void askForEvents(const EventWriter& events);

    /// Lets the user save or print a report of events.
    void askForReport(const ReportPlan& plan);

    /// Whether pictures or clips are exported.
    bool isExporting() const { return m_export != nullptr; }
    /// Whether the program may quit: asks the user while something is exported.
    bool mayQuit();

Q_SIGNALS:
    /// Emitted whenever isExporting() changed.
    void exportingChanged(bool exporting);

protected:
    void retranslate() final;

private:
    bool mayStart(PictureExport& job);
    void start(std::unique_ptr<ExportJob> job);
    void finish(ExportJob::Outcome outcome);
    bool tellFaults(ExportJob::Outcome outcome);
    void showActivity();
    /// The file or folder at @p path is what was exported; it may be empty.
    void report(const QString& path, const std::function<QString()>& text);
    void showReport();
    void tellUnwritten(const QString& title, const QString& path, const QString& error);
    void openReported();

    QLabel* m_label;
    CorvelGui::PFractionalProgressBar* m_progress;
    QToolButton* m_cancel;
    QWidget* m_running;
    QLabel* m_outcome;
    QToolButton* m_open;
    QToolButton* m_close;
    QWidget* m_report;

    QString m_pictureFolder; // of the export before
    PictureForm m_pictureForm = PictureForm::Jpeg;
    QString m_clipFolder;
    QString m_eventFolder;
    QString m_reportPath;
    /// In the language of the moment.
    std::function<QString()> m_reportText;
    std::unique_ptr<CorvelGui::TaskbarProgress> m_taskbar;
    std::unique_ptr<ExportJob> m_export;
};

} // namespace Review
