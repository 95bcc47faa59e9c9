// SPDX-License-Identifier: MIT
#include "exportpanel.h"

#include "clipdialog.h"
#include "data/eventwriter.h"
#include "data/filewriter.h"
#include "exportdialog.h"
#include "filenames.h"
#include "pictureexport.h"
#include "reportdialog.h"
#include "video/camerapicture.h"

#include <CorvelGui/PFractionalProgressBar>
#include <CorvelGui/StringHelper>
#include <CorvelGui/TaskbarProgress>
#include <CorvelGui/ToolShellHelper>
#include <Hueloft/PMessageBox>

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFutureWatcher>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPointer>
#include <QPromise>
#include <QStandardPaths>
#include <QThreadPool>
#include <QToolButton>
#include <QWindow>

#include <algorithm>

using CorvelGui::PFractionalProgressBar;
using CorvelGui::StringHelper;
using CorvelGui::TaskbarProgress;
using CorvelGui::TimeSpan;
using CorvelGui::ToolShellHelper;
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

/// Not every user has the folder of that name.
QString userFolder(QStandardPaths::StandardLocation location)
{
    const QString folder = QStandardPaths::writableLocation(location);
    return QFileInfo(folder).isDir() ? folder : QDir::homePath();
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
    , m_pictureFolder(userFolder(QStandardPaths::PicturesLocation))
    , m_clipFolder(userFolder(QStandardPaths::MoviesLocation))
    , m_eventFolder(userFolder(QStandardPaths::DocumentsLocation))
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
    connect(m_open, &QToolButton::clicked, this, &ExportPanel::openReported);
    connect(m_close, &QToolButton::clicked, m_report, &QWidget::hide);
    retranslate();
}

ExportPanel::~ExportPanel() = default;

void ExportPanel::askForPictures(const Camera& chosen, const TimeSpan& view,
                                 const TimeSpan& selectedRange)
{
    const Camera camera = chosen;
    const QPointer<ExportPanel> alive(this);
    const QPointer dialog =
        new ExportDialog(camera, view, selectedRange, m_pictureFolder, window());
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

void ExportPanel::askForClips(const QList<Camera>& cameras, const QString& chosen,
                              const Events& events, const TimeSpan& view,
                              const TimeSpan& selectedRange)
{
    const QPointer<ExportPanel> alive(this);
    const QPointer dialog =
        new ClipDialog(cameras, chosen, view, selectedRange, m_clipFolder, window());
    const Events all = events;
    const bool accepted = dialog->exec() == QDialog::Accepted;
    if (!alive || !dialog)
        return;
    const ClipPlan plan = dialog->plan(all);
    dialog->deleteLater();
    if (!accepted || m_export)
        return;
    m_clipFolder = plan.folder;
    start(std::make_unique<ClipExport>(plan));
}

void ExportPanel::askForPicture(const CameraPicture& shown)
{
    const CameraPicture picture = shown;
    const QStringList forms{tr("JPEG, camera and time in its EXIF data (*.jpg *.jpeg)"),
                            tr("JPEG, camera and time below the picture (*.jpg *.jpeg)"),
                            tr("PNG, camera and time below the picture (*.png)")};
    QString form = forms[int(m_pictureForm)];
    const bool wasPng = m_pictureForm == PictureForm::PngWithCaption;
    const QString name = FileNames::cameraPart(picture.camera) + u'_' +
                         FileNames::timePart(picture.instant, QTimeZone(picture.offset)) +
                         (wasPng ? u".png"_s : u".jpg"_s);
    const QPointer<ExportPanel> alive(this);
    QString path = QFileDialog::getSaveFileName(window(), tr("Save picture"),
                                                QDir(m_pictureFolder).filePath(name),
                                                forms.join(u";;"_s), &form);
    if (!alive || path.isEmpty())
        return;
    m_pictureForm = PictureForm(std::max<qsizetype>(0, forms.indexOf(form)));
    // What was typed counts more than what was chosen.
    const QString ending = QFileInfo(path).suffix().toLower();
    if (ending == u"png"_s)
        m_pictureForm = PictureForm::PngWithCaption;
    else if (isPictureFile(path) && m_pictureForm == PictureForm::PngWithCaption)
        m_pictureForm = PictureForm::JpegWithCaption;
    m_pictureFolder = QFileInfo(path).absolutePath();
    if (const QString error = writePicture(picture, m_pictureForm, path); !error.isEmpty()) {
        tellUnwritten(tr("Save picture"), path, error);
        return;
    }
    report(path, [] { return tr("Picture saved"); });
}

void ExportPanel::tellUnwritten(const QString& title, const QString& path, const QString& error)
{
    PMessageBox::Warning(window(), title,
                         tr("%1 cannot be written: %2").arg(QDir::toNativeSeparators(path), error));
}

void ExportPanel::askForEvents(const EventWriter& events)
{
    const EventWriter chosen = events;
    const QPointer<ExportPanel> alive(this);
    const QString path = QFileDialog::getSaveFileName(window(), tr("Export events"),
                                                      QDir(m_eventFolder).filePath(u"events.csv"_s),
                                                      tr("Comma-separated values (*.csv)"));
    if (!alive || path.isEmpty())
        return;
    m_eventFolder = QFileInfo(path).absolutePath();
    report({}, [] { return tr("Exporting events"); });
    // The program waits for it before it ends; only then nobody is told.
    const auto written = std::make_shared<QPromise<QString>>();
    auto* watcher = new QFutureWatcher<QString>(this);
    connect(watcher, &QFutureWatcherBase::finished, this,
            [this, watcher, path, count = chosen.count()] {
                watcher->deleteLater();
                const QString error = watcher->result();
                if (error.isEmpty())
                    return report(path, [count] {
                        return tr("Events exported: %1").arg(QLocale().toString(count));
                    });
                m_report->hide();
                tellUnwritten(tr("Export events"), path, error);
            });
    watcher->setFuture(written->future());
    written->start();
    QThreadPool::globalInstance()->start([written, chosen, path] {
        written->addResult(writeFile(chosen.text(), path));
        written->finish();
    });
}

void ExportPanel::askForReport(const ReportPlan& plan)
{
    const QPointer<ExportPanel> alive(this);
    const QPointer dialog = new ReportDialog(plan, m_eventFolder, window());
    dialog->exec();
    if (!alive || !dialog)
        return;
    const QString path = dialog->savedFile();
    dialog->deleteLater();
    if (path.isEmpty())
        return;
    m_eventFolder = QFileInfo(path).absolutePath();
    report(path, [] { return tr("Report saved"); });
}

bool ExportPanel::mayQuit()
{
    if (!m_export)
        return true;
    return PMessageBox::Question(window(), m_export->title(),
                                 m_export->remainder() + u' ' + tr("Quit all the same?"),
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

void ExportPanel::start(std::unique_ptr<ExportJob> job)
{
    m_export = std::move(job);
    connect(m_export.get(), &ExportJob::progressed, m_progress, &QProgressBar::setValue);
    // Not before the export has come to rest.
    connect(m_export.get(), &ExportJob::ended, this, &ExportPanel::finish, Qt::QueuedConnection);
    m_progress->setRange(0, m_export->count());
    m_progress->setValue(0);
    showActivity();
    m_report->hide();
    m_running->show();

    m_taskbar = std::make_unique<TaskbarProgress>();
    m_taskbar->setWindow(window()->windowHandle());
    m_taskbar->setRange(0, m_export->count());
    m_taskbar->show();
    connect(m_export.get(), &ExportJob::progressed, m_taskbar.get(), &TaskbarProgress::setValue);
    m_export->start();
    Q_EMIT exportingChanged(true);
}

void ExportPanel::finish(ExportJob::Outcome outcome)
{
    if (!tellFaults(outcome))
        return;
    m_taskbar->hide();
    m_taskbar.reset();
    const std::unique_ptr<ExportJob> job = std::move(m_export);
    m_running->hide();
    report(job->folder(), job->report(outcome));
    Q_EMIT exportingChanged(false);
}

/// Returns whether the panel is still there after it.
bool ExportPanel::tellFaults(ExportJob::Outcome outcome)
{
    const QString details =
        outcome == ExportJob::Outcome::Failed ? m_export->error() : m_export->leftOut();
    if (outcome == ExportJob::Outcome::Cancelled || details.isEmpty())
        return true;
    const QPointer<ExportPanel> alive(this);
    if (outcome == ExportJob::Outcome::Failed)
        m_taskbar->stop();
    PMessageBox::Warning(window(), m_export->title(),
                         outcome == ExportJob::Outcome::Failed
                             ? tr("The export has stopped.")
                             : tr("Some recordings could not be exported."),
                         QMessageBox::Ok, QMessageBox::NoButton, details);
    return alive;
}

void ExportPanel::report(const QString& path, const std::function<QString()>& text)
{
    m_reportPath = path;
    m_reportText = text;
    m_open->setToolTip(StringHelper::plainToolTip(QDir::toNativeSeparators(path)));
    m_open->setVisible(!path.isEmpty());
    showReport();
    m_report->show();
}

void ExportPanel::showReport()
{
    m_outcome->setText(m_reportText());
    m_open->setText(QFileInfo(m_reportPath).isDir() ? tr("Open folder") : tr("Show in folder"));
}

void ExportPanel::openReported()
{
    const auto tell = [this, path = m_reportPath](bool shown) {
        if (!shown)
            PMessageBox::Information(
                window(), tr("Open folder"),
                tr("No program shows %1.").arg(QDir::toNativeSeparators(path)));
    };
    if (QFileInfo(m_reportPath).isDir())
        tell(ToolShellHelper::openDocument(m_reportPath));
    else
        ToolShellHelper::showInFolder(m_reportPath, this, tell);
}

void ExportPanel::showActivity()
{
    if (!m_export)
        return;
    m_label->setText(m_export->activity());
    m_progress->setAccessibleName(m_export->activity());
}

void ExportPanel::retranslate()
{
    showActivity();
    m_cancel->setText(tr("Cancel"));
    m_close->setText(tr("Close"));
    m_close->setToolTip(tr("Close this message"));
    if (m_reportText)
        showReport();
}

} // namespace Review
