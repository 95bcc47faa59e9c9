// SPDX-License-Identifier: MIT
#pragma once

#include "data/reviewdata.h"
#include "look/translated.h"
#include "video/camera.h"

#include <QWidget>

#include <optional>

class QComboBox;
class QGridLayout;

namespace Review {

struct CameraPicture;
class CameraView;
class Clock;
class Selection;

/// The pictures of the selected camera, or of several at once, at the selected moment.
class PlaybackPane : public Translated<QWidget>
{
    Q_OBJECT

public:
    /// Owns neither; both must live longer.
    PlaybackPane(const Clock& clock, Selection& selection, QWidget* parent = nullptr);

    /// Sets the cameras to choose from, and what they recorded, by the identifiers of their tracks.
    void setTracks(const QList<CorvelGui::TrackDescription>& tracks,
                   const QHash<QString, QList<VideoFile>>& files);

    /// The selected one; null without a camera.
    const Camera* camera() const { return m_camera ? &*m_camera : nullptr; }

    /// What is shown of it; null without a camera.
    const CameraPicture* picture() const;
    /// All of them.
    QList<Camera> cameras() const;

    /// How many cameras are shown at once: 1, 4, 9 or 16. The selected one is among them.
    void setShownCameras(int count);
    int shownCameras() const { return int(m_views.size()); }
    const QList<CameraView*>& views() const { return m_views; }

    /// Whether pictures may be less exact, and are there the sooner.
    void setOnlyKeyFrames(bool only);

    /// Whether a picture is still to come.
    bool isBusy() const;

Q_SIGNALS:
    /// Emitted when camera() is another one: another camera, or the same with other data.
    void cameraChanged();
    /// Emitted whenever isBusy() became false because the last picture came.
    void settled();

protected:
    void retranslate() final;
    void showEvent(QShowEvent* event) override;

private:
    void addView();
    void pressView(const CameraView* view);
    void enlarge(const CameraView* view);
    void offer(const QStringList& identifiers, const QStringList& names);
    void chooseCamera();
    void showCameras();
    void showMoment();
    const Camera& cameraOf(const CorvelGui::TrackDescription& track) const;

    const Clock& m_clock;
    Selection& m_selection;
    QComboBox* m_cameras;
    QComboBox* m_counts;
    QGridLayout* m_grid;
    QList<CameraView*> m_views;
    int m_countBefore = 4; ///< of the grid that a double click came from

    QList<CorvelGui::TrackDescription> m_tracks;
    QHash<QString, QList<VideoFile>> m_files;
    mutable QHash<QString, Camera> m_known; ///< those that were asked for so far
    std::optional<Camera> m_camera;
    bool m_onlyKeyFrames = false;
};

} // namespace Review
