// SPDX-License-Identifier: MIT
#include "clipexport.h"

#include "clipfolder.h"
#include "data/jobprogress.h"
#include "data/leavethread.h"
#include "video/clipcopy.h"
#include "video/videosource.h"

#include <QDir>
#include <QFile>
#include <QLocale>

#include <chrono>
#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace Review {

namespace {

constexpr int steps = 1'000;

} // namespace

qint64 ClipPlan::length() const
{
    qint64 length = 0;
    for (const Camera& camera : cameras)
        for (const VideoFile& stretch :
             VideoSource::stretches(camera.files, range.begin, range.end))
            length += stretch.end - stretch.begin;
    return length;
}

/// What the thread does, and what it leaves behind.
class ClipExport::Work
{
public:
    explicit Work(const ClipPlan& plan) : m_plan(plan) {}

    void run();

    JobProgress progress;
    QString error = {};
    QString folder = {}; ///< once it is there
    QStringList leftOut = {};
    qsizetype files = 0;

private:
    void exportCamera(const Camera& camera, ClipFolder& target);
    void takeFault(const QString& reason);
    void leaveOut(const VideoFile& stretch, const QString& reason);
    bool isEnded() const { return progress.isCancelled() || !error.isEmpty(); }

    const ClipPlan m_plan;
};

void ClipExport::Work::run()
{
    ClipFolder target(m_plan.folder, m_plan.range.begin,
                      m_plan.cameras.isEmpty() ? QTimeZone::utc()
                                               : m_plan.cameras.first().times.zone());
    error = target.create();
    progress.setTotal(m_plan.length());
    for (const Camera& camera : m_plan.cameras)
        if (!isEnded())
            exportCamera(camera, target);
    if (isEnded())
        return;
    files = target.count();
    if (files == 0) {
        error =
            ClipExport::tr("Nothing of this range can be exported.") + u'\n' + leftOut.join(u'\n');
        return;
    }
    error = target.finish(m_plan.events.text(), progress);
    if (!isEnded())
        folder = target.path();
}

void ClipExport::Work::exportCamera(const Camera& camera, ClipFolder& target)
{
    ClipCopy copy([&](qint64 begin) { return target.newFile(camera.name, begin, u"mp4"_s); },
                  progress);
    QString pictureBefore;
    for (const VideoFile& stretch :
         VideoSource::stretches(camera.files, m_plan.range.begin, m_plan.range.end)) {
        if (isEnded())
            return;
        QString reason;
        if (!isPictureFile(stretch.path)) {
            reason = copy.add(stretch);
            takeFault(copy.fault());
        } else if (std::exchange(pictureBefore, stretch.path) != stretch.path) {
            const qint64 taken = stretch.begin - stretch.offset;
            const QString path = target.newFile(camera.name, taken, u"jpg"_s);
            QFile picture(stretch.path);
            if (!picture.open(QIODevice::ReadOnly))
                reason = picture.errorString();
            else if (!picture.copy(path))
                takeFault(picture.errorString());
            else
                target.list(camera.identifier, {path, taken, stretch.end, 0});
            progress.add(stretch.end - stretch.begin);
        }
        if (!reason.isEmpty())
            leaveOut(stretch, reason);
    }
    copy.finish();
    takeFault(copy.fault());
    for (const VideoFile& file : copy.written())
        target.list(camera.identifier, file);
}

void ClipExport::Work::takeFault(const QString& reason)
{
    if (error.isEmpty() && !reason.isEmpty())
        error = ClipExport::tr("%1 cannot be written: %2")
                    .arg(QDir::toNativeSeparators(m_plan.folder), reason);
}

void ClipExport::Work::leaveOut(const VideoFile& stretch, const QString& reason)
{
    leftOut.append(u"%1: %2"_s.arg(QDir::toNativeSeparators(stretch.path), reason));
}

ClipExport::ClipExport(const ClipPlan& plan, QObject* parent)
    : ExportJob(parent)
    , m_work(std::make_shared<Work>(plan))
    , m_thread(QThread::create([work = m_work] { work->run(); }))
{
    connect(m_thread, &QThread::finished, this, &ClipExport::finish);
    m_timer.setInterval(100ms);
    connect(&m_timer, &QTimer::timeout, this,
            [this] { Q_EMIT progressed(int(m_work->progress.partOf(steps))); });
}

ClipExport::~ClipExport()
{
    m_work->progress.cancel();
    leaveThread(m_thread);
}

void ClipExport::start()
{
    m_running = true;
    m_thread->start();
    m_timer.start();
}

void ClipExport::cancel()
{
    if (!m_running)
        return;
    m_work->progress.cancel();
    // A share that does not answer is not waited for.
    constexpr auto patience = 2s;
    QTimer::singleShot(patience, this, &ClipExport::finish);
}

void ClipExport::finish()
{
    if (!std::exchange(m_running, false))
        return;
    m_timer.stop();
    if (!m_thread->isFinished()) {
        Q_EMIT ended(Outcome::Cancelled);
        return;
    }
    m_error = m_work->error;
    m_folder = m_work->folder;
    m_files = m_work->files;
    m_leftOut = m_work->leftOut;
    const Outcome other = m_error.isEmpty() ? Outcome::Cancelled : Outcome::Failed;
    Q_EMIT ended(m_folder.isEmpty() ? other : Outcome::Complete);
}

int ClipExport::count() const
{
    return steps;
}

QString ClipExport::title() const
{
    return tr("Export recordings");
}

QString ClipExport::activity() const
{
    return tr("Exporting recordings");
}

QString ClipExport::remainder() const
{
    return tr("Recordings are still being exported: %1 % are written.")
        .arg(m_work->progress.percent());
}

std::function<QString()> ClipExport::report(Outcome outcome) const
{
    return [outcome, files = m_files] {
        return outcome == Outcome::Complete
                   ? tr("Recordings exported, in files: %1").arg(QLocale().toString(files))
                   : tr("Export ended early. Nothing is left of it.");
    };
}

QString ClipExport::leftOut() const
{
    return m_leftOut.join(u'\n');
}

} // namespace Review
