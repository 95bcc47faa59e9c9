#include "loadjob.h"

#include "data/sampledata.h"

#include <QDir>

namespace Review {

LoadJob::LoadJob(const ReviewFiles& files, const QTimeZone& zone, QObject* parent)
    : QObject(parent), m_files(files), m_zone(zone), m_thread(QThread::create([this] { load(); }))
{
    connect(m_thread.get(), &QThread::finished, this, &LoadJob::loaded);
}

LoadJob::~LoadJob()
{
    m_loader.progress().cancel();
    m_thread->wait();
}

void LoadJob::load()
{
    if (m_files.isEmpty()) {
        m_data = SampleData::make();
        return;
    }
    if (!m_files.footage.isEmpty())
        findFootage();
    m_error = m_loader.load(m_files);
    if (!m_error.isEmpty() || m_loader.progress().isCancelled())
        return;
    m_data = m_loader.data();
    if (m_data.tracks.isEmpty() && m_data.events.isEmpty() && !m_files.footage.isEmpty())
        m_error = tr("There are neither recordings nor events in %1.")
                      .arg(QDir::toNativeSeparators(m_files.footage.first()));
}

void LoadJob::findFootage()
{
    FootageIndex index(FootageIndex::userFile());
    const PathPattern pattern =
        m_files.pattern.isEmpty() ? PathPattern() : PathPattern(m_files.pattern);
    FootageScan scan(pattern, m_zone, index, m_loader.progress());
    scan.scan(m_files.footage);
    index.save();
    m_timeSources = scan.sources();
    for (const FootageScan::Recording& recording : scan.recordings())
        m_loader.add(recording.camera, recording.file);
}

} // namespace Review
