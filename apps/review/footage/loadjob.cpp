// SPDX-License-Identifier: MIT
#include "loadjob.h"

#include "data/leavethread.h"
#include "data/letgo.h"
#include "data/sampledata.h"

#include <QDir>
#include <QFileInfo>
#include <QTimer>

#include <chrono>
#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace Review {

namespace {

LoadedFiles begun(const ReviewFiles& files, const QTimeZone& zone)
{
    return {.named = files, .footage = Footage(zone)};
}

} // namespace

/// What the thread does, and what it leaves behind.
class LoadJob::Work
{
public:
    Work(const LoadedFiles& begin, const FolderCorrections& corrections,
         const ReadingOrder& readingOrder, LoadedFiles before = {})
        : loaded(begin)
        , isRead(false)
        , ofFolders(corrections)
        , order(readingOrder)
        , known(std::move(before))
    {}
    Work(const LoadedFiles& before, const TimeCorrections& corrections)
        : loaded(before), isRead(true), ofCameras(corrections)
    {}

    void run();

    LoadedFiles loaded;
    const bool isRead;
    ReviewLoader loader = {};
    QString error = {};
    bool hasNewLists = false;
    bool hasNews = false;

private:
    void read();
    void readLists();

    const FolderCorrections ofFolders = {};
    TimeCorrections ofCameras = {};
    const ReadingOrder order = {};
    const LoadedFiles known = {};
};

void LoadJob::Work::run()
{
    if (loaded.named.isEmpty()) {
        loaded.data = SampleData::make();
        return;
    }
    if (!isRead)
        read();
    if (!error.isEmpty() || loader.progress().isCancelled())
        return;
    ReviewData& data = loaded.data;
    data = loaded.footage.addTo(loaded.listed, ofCameras);
    data.sort();
    data.shareWith(known.data);
    if (!data.tracks.isEmpty() || !data.events.isEmpty() || loaded.files.footage.isEmpty())
        return;
    error = LoadJob::tr("There are neither recordings nor events in %1.")
                .arg(QDir::toNativeSeparators(loaded.files.footage.first()));
    if (loader.problems().count() > 0) {
        const Problem& problem = loader.problems().listed().first();
        error += u"\n%1: %2"_s.arg(QDir::toNativeSeparators(problem.file), problem.text.text());
    }
}

void LoadJob::Work::readLists()
{
    const ReviewFiles& files = loaded.files;
    // Asked first: what is written meanwhile is found the next time.
    for (const QString& list : {files.recordings, files.deployments, files.events}) {
        const QFileInfo info(list);
        loaded.lists.append({list.isEmpty() ? QDateTime() : info.lastModified(), info.size()});
    }
    hasNewLists = loaded.lists != known.lists;
    if (hasNewLists) {
        error = loader.load(files, loaded.footage.zone());
        loaded.listed = loader.data();
    } else {
        loaded.listed = known.listed;
    }
}

void LoadJob::Work::read()
{
    const QStringList named = loaded.named.footage + QStringList{loaded.named.unseen};
    for (const QString& path : named) {
        if (path.isEmpty() || QFileInfo::exists(path))
            continue;
        error = LoadJob::tr("There is no file or folder “%1”.").arg(QDir::toNativeSeparators(path));
        return;
    }
    loaded.files = loaded.named.located();
    const ReviewFiles& files = loaded.files;
    ofCameras = ofFolders.folders.value(files.footageFolder);
    if (!files.footage.isEmpty()) {
        FootageIndex index = known.index ? *known.index : FootageIndex(FootageIndex::userFile());
        FootageScan scan(PathPattern(files.pattern), index, loader.progress(), loader.problems(),
                         order);
        scan.scan(files.footage, loaded.footage);
        index.save();
        loaded.index = index;
    }
    readLists();
    hasNews = hasNewLists || !loaded.footage.hasSameRecordings(known.footage);
}

LoadJob::LoadJob(const ReviewFiles& files, const QTimeZone& zone,
                 const FolderCorrections& corrections, const ReadingOrder& order, QObject* parent)
    : LoadJob(std::make_shared<Work>(begun(files, zone), corrections, order), {}, parent)
{}

LoadJob::LoadJob(const LoadedFiles& known, const FolderCorrections& corrections,
                 const ReadingOrder& order, QObject* parent)
    : LoadJob(std::make_shared<Work>(begun(known.named, known.footage.zone()), corrections, order,
                                     known),
              {}, parent)
{}

LoadJob::LoadJob(const LoadedFiles& known, const TimeCorrections& corrections, QObject* parent)
    : LoadJob(std::make_shared<Work>(known, corrections), corrections, parent)
{}

LoadJob::LoadJob(std::shared_ptr<Work> work, const TimeCorrections& corrections, QObject* parent)
    : QObject(parent)
    , m_work(std::move(work))
    , m_files(m_work->loaded.named)
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
    letGo(std::move(m_work));
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
    return m_work->loaded.data;
}

const LoadedFiles& LoadJob::read() const
{
    return m_work->loaded;
}

const ProblemList& LoadJob::problems() const
{
    return m_work->loader.problems();
}

bool LoadJob::hasNewLists() const
{
    return m_work->hasNewLists;
}

bool LoadJob::hasNews() const
{
    return m_work->hasNews;
}

QString LoadJob::error() const
{
    return isCancelled() ? QString() : m_work->error;
}

} // namespace Review
