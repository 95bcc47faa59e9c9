// SPDX-License-Identifier: MIT
#pragma once

#include "look/translated.h"
#include "video/camera.h"

#include <CorvelGui/VideoSlider>

#include <QWidget>

namespace Review {

class Clock;
class ElidedLabel;
class HoverPicture;
class Selection;

/// The place of the moment within the recording of the selected camera that it is in: to seek more
/// finely than the timeline can. Without such a recording there is nothing to seek in.
class RecordingBar : public Translated<QWidget>
{
    Q_OBJECT

public:
    /// Owns neither; both must live longer.
    RecordingBar(const Clock& clock, Selection& selection, QWidget* parent = nullptr);

    /// The selected camera; null without one.
    void setCamera(const Camera* camera);
    /// What happened in the recording, at positions in milliseconds since the Unix epoch.
    void setMarks(const QList<CorvelGui::VideoSlider::Mark>& marks);
    /// Empty without one.
    const CorvelGui::TimeSpan& recording() const { return m_recording; }

public Q_SLOTS:
    /// The picture that the user sought is there, or will not come.
    void endSeek() { m_slider->seekDone(); }

Q_SIGNALS:
    /// Emitted when the user seeks, after the moment was selected. The next one waits for
    /// endSeek().
    void sought();
    /// Emitted when recording() is another one.
    void recordingChanged();

protected:
    void retranslate() final;

private:
    void followMoment();
    CorvelGui::TimeSpan recordingAt(qint64 moment) const;
    void showRecording(const CorvelGui::TimeSpan& recording);
    void showTexts();
    QString timeText(qint64 msecs) const;

    const Clock& m_clock;
    Selection& m_selection;
    QString m_camera;
    QList<CorvelGui::TimeSpan> m_recorded;
    CorvelGui::TimeSpan m_recording;
    ElidedLabel* m_begin;
    CorvelGui::VideoSlider* m_slider;
    ElidedLabel* m_end;
    HoverPicture* m_hover;
    qint64 m_hovered = 0; ///< the position that a picture is got for
};

} // namespace Review
