#include "exportpanel.h"

#include "data/eventwriter.h"
#include "data/filewriter.h"
#include "exportdialog.h"

#include <CorvelGui/PFractionalProgressBar>
#include <CorvelGui/TaskbarProgress>
#include <Hueloft/PMessageBox>

#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPointer>
#include <QStandardPaths>
#include <QToolButton>
#include <QUrl>
#include <QWindow>

using CorvelGui::PFractionalProgressBar;
using CorvelGui::TaskbarProgress;
using CorvelGui::TimeSpan;
using Hueloft::PMessageBox;
using namespace Qt::StringLiterals;

namespace Review {

namespace {

/// Hidden as yet.
QWidget* createRow(const QList<QWidget*>& widgets)
{
    auto* row = new QWidget;
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 12, 0);
    for (QWidget* widget : widgets)
        layout->addWidget(widget);
    row->hide();
    return row;
}

} // namespace

ExportPanel::ExportPanel(QWidget* parent)
    : Translated(parent)
    , m_label(new QLabel)
    , m_progress(new PFractionalProgressBar)
    , m_cancel(new QToolButton)
    , m_running(createRow({m_label, m_progress, m_cancel}))
    , m_outcome(new QLabel)
    , m_open(new QToolButton)
    , m_close(new QToolButton)
    , m_report(createRow({m_outcome, m_open, m_close}))
    , m_pictureFolder(QStandardPaths::writableLocation(QStandardPaths::PicturesLocation))
    , m_eventFolder(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation))
{
    constexpr int progressWidth = 180;
    m_progress->setFixedWidth(progressWidth);
    m_progress->setAlignment(Qt::AlignCenter);
    m_outcome->setTextFormat(Qt::PlainText);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_running);
    layout->addWidget(m_report);
    connect(m_cancel, &QToolButton::clicked, this, [this] {
        if (m_export)
            m_export->cancel();
    });
    connect(m_open, &QToolButton::clicked, this, &ExportPanel::openFolder);
    connect(m_close, &QToolButton::clicked, m_report, &QWidget::hide);
    retranslate();
}

ExportPanel::~ExportPanel() = default;

void ExportPanel::askForPictures(const Camera& chosen, const TimeSpan& view,
                                 const TimeSpan& searchRange)
{
    const Camera camera = chosen;
    const QPointer<ExportPanel> alive(this);
    const QPointer dialog = new ExportDialog(camera, view, searchRange, m_pictureFolder, window());
    const bool accepted = dialog->exec() == QDialog::Accepted;
    if (!alive || !dialog)
        return;
    const ExportPlan plan = dialog->plan();
    dialog->deleteLater();
    if (!accepted || m_export)
        return;
    m_pictureFolder = plan.folder;
    auto job = std::make_unique<PictureExport>(camera, plan);
    if (mayStart(*job) && alive)
        start(std::move(job));
}

void ExportPanel::askForEvents(const EventWriter& events)
{
    const QByteArray text = events.text();
    const qsizetype count = events.count();
    const QPointer<ExportPanel> alive(this);
    const QString path = QFileDialog::getSaveFileName(window(), tr("Export events"),
                                                      QDir(m_eventFolder).filePath(u"events.csv"_s),
                                                      tr("Comma-separated values (*.csv)"));
    if (!alive || path.isEmpty())
        return;
    m_eventFolder = QFileInfo(path).absolutePath();
    if (const QString error = writeFile(text, path); !error.isEmpty()) {
        PMessageBox::Warning(
            window(), tr("Export events"),
            tr("%1 cannot be written: %2").arg(QDir::toNativeSeparators(path), error));
        return;
    }
    report(m_eventFolder,
           [count] { return tr("Events exported: %1").arg(QLocale().toString(count)); });
}

bool ExportPanel::mayQuit()
{
    if (!m_export)
        return true;
    const QLocale locale;
    return PMessageBox::Question(
               window(), tr("Export pictures"),
               tr("Pictures are still being exported: %1 of %2 are written. Quit all the same?")
                   .arg(locale.toString(m_export->written()), locale.toString(m_export->count())),
               QMessageBox::No) == QMessageBox::Yes;
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
    m_report->hide();
    m_running->show();

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
    const int written = m_export->written();
    const int count = m_export->count();
    const QString folder = m_export->folder();
    if (outcome == PictureExport::Outcome::Failed) {
        const QPointer<ExportPanel> alive(this);
        m_taskbar->stop();
        PMessageBox::Warning(window(), tr("Export pictures"), tr("The export has stopped."),
                             QMessageBox::Ok, QMessageBox::NoButton, m_export->error());
        if (!alive)
            return;
    }
    m_taskbar->hide();
    m_taskbar.reset();
    m_export.reset();
    m_running->hide();
    report(folder, [outcome, written, count] {
        const QLocale locale;
        return outcome == PictureExport::Outcome::Complete
                   ? tr("Pictures exported: %1").arg(locale.toString(count))
                   : tr("Export ended early. Pictures written: %1 of %2.")
                         .arg(locale.toString(written), locale.toString(count));
    });
    Q_EMIT exportingChanged(false);
}

void ExportPanel::report(const QString& folder, const std::function<QString()>& text)
{
    m_reportFolder = folder;
    m_reportText = text;
    m_outcome->setText(text());
    m_open->setToolTip(QDir::toNativeSeparators(folder).toHtmlEscaped());
    m_report->show();
}

void ExportPanel::openFolder()
{
    if (!QDesktopServices::openUrl(QUrl::fromLocalFile(m_reportFolder)))
        PMessageBox::Information(
            window(), tr("Open folder"),
            tr("No program shows %1.").arg(QDir::toNativeSeparators(m_reportFolder)));
}

void ExportPanel::retranslate()
{
    m_label->setText(tr("Exporting pictures"));
    m_progress->setAccessibleName(tr("Exporting pictures"));
    m_cancel->setText(tr("Cancel"));
    m_open->setText(tr("Open folder"));
    m_close->setText(tr("Close"));
    m_close->setToolTip(tr("Close this message"));
    if (m_reportText)
        m_outcome->setText(m_reportText());
}

} // namespace Review
