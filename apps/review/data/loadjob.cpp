#include "loadjob.h"

#include "sampledata.h"

namespace Review {

LoadJob::LoadJob(const ReviewFiles& files, QObject* parent)
    : QObject(parent)
    , m_isSample(files.isEmpty())
    , m_thread(QThread::create([this, files] { load(files); }))
{
    connect(m_thread.get(), &QThread::finished, this, &LoadJob::loaded);
}

LoadJob::~LoadJob()
{
    m_thread->wait();
}

void LoadJob::load(const ReviewFiles& files)
{
    if (files.isEmpty()) {
        m_data = SampleData::make();
        return;
    }
    ReviewLoader loader;
    m_error = loader.load(files);
    if (m_error.isEmpty()) {
        m_data = loader.data();
        m_problems = loader.problems();
    }
}

} // namespace Review
