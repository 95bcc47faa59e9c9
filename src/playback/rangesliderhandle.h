// SPDX-License-Identifier: MIT
#pragma once

#include "base/accessiblerange.h"
#include "base/keyboardfocus.h"

#include <QWidget>

namespace CorvelGui {

/// A handle of a RangeSlider: has the focus and speaks for its value. The slider does the rest, and
/// gets the mouse.
class RangeSliderHandle : public QWidget
{
    Q_OBJECT

public:
    static constexpr int handleWidth = 10;
    static constexpr int handleHeight = 20;

    RangeSliderHandle(QWidget* slider, AccessibleRange::Description description);

    /// Its straight side, on the value, is its right one.
    void setStraightSideRight(bool right);
    void reportValueChange() { m_accessible.reportValueChange(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    bool m_isStraightRight = true;
    KeyboardFocus m_focus;
    AccessibleRange m_accessible;
};

} // namespace CorvelGui
