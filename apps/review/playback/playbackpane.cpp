// SPDX-License-Identifier: MIT
#include "playbackpane.h"

#include "cameraview.h"
#include "session/clock.h"
#include "session/selection.h"

#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>
#include <utility>

using CorvelGui::TrackDescription;

namespace Review {

namespace {

constexpr int cameraCounts[] = {1, 4, 9, 16};
/// Of decoded pictures, for all cameras together.
constexpr qint64 shownBytes = qint64(256) << 20;

} // namespace

PlaybackPane::PlaybackPane(const Clock& clock, Selection& selection, QWidget* parent)
    : Translated(parent)
    , m_clock(clock)
    , m_selection(selection)
    , m_cameras(new QComboBox(this))
    , m_counts(new QComboBox(this))
    , m_grid(new QGridLayout)
{
    // Leaves the space bar to the player after a choice with the mouse.
    m_cameras->setFocusPolicy(Qt::TabFocus);
    m_cameras->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_counts->setFocusPolicy(Qt::TabFocus);
    for (const int count : cameraCounts)
        m_counts->addItem(QString(), count);
    m_grid->setSpacing(1);

    connect(m_cameras, &QComboBox::currentIndexChanged, this,
            [this] { m_selection.setCamera(m_cameras->currentData().toString()); });
    connect(m_counts, &QComboBox::currentIndexChanged, this,
            [this] { setShownCameras(m_counts->currentData().toInt()); });
    connect(&selection, &Selection::cameraChanged, this, &PlaybackPane::chooseCamera);
    connect(&selection, &Selection::momentChanged, this, &PlaybackPane::showMoment);
    connect(&clock, &Clock::changed, this, [this] {
        m_known.clear();
        showCameras();
    });

    auto* choices = new QHBoxLayout;
    choices->setSpacing(0);
    choices->addWidget(m_cameras, 1);
    choices->addWidget(m_counts);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addLayout(choices);
    layout->addLayout(m_grid, 1);
    setShownCameras(1);
    retranslate();
}

void PlaybackPane::addView()
{
    auto* view = new CameraView(this);
    connect(view, &CameraView::settled, this, [this] {
        if (!isBusy())
            Q_EMIT settled();
    });
    connect(view, &CameraView::pressed, this, [this, view] { pressView(view); });
    connect(view, &CameraView::doubleClicked, this, [this, view] { enlarge(view); });
    m_views.append(view);
}

void PlaybackPane::setTracks(const QList<TrackDescription>& tracks,
                             const QHash<QString, QList<VideoFile>>& files)
{
    m_tracks = tracks;
    m_files = files;
    m_known.clear();
    QStringList identifiers;
    QStringList names;
    for (const TrackDescription& track : tracks) {
        identifiers.append(track.identifier);
        names.append(track.name.simplified());
    }
    offer(identifiers, names);
    const QString before = m_selection.camera();
    m_selection.setCameras(identifiers);
    // What is known of the same camera may be new.
    if (m_selection.camera() == before)
        chooseCamera();
}

void PlaybackPane::offer(const QStringList& identifiers, const QStringList& names)
{
    m_cameras->setEnabled(!names.isEmpty());
    QStringList offered;
    for (int i = 0; i < m_cameras->count(); ++i)
        offered += {m_cameras->itemData(i).toString(), m_cameras->itemText(i)};
    QStringList wanted;
    for (qsizetype i = 0; i < names.size(); ++i)
        wanted += {identifiers[i], names[i]};
    if (offered == wanted)
        return; // it may be open
    const QSignalBlocker blocker(m_cameras);
    m_cameras->clear();
    for (qsizetype i = 0; i < names.size(); ++i)
        m_cameras->addItem(names[i], identifiers[i]);
}

void PlaybackPane::chooseCamera()
{
    {
        const QSignalBlocker blocker(m_cameras);
        m_cameras->setCurrentIndex(m_cameras->findData(m_selection.camera()));
    }
    showCameras();
}

void PlaybackPane::setShownCameras(int count)
{
    if (count == shownCameras())
        return;
    while (m_views.size() > count)
        delete m_views.takeLast();
    while (m_views.size() < count)
        addView();
    {
        const QSignalBlocker blocker(m_counts);
        m_counts->setCurrentIndex(m_counts->findData(count));
    }
    const int columns = int(std::lround(std::sqrt(count)));
    for (int i = 0; i < count; ++i) {
        m_grid->addWidget(m_views[i], i / columns, i % columns);
        m_views[i]->show();
    }
    showCameras();
}

void PlaybackPane::pressView(const CameraView* view)
{
    const qsizetype index = m_views.indexOf(view);
    const qsizetype first = m_cameras->currentIndex() / m_views.size() * m_views.size();
    if (view->camera())
        m_selection.setCamera(m_tracks[first + index].identifier);
}

void PlaybackPane::enlarge(const CameraView* view)
{
    if (!view->camera())
        return;
    // The view may be deleted by it, which is still in its handler.
    const int count = shownCameras() > 1 ? 1 : m_countBefore;
    if (shownCameras() > 1)
        m_countBefore = shownCameras();
    QMetaObject::invokeMethod(
        this, [this, count] { setShownCameras(count); }, Qt::QueuedConnection);
}

void PlaybackPane::showCameras()
{
    const qsizetype index = m_cameras->currentIndex();
    const qsizetype count = m_views.size();
    const qsizetype first = std::max<qsizetype>(index, 0) / count * count;
    m_camera.reset();
    for (qsizetype i = 0; i < count; ++i) {
        std::optional<Camera> camera;
        if (first + i < m_tracks.size())
            camera = cameraOf(m_tracks[first + i]);
        m_views[i]->setCamera(camera, shownBytes / count);
        m_views[i]->setMarked(count > 1 && first + i == index);
        if (first + i == index)
            m_camera = camera;
    }
    showMoment();
    Q_EMIT cameraChanged();
}

const Camera& PlaybackPane::cameraOf(const TrackDescription& track) const
{
    auto known = m_known.constFind(track.identifier);
    if (known == m_known.constEnd())
        known = m_known.insert(track.identifier,
                               {track, m_files.value(track.identifier), m_clock.times()});
    return *known;
}

QList<Camera> PlaybackPane::cameras() const
{
    QList<Camera> cameras;
    for (const TrackDescription& track : m_tracks)
        cameras.append(cameraOf(track));
    return cameras;
}

const CameraPicture* PlaybackPane::picture() const
{
    return m_camera ? &m_views[m_cameras->currentIndex() % m_views.size()]->picture() : nullptr;
}

void PlaybackPane::showMoment()
{
    const qint64 moment = m_selection.moment();
    if (!isVisible() || moment == 0)
        return;
    for (CameraView* view : std::as_const(m_views))
        view->showMoment(moment,
                         m_onlyKeyFrames ? Clip::Accuracy::KeyFrame : Clip::Accuracy::Exact);
}

void PlaybackPane::setOnlyKeyFrames(bool only)
{
    if (std::exchange(m_onlyKeyFrames, only) != only)
        showMoment();
}

bool PlaybackPane::isBusy() const
{
    return std::ranges::any_of(m_views, &CameraView::isBusy);
}

void PlaybackPane::retranslate()
{
    m_cameras->setAccessibleName(tr("Camera"));
    m_cameras->setToolTip(tr("The camera whose picture is shown"));
    m_cameras->setPlaceholderText(tr("No camera"));
    m_counts->setAccessibleName(tr("Cameras at once"));
    m_counts->setToolTip(tr("How many cameras are shown at once"));
    for (int i = 0; i < m_counts->count(); ++i)
        m_counts->setItemText(i, tr("%n camera(s)", nullptr, m_counts->itemData(i).toInt()));
}

void PlaybackPane::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    showMoment();
}

} // namespace Review
