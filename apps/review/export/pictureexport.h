#pragma once

#include "picturetimes.h"
#include "video/camera.h"
#include "video/cameradecoder.h"

#include <QObject>

namespace Review {

/// Which pictures of a camera are exported, and where to.
struct ExportPlan
{
    CorvelGui::TimeSpan range = {};
    /// Seconds from one picture to the next.
    int interval = 1;
    /// Whether times without a recording are passed over. Their pictures only say so.
    bool recordedOnly = true;
    QString folder = {};

    PictureTimes times(const TrackHistory& camera) const;
};

/// Writes pictures of a camera, with their texts, as PNG files. They are decoded on a thread, one
/// after the other. Each file is written whole or not at all.
class PictureExport : public QObject
{
    Q_OBJECT

public:
    enum class Outcome { Complete, Cancelled, Failed };

    PictureExport(const Camera& camera, const ExportPlan& plan, QObject* parent = nullptr);

    int count() const { return int(m_times.size()); }
    /// How many pictures are written so far.
    int written() const { return m_written; }
    /// How many of the files exist already.
    int existingFiles() const;
    /// Replaces files that exist. Without it, such a file ends the export.
    void setReplacing(bool replace) { m_replacing = replace; }

    void start();
    /// Leaves what is written. Does nothing when the export has ended.
    void cancel();
    /// What went wrong, after Outcome::Failed.
    const QString& error() const { return m_error; }
    const QString& folder() const { return m_plan.folder; }

Q_SIGNALS:
    /// Emitted after each picture.
    void progressed(int written);
    /// Emitted once. The export may be deleted then.
    void ended(Review::PictureExport::Outcome outcome);

private:
    void askForNext();
    void write(const VideoFrame& frame);
    void end(Outcome outcome);
    QString path(int index) const;

    const Camera m_camera;
    ExportPlan m_plan;
    QList<qint64> m_times;
    CameraDecoder m_decoder;
    bool m_running = false;
    QString m_error;
    int m_written = 0;
    bool m_replacing = false;
};

} // namespace Review
