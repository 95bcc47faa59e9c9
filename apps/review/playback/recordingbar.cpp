// SPDX-License-Identifier: MIT
#include "recordingbar.h"

#include "look/elidedlabel.h"
#include "session/clock.h"
#include "session/selection.h"
#include "video/hoverpicture.h"

#include <CorvelGui/ImageHelper>

#include <QHBoxLayout>
#include <QPixmap>

#include <algorithm>
#include <utility>

using CorvelGui::ImageHelper;
using CorvelGui::TimeSpan;
using CorvelGui::VideoSlider;
using namespace Qt::StringLiterals;

namespace Review {

namespace {

constexpr QSize hoverSize(192, 108);

} // namespace

RecordingBar::RecordingBar(const Clock& clock, Selection& selection, QWidget* parent)
    : Translated(parent)
    , m_clock(clock)
    , m_selection(selection)
    , m_begin(new ElidedLabel(this))
    , m_slider(new VideoSlider(this))
    , m_end(new ElidedLabel(this))
    , m_hover(new HoverPicture(this))
{
    constexpr qint64 aSecond = 1'000;
    m_slider->setSingleStep(aSecond);
    m_slider->setPageStep(10 * aSecond);
    m_slider->setPositionText([this](qint64 position) {
        return m_recording.isEmpty() ? QString() : timeText(m_recording.begin + position);
    });
    // Time runs from left to right in every language.
    setLayoutDirection(Qt::LeftToRight);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(8, 2, 8, 2);
    layout->addWidget(m_begin);
    layout->addWidget(m_slider, 1);
    layout->addWidget(m_end);

    connect(m_slider, &VideoSlider::seekRequested, this, [this](qint64 position) {
        // Its last instant is the last that has a picture.
        m_selection.goTo(std::min(m_recording.begin + position, m_recording.end - 1));
        Q_EMIT sought();
    });
    connect(m_slider, &VideoSlider::draggingChanged, &selection, &Selection::setHeld);
    connect(m_slider, &VideoSlider::previewRequested, this, [this](qint64 position) {
        m_hovered = position;
        m_hover->ask(m_recording.begin + position);
    });
    connect(m_hover, &HoverPicture::ready, this, [this](const QImage& picture) {
        m_slider->setPreview(m_hovered, QPixmap::fromImage(ImageHelper::scaled(
                                            picture, hoverSize, devicePixelRatioF())));
    });
    connect(&selection, &Selection::momentChanged, this, &RecordingBar::followMoment);
    connect(&clock, &Clock::changed, this, &RecordingBar::showTexts);
    retranslate();
    showRecording({});
}

void RecordingBar::setCamera(const Camera* camera)
{
    m_recorded = camera ? camera->history.recorded() : QList<TimeSpan>();
    m_hover->setFiles(camera ? camera->files : QList<VideoFile>());
    const QString identifier = camera ? camera->identifier : QString();
    if (std::exchange(m_camera, identifier) != identifier)
        showRecording({});
    // The same recording may have grown.
    showRecording(recordingAt(m_selection.moment()));
    followMoment();
}

void RecordingBar::setMarks(const QList<VideoSlider::Mark>& marks)
{
    QList<VideoSlider::Mark> places = marks;
    for (VideoSlider::Mark& mark : places)
        mark.position -= m_recording.begin;
    m_slider->setMarks(places);
}

void RecordingBar::followMoment()
{
    const qint64 moment = m_selection.moment();
    if (moment < m_recording.begin || moment >= m_recording.end)
        showRecording(recordingAt(moment));
    m_slider->setPosition(moment - m_recording.begin);
}

TimeSpan RecordingBar::recordingAt(qint64 moment) const
{
    const auto next = std::ranges::upper_bound(m_recorded, moment, {}, &TimeSpan::end);
    const bool isInside = next != m_recorded.end() && next->begin <= moment;
    return isInside ? *next : TimeSpan();
}

void RecordingBar::showRecording(const TimeSpan& recording)
{
    if (recording == m_recording && m_slider->isEnabled() != recording.isEmpty())
        return;
    if (recording.begin != m_recording.begin)
        m_slider->forgetSeeks();
    m_recording = recording;
    m_slider->setDuration(recording.end - recording.begin);
    m_slider->setMarks({});
    m_slider->setEnabled(!recording.isEmpty());
    showTexts();
    Q_EMIT recordingChanged();
}

void RecordingBar::showTexts()
{
    const bool isEmpty = m_recording.isEmpty();
    m_begin->setText(isEmpty ? u"––:––:––"_s : timeText(m_recording.begin));
    m_end->setText(isEmpty ? u"––:––:––"_s : timeText(m_recording.end));
}

QString RecordingBar::timeText(qint64 msecs) const
{
    return m_clock.times().wallClock(msecs).toString(u"HH:mm:ss"_s);
}

void RecordingBar::retranslate()
{
    m_slider->setAccessibleName(tr("Place in the recording"));
    m_begin->setAccessibleDescription(tr("Begin of the recording"));
    m_end->setAccessibleDescription(tr("End of the recording"));
}

} // namespace Review
