#include "loadjob.h"

#include "sampledata.h"

namespace Review {

LoadJob::LoadJob(const ReviewFiles& files, QObject* parent)
    : QObject(parent), m_files(files), m_thread(QThread::create([this] { load(); }))
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
    m_error = m_loader.load(m_files);
    if (m_error.isEmpty() && !m_loader.progress().isCancelled())
        m_data = m_loader.data();
}

} // namespace Review
