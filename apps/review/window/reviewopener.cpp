// SPDX-License-Identifier: MIT
#include "reviewopener.h"

#include "data/letgo.h"
#include "loadpanel.h"
#include "session/clock.h"

#include <CorvelGui/BusyIndicator>
#include <Hueloft/PMessageBox>

#include <QFileDialog>
#include <QMainWindow>
#include <QStatusBar>

#include <chrono>
#include <utility>

using CorvelGui::BusyIndicator;
using Hueloft::PMessageBox;

namespace Review {

namespace {

constexpr std::chrono::milliseconds quickLoad(200);
/// Files in folders that are not read by then are read later.
constexpr std::chrono::milliseconds longestLoad(2'000);

} // namespace

ReviewOpener::ReviewOpener(QMainWindow* window, const Clock& clock)
    : QObject(window), m_window(window), m_clock(clock)
{}

ReviewOpener::~ReviewOpener() = default;

void ReviewOpener::load(const ReviewFiles& files)
{
    m_pattern = files.pattern;
    start(std::make_unique<LoadJob>(files, m_clock.times().zone(), m_corrections,
                                    ReadingOrder{.patience = longestLoad}));
}

void ReviewOpener::correct(const TimeCorrections& corrections)
{
    m_corrections.folders.insert(m_loaded.files.footageFolder, corrections);
    if (!isLoading())
        start(std::make_unique<LoadJob>(m_loaded, corrections));
}

void ReviewOpener::start(std::unique_ptr<LoadJob> job)
{
    m_job = std::move(job);
    auto* busy = new BusyIndicator(m_window->centralWidget());
    busy->setDelay(quickLoad);
    busy->show();
    auto* panel = new LoadPanel(*m_job);
    // A status bar that gets a widget shows what its message hides, too.
    m_window->statusBar()->clearMessage();
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

void ReviewOpener::setLoaded(const LoadedFiles& loaded)
{
    letGo(std::exchange(m_loaded, loaded));
}

void ReviewOpener::finish()
{
    LoadJob* job = m_job.release();
    job->deleteLater();
    if (!job->isCancelled() && job->error().isEmpty())
        setLoaded(job->read());
    Q_EMIT loadingChanged(false);
    Q_EMIT ended(*job);
    // Corrected meanwhile.
    const TimeCorrections wanted = m_corrections.folders.value(m_loaded.files.footageFolder);
    if (!isLoading() && job->isCorrection() && job->corrections() != wanted)
        correct(wanted);
}

void ReviewOpener::open(const QStringList& paths)
{
    if (paths.isEmpty() || isLoading())
        return;
    ReviewFiles files = ReviewFiles::named(paths);
    files.pattern = m_pattern;
    load(files);
    connect(m_job.get(), &LoadJob::loaded, this, [this, job = m_job.get()] {
        if (!job->error().isEmpty())
            PMessageBox::Warning(m_window, tr("Open"), job->error());
    });
}

void ReviewOpener::askForFolder()
{
    if (const QString folder = QFileDialog::getExistingDirectory(m_window, tr("Open folder"));
        !folder.isEmpty())
        open({folder});
}

void ReviewOpener::askForFiles()
{
    open(QFileDialog::getOpenFileNames(m_window, tr("Open files")));
}

} // namespace Review
