#include "playbackpane.h"

#include "session/clock.h"
#include "session/selection.h"

#include <CorvelGui/ZoomGraphicsView>

#include <QComboBox>
#include <QGraphicsPixmapItem>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <algorithm>

using CorvelGui::TrackDescription;
using CorvelGui::ZoomGraphicsView;

namespace Review {

namespace {

// As dark as the picture of a camera without a recording, in both looks.
constexpr QColor background(28, 30, 32);
constexpr QSize smallestPicture(160, 90);

} // namespace

PlaybackPane::PlaybackPane(const Clock& clock, Selection& selection, QWidget* parent)
    : Translated(parent)
    , m_clock(clock)
    , m_selection(selection)
    , m_cameras(new QComboBox(this))
    , m_scene(QRectF({}, CameraPicture::size))
    , m_view(new ZoomGraphicsView(&m_scene, QVariant(), this))
    , m_item(m_scene.addPixmap({}))
{
    // Leaves the space bar to the player after a choice with the mouse.
    m_cameras->setFocusPolicy(Qt::TabFocus);
    m_cameras->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_item->setTransformationMode(Qt::SmoothTransformation);
    m_scene.setBackgroundBrush(background);
    m_view->setFrameShape(QFrame::NoFrame);
    m_view->setMinimumSize(smallestPicture);

    connect(m_cameras, &QComboBox::currentIndexChanged, this,
            [this] { m_selection.setCamera(m_cameras->currentData().toString()); });
    connect(&selection, &Selection::cameraChanged, this, &PlaybackPane::showCamera);
    connect(&selection, &Selection::momentChanged, this, &PlaybackPane::showPicture);
    connect(&clock, &Clock::changed, this, &PlaybackPane::makeFeed);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addWidget(m_cameras);
    layout->addWidget(m_view, 1);
    retranslate();
}

void PlaybackPane::setTracks(const QList<TrackDescription>& tracks)
{
    m_tracks = tracks;
    QStringList identifiers;
    {
        const QSignalBlocker blocker(m_cameras);
        m_cameras->clear();
        for (const TrackDescription& track : tracks) {
            m_cameras->addItem(track.name.simplified(), track.identifier);
            identifiers.append(track.identifier);
        }
        m_cameras->setEnabled(!tracks.isEmpty());
    }
    const QString before = m_selection.camera();
    m_selection.setCameras(identifiers);
    // What is known of the same camera may be new.
    if (m_selection.camera() == before)
        showCamera();
}

void PlaybackPane::setEvents(const Events& events)
{
    m_events = events;
    makeFeed();
}

void PlaybackPane::showCamera()
{
    {
        const QSignalBlocker blocker(m_cameras);
        m_cameras->setCurrentIndex(m_cameras->findData(m_selection.camera()));
    }
    makeFeed();
}

void PlaybackPane::retranslate()
{
    m_cameras->setAccessibleName(tr("Camera"));
    m_cameras->setToolTip(tr("The camera whose picture is shown"));
    m_cameras->setPlaceholderText(tr("No camera"));
    m_view->setAccessibleName(tr("Picture of the camera"));
    m_shown.reset();
    showPicture();
}

void PlaybackPane::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    showPicture();
}

void PlaybackPane::makeFeed()
{
    const int index = m_cameras->currentIndex();
    m_feed.reset();
    if (index >= 0)
        m_feed.emplace(m_tracks.at(index), m_events, m_clock.times());
    showPicture();
    Q_EMIT feedChanged();
}

void PlaybackPane::showPicture()
{
    if (!isVisible())
        return;
    const qint64 moment = m_selection.moment();
    if (!m_feed || moment == 0) {
        m_item->setPixmap({});
        m_shown.reset();
        return;
    }
    const CameraScene scene = m_feed->sceneAt(moment);
    if (m_shown == scene)
        return;
    m_item->setPixmap(QPixmap::fromImage(m_picture.draw(scene)));
    m_shown = scene;
}

} // namespace Review
