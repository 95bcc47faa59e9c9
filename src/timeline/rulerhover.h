// SPDX-License-Identifier: MIT
#pragma once

#include "hoverpreview.h"

#include <QObject>
#include <QTimer>

class QDateTime;
class QWidget;

namespace CorvelGui {

class RulerMarkers;
class TimeScale;

/// The mouse over a ruler: where it is, and whether it rests long enough for a preview.
/// HoverPreview has the rules; here are the timer and the signals.
class RulerHover : public QObject
{
    Q_OBJECT

public:
    /// @p ruler, @p scale and @p markers must outlive it.
    RulerHover(QWidget* ruler, const TimeScale& scale, RulerMarkers& markers);

    /// Whether the ruler takes input.
    void setUsable(bool usable);
    /// Whether previews are wanted at all.
    void setEnabled(bool enabled);
    bool isEnabled() const { return m_enabled; }
    /// What became of the last preview that was asked for.
    void setPreview(bool visible, bool pending);
    bool isPreviewVisible() const { return m_visible; }
    /// While something is dragged, no preview is asked for.
    void setDragging(bool dragging) { m_dragging = dragging; }
    /// Previews are for a mouse from the top of the ruler to here.
    void setAreaHeight(int height) { m_areaHeight = height; }

    void enter(QPoint position);
    void leave();
    /// The ruler is hidden or covered, so that nobody will say when the mouse leaves.
    void abandon();
    /// The mouse moved on the ruler itself.
    void moved(QPoint position);
    /// It does not drag the view there.
    void hover(QPoint position);
    void movedOnMarker(QPoint position);
    void movedOnIndicator(QPoint position);
    /// Asks for previews again where the mouse is still in their area.
    void resume(QPoint position);
    /// Takes back what was asked for.
    void stop();

    /// Reports where the line of @p previewTime stands, unless the last preview was asked for
    /// there.
    void checkPreviewLine(const QDateTime& previewTime);

Q_SIGNALS:
    void previewPositionChanged(quint64 msecs, const QPoint& position, bool onMarker);
    void previewIndicatorPositionChanged(const QPoint& position);

private:
    bool isInArea(QPoint position) const;
    void start(QPoint position);
    void stopLater();
    void tellStop();
    void onMouseTimerTimeout();
    void emitPrviewPositionChanged();

    QWidget* const m_ruler;
    const TimeScale& m_scale;
    RulerMarkers& m_markers;
    HoverPreview m_rules;
    QTimer m_timer;
    int m_areaHeight = 0;
    bool m_usable = false;
    bool m_enabled = false;
    bool m_visible = false;
    bool m_pending = false;
    bool m_dragging = false;
    bool m_hovering = false;
    bool m_inArea = false;
    bool m_stopUntold = false;
};

} // namespace CorvelGui
