#pragma once

#include "look/translated.h"
#include "video/camerafeed.h"

#include <QGraphicsScene>
#include <QWidget>

#include <optional>

class QComboBox;
class QGraphicsPixmapItem;

namespace CorvelGui {
class ZoomGraphicsView;
}

namespace Review {

class Clock;
class Selection;

/// The picture of the selected camera at the selected moment, in a view that can be zoomed and
/// moved.
class PlaybackPane : public Translated<QWidget>
{
    Q_OBJECT

public:
    /// Owns neither; both must live longer.
    PlaybackPane(const Clock& clock, Selection& selection, QWidget* parent = nullptr);

    /// Sets the cameras to choose from.
    void setTracks(const QList<CorvelGui::TrackDescription>& tracks);
    /// The events of all tracks, sorted by time.
    void setEvents(const Events& events);

    /// Null without a camera.
    const CameraFeed* feed() const { return m_feed ? &*m_feed : nullptr; }

Q_SIGNALS:
    /// Emitted when feed() is another one: another camera, or the same with other data.
    void feedChanged();

protected:
    void retranslate() final;
    void showEvent(QShowEvent* event) override;

private:
    void showCamera();
    void makeFeed();
    void showPicture();

    const Clock& m_clock;
    Selection& m_selection;
    QComboBox* m_cameras;
    QGraphicsScene m_scene;
    CorvelGui::ZoomGraphicsView* m_view;
    QGraphicsPixmapItem* m_item;

    QList<CorvelGui::TrackDescription> m_tracks;
    Events m_events;
    std::optional<CameraFeed> m_feed;

    CameraPicture m_picture;
    std::optional<CameraScene> m_shown;
};

} // namespace Review
