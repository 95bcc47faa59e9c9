// SPDX-License-Identifier: MIT
#pragma once

#include "exportjob.h"
#include "picturetimes.h"
#include "video/camera.h"
#include "video/cameradecoder.h"

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
class PictureExport : public ExportJob
{
    Q_OBJECT

public:
    PictureExport(const Camera& camera, const ExportPlan& plan, QObject* parent = nullptr);

    int count() const override { return int(m_times.size()); }
    /// How many of the files exist already.
    int existingFiles() const;
    /// Replaces files that exist. Without it, such a file ends the export.
    void setReplacing(bool replace) { m_replacing = replace; }

    void start() override;
    /// Leaves what is written.
    void cancel() override;
    QString folder() const override { return m_plan.folder; }
    QString title() const override;
    QString activity() const override;
    QString remainder() const override;
    std::function<QString()> report(Outcome outcome) const override;

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
    int m_written = 0;
    bool m_replacing = false;
};

} // namespace Review
