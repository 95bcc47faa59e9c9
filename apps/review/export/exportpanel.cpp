#include "exportpanel.h"

#include "exportdialog.h"

#include <CorvelGui/PFractionalProgressBar>
#include <CorvelGui/TaskbarProgress>
#include <Hueloft/PMessageBox>

#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPointer>
#include <QStandardPaths>
#include <QToolButton>
#include <QWindow>

using CorvelGui::PFractionalProgressBar;
using CorvelGui::TaskbarProgress;
using CorvelGui::TimeSpan;
using Hueloft::PMessageBox;

namespace Review {

ExportPanel::ExportPanel(QWidget* parent)
    : Translated(parent)
    , m_label(new QLabel(this))
    , m_progress(new PFractionalProgressBar(this))
    , m_cancel(new QToolButton(this))
    , m_folder(QStandardPaths::writableLocation(QStandardPaths::PicturesLocation))
{
    constexpr int progressWidth = 180;
    m_progress->setFixedWidth(progressWidth);
    m_progress->setAlignment(Qt::AlignCenter);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 12, 0);
    layout->addWidget(m_label);
    layout->addWidget(m_progress);
    layout->addWidget(m_cancel);
    connect(m_cancel, &QToolButton::clicked, this, [this] {
        if (m_export)
            m_export->cancel();
    });
    retranslate();
    hide();
}

ExportPanel::~ExportPanel() = default;

void ExportPanel::ask(const CameraFeed& feed, const TimeSpan& view, const TimeSpan& searchRange)
{
    const CameraFeed camera = feed;
    const QPointer<ExportPanel> alive(this);
    const QPointer dialog = new ExportDialog(camera, view, searchRange, m_folder, window());
    const bool accepted = dialog->exec() == QDialog::Accepted;
    if (!alive || !dialog)
        return;
    const ExportPlan plan = dialog->plan();
    dialog->deleteLater();
    if (!accepted || m_export)
        return;
    m_folder = plan.folder;
    auto job = std::make_unique<PictureExport>(camera, plan);
    if (mayStart(*job) && alive)
        start(std::move(job));
}

bool ExportPanel::mayStart(PictureExport& job)
{
    const int existing = job.existingFiles();
    if (existing == 0)
        return true;
    job.setReplacing(true);
    const QLocale locale;
    return PMessageBox::Question(window(), tr("Export pictures"),
                                 tr("Files that exist already: %1 of %2. Replace them?")
                                     .arg(locale.toString(existing), locale.toString(job.count())),
                                 QMessageBox::No) == QMessageBox::Yes;
}

void ExportPanel::start(std::unique_ptr<PictureExport> job)
{
    m_export = std::move(job);
    connect(m_export.get(), &PictureExport::progressed, m_progress, &QProgressBar::setValue);
    // Not before the export has come to rest.
    connect(m_export.get(), &PictureExport::ended, this, &ExportPanel::finish,
            Qt::QueuedConnection);
    m_progress->setRange(0, m_export->count());
    m_progress->setValue(0);
    show();

    m_taskbar = std::make_unique<TaskbarProgress>();
    m_taskbar->setWindow(window()->windowHandle());
    m_taskbar->setRange(0, m_export->count());
    m_taskbar->show();
    connect(m_export.get(), &PictureExport::progressed, m_taskbar.get(),
            &TaskbarProgress::setValue);
    m_export->start();
    Q_EMIT exportingChanged(true);
}

void ExportPanel::finish(PictureExport::Outcome outcome)
{
    const QLocale locale;
    const QString written = locale.toString(m_export->written());
    const QString count = locale.toString(m_export->count());
    const QPointer<ExportPanel> alive(this);
    if (outcome == PictureExport::Outcome::Failed) {
        m_taskbar->stop();
        PMessageBox::Warning(
            window(), tr("Export pictures"),
            tr("The export has stopped. Pictures written: %1 of %2.").arg(written, count),
            QMessageBox::Ok, QMessageBox::NoButton, m_export->error());
        if (!alive)
            return;
    }
    m_taskbar->hide();
    m_taskbar.reset();
    m_export.reset();
    hide();
    Q_EMIT exportingChanged(false);
    if (!alive || outcome == PictureExport::Outcome::Failed)
        return;
    Q_EMIT reported(outcome == PictureExport::Outcome::Complete
                        ? tr("Pictures exported: %1").arg(count)
                        : tr("Export cancelled. Pictures written: %1 of %2.").arg(written, count));
}

void ExportPanel::retranslate()
{
    m_label->setText(tr("Exporting pictures"));
    m_progress->setAccessibleName(tr("Exporting pictures"));
    m_cancel->setText(tr("Cancel"));
}

} // namespace Review
