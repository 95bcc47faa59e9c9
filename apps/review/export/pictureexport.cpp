#include "pictureexport.h"

#include "video/picturefile.h"

#include <QDir>
#include <QFileInfo>
#include <QPointer>

using namespace Qt::StringLiterals;

namespace Review {

namespace {

/// Names of cameras are any text.
QString fileNamePart(const QString& camera)
{
    constexpr qsizetype longest = 40;
    QString part = camera.simplified().left(longest);
    for (QChar& character : part) {
        if (!character.isLetterOrNumber() && character != u'-')
            character = u'_';
    }
    return part.isEmpty() ? u"camera"_s : part;
}

/// With the offset, since a clock that is set back shows times twice.
QString timePart(qint64 msecs, const QTimeZone& zone)
{
    const QDateTime time = QDateTime::fromMSecsSinceEpoch(msecs, zone);
    return time.toOffsetFromUtc(time.offsetFromUtc()).toString(Qt::ISODate).remove(u':');
}

} // namespace

PictureTimes ExportPlan::times(const TrackHistory& camera) const
{
    constexpr qint64 msecsPerSecond = 1'000;
    const qint64 step = interval * msecsPerSecond;
    return recordedOnly ? PictureTimes(range, step, camera.recorded()) : PictureTimes(range, step);
}

PictureExport::PictureExport(const CameraFeed& feed, const ExportPlan& plan, QObject* parent)
    : QObject(parent), m_feed(feed), m_plan(plan), m_times(plan.times(feed.history()).all())
{
    connect(&m_timer, &QTimer::timeout, this, &PictureExport::writeNext);
}

int PictureExport::existingFiles() const
{
    int existing = 0;
    for (int i = 0; i < count(); ++i)
        existing += QFileInfo::exists(path(i)) ? 1 : 0;
    return existing;
}

void PictureExport::cancel()
{
    if (m_timer.isActive())
        end(Outcome::Cancelled);
}

void PictureExport::writeNext()
{
    if (m_written == count())
        return end(Outcome::Complete);
    const QString file = path(m_written);
    if (!m_replacing && QFileInfo::exists(file)) {
        m_error = tr("%1 exists already.").arg(QDir::toNativeSeparators(file));
        return end(Outcome::Failed);
    }
    const QImage picture = m_picture.draw(m_feed.sceneAt(m_times[m_written]));
    const QString error = writePicture(picture, file);
    if (!error.isEmpty()) {
        m_error = tr("%1 cannot be written: %2").arg(QDir::toNativeSeparators(file), error);
        return end(Outcome::Failed);
    }
    ++m_written;
    Q_EMIT progressed(m_written);
}

void PictureExport::end(Outcome outcome)
{
    m_timer.stop();
    Q_EMIT ended(outcome);
}

QString PictureExport::path(int index) const
{
    const QString name =
        fileNamePart(m_feed.camera()) + u'_' + timePart(m_times[index], m_feed.times().zone());
    return QDir(m_plan.folder).filePath(name + u".png"_s);
}

} // namespace Review
