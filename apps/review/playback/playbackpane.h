#pragma once

#include "camerafeed.h"

#include <QGraphicsScene>
#include <QWidget>

#include <optional>

class QComboBox;
class QGraphicsPixmapItem;

namespace CorvelGui {
class ZoomGraphicsView;
}

namespace Review {

/// The picture of one camera, in a view that can be zoomed and moved.
class PlaybackPane : public QWidget
{
    Q_OBJECT

public:
    explicit PlaybackPane(const TimeTexts& times, QWidget* parent = nullptr);

    /// Sets the cameras to choose from. A camera that was chosen before stays.
    void setTracks(const QList<CorvelGui::TrackDescription>& tracks);
    /// The events of all tracks, sorted by time.
    void setEvents(const QList<Event>& events);
    void setTimes(const TimeTexts& times);
    /// Chooses a camera; does nothing for one that there is not.
    void setCamera(const QString& identifier);
    /// Shows the picture of an instant; 0 for none.
    void setTime(qint64 msecs);
    /// Applies all translated texts again.
    void retranslate();

    /// Null without a camera.
    const CameraFeed* feed() const { return m_feed ? &*m_feed : nullptr; }

Q_SIGNALS:
    /// Emitted when feed() is another one: another camera, or the same with other data.
    void feedChanged();

protected:
    void showEvent(QShowEvent* event) override;

private:
    void makeFeed();
    void showPicture();

    QComboBox* m_cameras;
    QGraphicsScene m_scene;
    CorvelGui::ZoomGraphicsView* m_view;
    QGraphicsPixmapItem* m_item;

    QList<CorvelGui::TrackDescription> m_tracks;
    QList<Event> m_events;
    TimeTexts m_times;
    std::optional<CameraFeed> m_feed;
    qint64 m_time = 0;

    CameraPicture m_picture;
    std::optional<CameraScene> m_shown;
};

} // namespace Review
