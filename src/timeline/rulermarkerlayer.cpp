// SPDX-License-Identifier: MIT
#include "rulermarkerlayer.h"

#include "rulermarkerbutton.h"

#include <QPaintEvent>
#include <QPainter>

#include <utility>

namespace CorvelGui {

RulerMarkerLayer::RulerMarkerLayer(QWidget* ruler) : QFocusFrame(ruler) {}

void RulerMarkerLayer::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    const QRect dirty = event->rect().translated(pos());
    QPoint origin = pos();
    for (const QObject* sibling : parentWidget()->children()) {
        const auto* button = qobject_cast<const RulerMarkerButton*>(sibling);
        if (!button || button->isHidden() || !button->geometry().intersects(dirty))
            continue;
        painter.translate(button->pos() - std::exchange(origin, button->pos()));
        button->draw(painter);
    }
}

} // namespace CorvelGui
