#include "loadjob.h"

#include "data/leavethread.h"
#include "data/sampledata.h"
#include "footagescan.h"

#include <QDir>
#include <QFileInfo>
#include <QTimer>

#include <chrono>
#include <utility>

using namespace std::chrono_literals;

namespace Review {

/// What the thread does, and what it leaves behind.
class LoadJob::Work
{
public:
    Work(const LoadedFiles& begin, const FolderCorrections& corrections)
        : loaded(begin), isRead(false), ofFolders(corrections)
    {}
    Work(const LoadedFiles& known, const TimeCorrections& corrections)
        : loaded(known), isRead(true), ofCameras(corrections)
    {}

    void run();

    LoadedFiles loaded;
    const bool isRead;
    ReviewLoader loader = {};
    ReviewData data = {};
    QString error = {};

private:
    void read();

    const FolderCorrections ofFolders = {};
    TimeCorrections ofCameras = {};
};

void LoadJob::Work::run()
{
    if (loaded.files.isEmpty()) {
        data = SampleData::make();
        return;
    }
    if (!isRead)
        read();
    if (!error.isEmpty() || loader.progress().isCancelled())
        return;
    data = loaded.footage.addTo(loaded.listed, ofCameras);
    data.sort();
    if (data.tracks.isEmpty() && data.events.isEmpty() && !loaded.files.footage.isEmpty())
        error = LoadJob::tr("There are neither recordings nor events in %1.")
                    .arg(QDir::toNativeSeparators(loaded.files.footage.first()));
}

void LoadJob::Work::read()
{
    const QStringList named = loaded.files.footage + QStringList{loaded.files.unseen};
    for (const QString& path : named) {
        if (path.isEmpty() || QFileInfo::exists(path))
            continue;
        error = LoadJob::tr("There is no file or folder “%1”.").arg(QDir::toNativeSeparators(path));
        return;
    }
    loaded.files = loaded.files.located();
    const ReviewFiles& files = loaded.files;
    ofCameras = ofFolders.folders.value(files.footageFolder);
    if (!files.footage.isEmpty()) {
        FootageIndex index(FootageIndex::userFile());
        FootageScan scan(PathPattern(files.pattern), index, loader.progress());
        scan.scan(files.footage, loaded.footage);
        index.save();
    }
    error = loader.load(files, loaded.footage.zone());
    loaded.listed = loader.data();
}

LoadJob::LoadJob(const ReviewFiles& files, const QTimeZone& zone,
                 const FolderCorrections& corrections, QObject* parent)
    : LoadJob(std::make_shared<Work>(LoadedFiles{files, {}, Footage(zone)}, corrections), {},
              parent)
{}

LoadJob::LoadJob(const LoadedFiles& known, const TimeCorrections& corrections, QObject* parent)
    : LoadJob(std::make_shared<Work>(known, corrections), corrections, parent)
{}

LoadJob::LoadJob(std::shared_ptr<Work> work, const TimeCorrections& corrections, QObject* parent)
    : QObject(parent)
    , m_work(std::move(work))
    , m_files(m_work->loaded.files)
    , m_corrections(corrections)
    , m_isCorrection(m_work->isRead)
    , m_thread(QThread::create([work = m_work] { work->run(); }))
{
    connect(m_thread, &QThread::finished, this, &LoadJob::end);
}

LoadJob::~LoadJob()
{
    m_work->loader.progress().cancel();
    leaveThread(m_thread);
}

void LoadJob::cancel()
{
    m_work->loader.progress().cancel();
    // A share that does not answer is not waited for.
    constexpr auto patience = 2s;
    QTimer::singleShot(patience, this, &LoadJob::end);
}

void LoadJob::end()
{
    if (!std::exchange(m_ended, true))
        Q_EMIT loaded();
}

bool LoadJob::isCancelled() const
{
    return m_work->loader.progress().isCancelled();
}

int LoadJob::percent() const
{
    return m_work->loader.progress().percent();
}

const ReviewData& LoadJob::data() const
{
    return m_work->data;
}

const LoadedFiles& LoadJob::read() const
{
    return m_work->loaded;
}

const ProblemList& LoadJob::problems() const
{
    return m_work->loader.problems();
}

QString LoadJob::error() const
{
    return isCancelled() ? QString() : m_work->error;
}

} // namespace Review
