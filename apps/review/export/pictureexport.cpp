// SPDX-License-Identifier: MIT
#include "pictureexport.h"

#include "filenames.h"
#include "video/camerapicture.h"
#include "video/picturefile.h"

#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QPointer>

using namespace Qt::StringLiterals;

namespace Review {

namespace {

// Pictures come in their order: enough for the way from a key frame.
constexpr qint64 exportBytes = qint64(32) << 20;

} // namespace

PictureTimes ExportPlan::times(const TrackHistory& camera) const
{
    constexpr qint64 msecsPerSecond = 1'000;
    const qint64 step = interval * msecsPerSecond;
    return recordedOnly ? PictureTimes(range, step, camera.recorded()) : PictureTimes(range, step);
}

PictureExport::PictureExport(const Camera& camera, const ExportPlan& plan, QObject* parent)
    : ExportJob(parent)
    , m_camera(camera)
    , m_plan(plan)
    , m_times(plan.times(camera.history).all())
    , m_decoder(camera.files, exportBytes)
{
    connect(&m_decoder, &CameraDecoder::frameReady, this, &PictureExport::write);
}

int PictureExport::existingFiles() const
{
    int existing = 0;
    for (int i = 0; i < count(); ++i)
        existing += QFileInfo::exists(path(i)) ? 1 : 0;
    return existing;
}

void PictureExport::start()
{
    m_running = true;
    askForNext();
}

void PictureExport::cancel()
{
    if (m_running)
        end(Outcome::Cancelled);
}

void PictureExport::askForNext()
{
    if (m_written == count())
        return end(Outcome::Complete);
    if (const QString file = path(m_written); !m_replacing && QFileInfo::exists(file)) {
        m_error = tr("%1 exists already.").arg(QDir::toNativeSeparators(file));
        return end(Outcome::Failed);
    }
    m_decoder.request(m_times[m_written], Clip::Accuracy::Exact);
}

void PictureExport::write(const VideoFrame& frame)
{
    if (!m_running)
        return;
    const QString file = path(m_written);
    const QString error = writePicture(CameraPicture(m_camera, frame).withTexts(), file);
    if (!error.isEmpty()) {
        m_error = tr("%1 cannot be written: %2").arg(QDir::toNativeSeparators(file), error);
        return end(Outcome::Failed);
    }
    ++m_written;
    const QPointer<PictureExport> alive(this);
    Q_EMIT progressed(m_written);
    if (alive && m_running)
        askForNext();
}

void PictureExport::end(Outcome outcome)
{
    m_running = false;
    Q_EMIT ended(outcome);
}

QString PictureExport::path(int index) const
{
    const QString name = FileNames::cameraPart(m_camera.name) + u'_' +
                         FileNames::timePart(m_times[index], m_camera.times.zone());
    return QDir(m_plan.folder).filePath(name + u".png"_s);
}

QString PictureExport::title() const
{
    return tr("Export pictures");
}

QString PictureExport::activity() const
{
    return tr("Exporting pictures");
}

QString PictureExport::remainder() const
{
    const QLocale locale;
    return tr("Pictures are still being exported: %1 of %2 are written.")
        .arg(locale.toString(m_written), locale.toString(count()));
}

std::function<QString()> PictureExport::report(Outcome outcome) const
{
    return [outcome, written = m_written, count = count()] {
        const QLocale locale;
        return outcome == Outcome::Complete
                   ? tr("Pictures exported: %1").arg(locale.toString(count))
                   : tr("Export ended early. Pictures written: %1 of %2.")
                         .arg(locale.toString(written), locale.toString(count));
    };
}

} // namespace Review
