#include "reviewopener.h"

#include "data/loadjob.h"
#include "loadpanel.h"

#include <CorvelGui/BusyIndicator>
#include <Hueloft/PMessageBox>

#include <QDir>
#include <QFileDialog>
#include <QMainWindow>
#include <QStatusBar>

#include <chrono>

using CorvelGui::BusyIndicator;
using Hueloft::PMessageBox;

namespace Review {

namespace {

constexpr std::chrono::milliseconds quickLoad(200);

} // namespace

ReviewOpener::ReviewOpener(QMainWindow* window) : QObject(window), m_window(window) {}

ReviewOpener::~ReviewOpener() = default;

void ReviewOpener::load(const ReviewFiles& files)
{
    m_job = std::make_unique<LoadJob>(files);
    auto* busy = new BusyIndicator(m_window->centralWidget());
    busy->setDelay(quickLoad);
    busy->show();
    auto* panel = new LoadPanel(*m_job);
    m_window->statusBar()->addPermanentWidget(panel);
    connect(m_job.get(), &LoadJob::loaded, busy, [busy, panel] {
        busy->hide();
        busy->deleteLater();
        delete panel;
    });
    connect(m_job.get(), &LoadJob::loaded, this, &ReviewOpener::finish);
    Q_EMIT loadingChanged(true);
    m_job->start();
}

void ReviewOpener::finish()
{
    LoadJob* job = m_job.release();
    job->deleteLater();
    Q_EMIT loadingChanged(false);
    Q_EMIT ended(*job);
}

void ReviewOpener::askForFolder()
{
    const QString folder = QFileDialog::getExistingDirectory(m_window, tr("Open folder"));
    if (folder.isEmpty())
        return;
    const ReviewFiles files = ReviewFiles::inFolder(folder);
    if (files.isEmpty()) {
        PMessageBox::Warning(m_window, tr("Open folder"),
                             tr("There is no recordings.csv, events.csv or deployments.csv in %1.")
                                 .arg(QDir::toNativeSeparators(folder)));
        return;
    }
    load(files);
    connect(m_job.get(), &LoadJob::loaded, this, [this, job = m_job.get()] {
        if (!job->error().isEmpty())
            PMessageBox::Warning(m_window, tr("Open folder"), job->error());
    });
}

} // namespace Review
