// SPDX-License-Identifier: MIT
// The strip while it shows the activity: a box whose edges can be moved, on the scale of a ruler.

#include "base/devicegrid.h"
#include "base/whilealive.h"
#include "timelinescroll_p.h"

#include <QKeyEvent>
#include <QPainter>

namespace CorvelGui {

bool TimelineScroll::isActivityVisible() const
{
    return d->activityVisible;
}

void TimelineScroll::setActivityVisible(bool visible)
{
    if (d->activityVisible == visible)
        return;
    d->activityVisible = visible;
    endHold();
    setMinimumHeight(visible ? Private::activityHeight : 0);
    setMaximumHeight(visible ? Private::activityHeight : Private::plainHeight);
    showCursor();
    whileAlive(
        this, [this] { tellHeld(); }, [&] { Q_EMIT activityVisibleChanged(visible); });
}

void TimelineScroll::setActivitySource(std::function<TimelineActivity(int)> source)
{
    d->activity.setSource(std::move(source));
    update();
}

void TimelineScroll::renewActivity()
{
    d->activity.renew();
    if (d->activityVisible)
        update();
}

double TimelineScroll::positionAt(double x) const
{
    return d->overview().positionAt(x);
}

// What happens is seen through the box; its edges show that they can be held.
void TimelineScroll::Private::drawBoxOverActivity(QPainter& painter, const QColor& color) const
{
    const DeviceGrid grid(painter);
    const OverviewBox shown(overview(), view());
    const QRectF rect =
        grid.aligned(QRectF(QPointF(shown.left(), 1), QPointF(shown.right(), q->height() - 1)));
    QColor inside = color;
    inside.setAlpha(hold == Hold::None ? 70 : 110);
    painter.fillRect(rect, inside);

    const double line = grid.lineWidth(1);
    const double side = grid.lineWidth(2);
    const QColor frame = color.lighter(150);
    painter.fillRect(QRectF(rect.left(), rect.top(), rect.width(), line), frame);
    painter.fillRect(QRectF(rect.left(), rect.bottom() - line, rect.width(), line), frame);
    painter.fillRect(QRectF(rect.left(), rect.top(), side, rect.height()), frame);
    painter.fillRect(QRectF(rect.right() - side, rect.top(), side, rect.height()), frame);
}

void TimelineScroll::gripBox(double x)
{
    const OverviewRange view = d->view();
    const double position = d->overview().positionAt(x);
    d->edge = d->partAt(int(x));
    d->hold = d->edge == Private::Part::Inside ? Private::Hold::Box : Private::Hold::Edge;
    d->grip = position - (d->edge == Private::Part::Begin ? view.begin
                          : d->edge == Private::Part::End ? view.end
                                                          : d->centerPosition);
}

void TimelineScroll::dragBox(double x)
{
    showCursor();
    const double position = d->overview().positionAt(x) - d->grip;
    if (d->hold == Private::Hold::Box)
        moveView(position);
    else if (d->hold == Private::Hold::Edge)
        moveEdge(position, 1.0 / d->overview().length());
}

// Shift moves the end and Ctrl the begin, for as long as it is held.
bool TimelineScroll::resizeByKey(const QKeyEvent* event)
{
    if (event->key() == Qt::Key_Shift || event->key() == Qt::Key_Control)
        return false;
    const bool isStep = event->key() == Qt::Key_Left || event->key() == Qt::Key_Right;
    const bool movesEnd = event->modifiers() == Qt::ShiftModifier;
    const bool movesBegin = event->modifiers() == Qt::ControlModifier;
    if (!isStep || d->hold != Private::Hold::None || movesEnd == movesBegin) {
        forgetWanted();
        return false;
    }
    const OverviewRange view = d->view();
    const double step = view.length() / Private::keyStepsPerView;
    d->edge = movesEnd ? Private::Part::End : Private::Part::Begin;
    moveEdge((movesEnd ? view.end : view.begin) + (event->key() == Qt::Key_Left ? -step : step),
             view.length() / 2);
    return true;
}

void TimelineScroll::moveEdge(double position, double shortest)
{
    const OverviewRange view = d->view();
    const OverviewRange wanted =
        withEdgeAt(view, d->edge, position, std::min(shortest, view.length()));
    d->wanted = wanted;
    update();
    if (!(wanted == view))
        Q_EMIT viewAreaResized(wanted.begin, wanted.end);
}

void TimelineScroll::keyReleaseEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Shift || event->key() == Qt::Key_Control)
        forgetWanted();
    QLabel::keyReleaseEvent(event);
}

void TimelineScroll::focusOutEvent(QFocusEvent* event)
{
    if (d->hold == Private::Hold::None)
        forgetWanted();
    QLabel::focusOutEvent(event);
}

void TimelineScroll::forgetWanted()
{
    if (!d->wanted || d->hold == Private::Hold::Edge)
        return;
    d->wanted.reset();
    update();
}

void TimelineScroll::showCursor()
{
    using Part = Private::Part;
    const Part part = d->mouseX ? d->partAt(*d->mouseX) : Part::Outside;
    const bool onEdge =
        d->hold == Private::Hold::Edge ||
        (d->hold == Private::Hold::None && (part == Part::Begin || part == Part::End));
    if (d->activityVisible && onEdge)
        setCursor(Qt::SizeHorCursor);
    else
        unsetCursor();
}

} // namespace CorvelGui
