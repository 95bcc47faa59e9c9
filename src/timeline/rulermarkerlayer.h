// SPDX-License-Identifier: MIT
#pragma once

#include <QFocusFrame>

namespace CorvelGui {

/// Paints the marker buttons of a ruler, in the order in which they are stacked, where they have
/// their updates disabled.
///
/// While the view is dragged, all buttons move and are painted in every frame. A widget that Qt
/// paints costs several times its picture; this is one instead of hundreds.
///
/// It is a focus frame because those take no mouse events, and assistive technology, which has the
/// buttons, does not come upon them.
class RulerMarkerLayer : public QFocusFrame
{
    Q_OBJECT

public:
    explicit RulerMarkerLayer(QWidget* ruler);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace CorvelGui
