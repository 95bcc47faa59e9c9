// SPDX-License-Identifier: MIT
#pragma once

#include "video/camera.h"

#include <CorvelGui/TrackDescription>

#include <QWidget>

#include <array>

class QButtonGroup;

namespace CorvelGui {
class PImageAndLabelWidget;
class PInputDateTimeWithRange;
} // namespace CorvelGui

namespace Review {

class HoverPicture;

/// Lets the user choose a range of time: what is in view, what is selected, or any other, and shows
/// the first and the last picture of it.
class RangeChoice : public QWidget
{
    Q_OBJECT

public:
    /// An empty @p selectedRange cannot be chosen; any other one is proposed.
    RangeChoice(const TimeTexts& times, const CorvelGui::TimeSpan& view,
                const CorvelGui::TimeSpan& selectedRange, QWidget* parent = nullptr);

    /// Whose pictures are shown.
    void setCamera(const Camera& camera);

    /// Empty while what is typed is no range.
    CorvelGui::TimeSpan range() const;

Q_SIGNALS:
    void changed();

private:
    enum Choice { View, Selected, Other };

    struct Sight
    {
        CorvelGui::PImageAndLabelWidget* widget;
        HoverPicture* source;
    };

    void choose(int choice);
    void take(const CorvelGui::TimeSpan& range);
    void showPictures();
    void showPicture(const Sight& sight, qint64 instant);

    const TimeTexts m_times;
    const std::array<CorvelGui::TimeSpan, Other> m_known;
    CorvelGui::TimeSpan m_range;
    std::optional<Camera> m_camera;
    QButtonGroup* m_choices;
    CorvelGui::PInputDateTimeWithRange* m_input;
    std::array<Sight, 2> m_sights;
};

} // namespace Review
