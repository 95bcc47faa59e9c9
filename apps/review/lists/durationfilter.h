// SPDX-License-Identifier: MIT
#pragma once

#include "look/translated.h"

#include <QToolButton>

class QLabel;

namespace CorvelGui {
class RangeSlider;
} // namespace CorvelGui

namespace Review {

/// A button that says how long events last that the user wants to see, and a slider for it in its
/// pop-up: short ones are often false alarms, long ones somebody who stays.
class DurationFilter : public Translated<QToolButton>
{
    Q_OBJECT

public:
    /// All durations at first.
    explicit DurationFilter(QWidget* parent = nullptr);

    bool isFiltering() const;
    /// In milliseconds, both included.
    qint64 shortest() const;
    qint64 longest() const;

    /// Lets all durations through.
    void reset();

    /// Its text may be cut.
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// Emitted when shortest() or longest() changed.
    void changed();

protected:
    void retranslate() final;

private:
    void showDurations();

    CorvelGui::RangeSlider* m_slider;
    QLabel* m_durations;
};

} // namespace Review
