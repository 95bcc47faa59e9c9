#pragma once

#include "look/translated.h"
#include "pictureexport.h"

#include <QWidget>

#include <memory>

class QLabel;
class QToolButton;

namespace CorvelGui {
class PFractionalProgressBar;
class TaskbarProgress;
} // namespace CorvelGui

namespace Review {

/// Exports pictures, and shows how far that is: in a status bar, and on the taskbar. Hidden while
/// nothing is exported.
class ExportPanel : public Translated<QWidget>
{
    Q_OBJECT

public:
    explicit ExportPanel(QWidget* parent = nullptr);
    ~ExportPanel() override;

    /// Asks what to export of a camera and exports it. Not while an export is under way.
    void ask(const CameraFeed& feed, const CorvelGui::TimeSpan& view,
             const CorvelGui::TimeSpan& searchRange);
    bool isExporting() const { return m_export != nullptr; }

Q_SIGNALS:
    /// Emitted whenever isExporting() changed.
    void exportingChanged(bool exporting);
    /// Tells the user in one sentence how an export that did not fail has ended.
    void reported(const QString& text);

protected:
    void retranslate() final;

private:
    bool mayStart(PictureExport& job);
    void start(std::unique_ptr<PictureExport> job);
    void finish(PictureExport::Outcome outcome);

    QLabel* m_label;
    CorvelGui::PFractionalProgressBar* m_progress;
    QToolButton* m_cancel;
    QString m_folder; // of the export before
    std::unique_ptr<CorvelGui::TaskbarProgress> m_taskbar;
    std::unique_ptr<PictureExport> m_export;
};

} // namespace Review
