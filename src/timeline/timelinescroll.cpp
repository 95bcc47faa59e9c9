// SPDX-License-Identifier: MIT
#include "base/devicegrid.h"
#include "base/whilealive.h"
#include "timelinescroll_p.h"

#include <Hueloft/POrvGuiTheme>

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLinearGradient>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <utility>

using Hueloft::POrvGuiTheme;
using namespace Qt::StringLiterals;

namespace CorvelGui {

namespace {

constexpr int holdInterval = 200; // milliseconds
constexpr double sameSearchPosition = 1e-5;

/// The pixels from @p left to @p right and from @p top to @p bottom, all four included.
QRectF pixelRect(int left, int top, int right, int bottom)
{
    return {QPointF(left, top), QPointF(std::max(right + 1, left), std::max(bottom + 1, top))};
}

} // namespace

TimelineScroll::TimelineScroll(QWidget* parent) : QLabel(parent), d(std::make_unique<Private>(this))
{
    setMaximumHeight(Private::plainHeight);
    setMouseTracking(true);
    setFocusPolicy(Qt::TabFocus);
    setEnabled(d->active);
    d->repeatTimer.setInterval(holdInterval);
    connect(&d->repeatTimer, &QTimer::timeout, this, &TimelineScroll::onMoveViewAreaTimer);
    updateStyleSheet();
}

TimelineScroll::~TimelineScroll() = default;

void TimelineScroll::setViewArea(double fraction)
{
    if (d->viewArea == fraction)
        return;
    d->viewArea = fraction;
    update();
}

double TimelineScroll::viewArea() const
{
    return d->viewArea;
}

void TimelineScroll::setIndicatorPosition(double position)
{
    if (d->indicatorPosition == position)
        return;
    d->indicatorPosition = position;
    update();
}

double TimelineScroll::indicatorPosition() const
{
    return d->indicatorPosition;
}

void TimelineScroll::onIndicatorPositionChanged(quint64, double position)
{
    setIndicatorPosition(position);
}

double TimelineScroll::centerPosition() const
{
    return d->centerPosition;
}

void TimelineScroll::onCenterPositionChanged(double position)
{
    storeCenterPosition(position);
}

bool TimelineScroll::isActive() const
{
    return d->active;
}

void TimelineScroll::setActive(bool active)
{
    if (d->active == active)
        return;
    setEnabled(active);
    d->active = active;
    updateStyleSheet();
}

bool TimelineScroll::hasOrvaneGuiTheme() const
{
    return d->theme;
}

void TimelineScroll::setOrvaneGuiTheme(bool on)
{
    d->theme = on;
    // Without the theme the colours stay as they are: there is no way back to those from before it.
    if (on) {
        d->boxColor = POrvGuiTheme::colorGreyhound;
        d->hoverColor = POrvGuiTheme::colorKoala;
        d->dragColor = POrvGuiTheme::colorElephant;
        d->indicatorColor = POrvGuiTheme::colorYellow;
        d->borderColor = POrvGuiTheme::colorKoala;
        d->inactiveBorderColor = POrvGuiTheme::colorPanther;
        d->searchColor = POrvGuiTheme::colorDarkBlue;
        d->searchColor.setAlphaF(0.5F);
    }
    updateStyleSheet();
}

bool TimelineScroll::isResultMode() const
{
    return d->resultMode;
}

void TimelineScroll::setResultMode(bool on)
{
    d->resultMode = on;
}

bool TimelineScroll::hasHover() const
{
    return d->hover;
}

void TimelineScroll::setHover(bool hover)
{
    d->hover = hover;
    update();
}

std::pair<double, double> TimelineScroll::searchTimeRange() const
{
    return {d->searchBegin, d->searchEnd};
}

bool TimelineScroll::isSearchTimeRangeDisplayed() const
{
    return d->searchDisplayed;
}

void TimelineScroll::setSearchTimeRange(double begin, double end)
{
    if (std::abs(begin - d->searchBegin) <= sameSearchPosition &&
        std::abs(end - d->searchEnd) <= sameSearchPosition)
        return;
    d->searchBegin = begin;
    d->searchEnd = end;
    d->searchValid = end > begin;
    if (d->searchDisplayed)
        update();
}

void TimelineScroll::resetSearchTimeRange()
{
    d->searchBegin = 0.0;
    d->searchEnd = 0.0;
    if (std::exchange(d->searchValid, false) && d->searchDisplayed)
        update();
}

void TimelineScroll::displaySearchTimeRange(bool display)
{
    if (d->searchDisplayed == display)
        return;
    d->searchDisplayed = display;
    if (d->searchValid)
        update();
}

std::pair<double, double> TimelineScroll::selectedRange() const
{
    return {d->selected.begin, d->selected.end};
}

void TimelineScroll::setSelectedRange(double begin, double end)
{
    const OverviewRange range{begin, end};
    if (d->selected == range)
        return;
    d->selected = range;
    update();
}

// As the ruler shows it. One that is too short for the strip still has its ends.
void TimelineScroll::Private::drawSelectedRange(QPainter& painter) const
{
    if (!(selected.begin < selected.end))
        return;
    const DeviceGrid grid(painter);
    const double begin = std::trunc(xAt(selected.begin));
    const double end = std::trunc(xAt(selected.end));
    const auto fill = [&](double left, double right, const QColor& color) {
        left = std::max(left, 1.0);
        right = std::min(right, q->width() - 1.0);
        if (left < right)
            painter.fillRect(grid.aligned({QPointF(left, 1), QPointF(right, q->height() - 1)}),
                             color);
    };
    QColor tint = selectionColor;
    tint.setAlpha(selectionTint);
    fill(begin, end, tint);
    constexpr double halfEnd = 1.0;
    for (const double x : {begin, end})
        fill(x - halfEnd, x + halfEnd, selectionColor);
}

void TimelineScroll::paintEvent(QPaintEvent* event)
{
    QLabel::paintEvent(event);
    if (!d->active)
        return;

    QPainter painter(this);
    const DeviceGrid grid(painter);
    const int last = width() - 1;
    const auto pixelAt = [this](double position) {
        return ViewAreaBox::pixels(d->xAt(position));
    };

    QLinearGradient background(0, 0, 0, height());
    background.setColorAt(0.0, POrvGuiTheme::colorBlack);
    background.setColorAt(0.1, POrvGuiTheme::colorPanther);
    background.setColorAt(0.9, POrvGuiTheme::colorPanther);
    background.setColorAt(1.0, POrvGuiTheme::colorBlack);
    painter.fillRect(rect(), background);
    d->focus->draw(painter);

    const bool held = d->hold == Private::Hold::Box || d->hold == Private::Hold::Edge;
    const QColor boxColor = held ? d->dragColor : d->hovered() ? d->hoverColor : d->boxColor;
    if (d->activityVisible) {
        const QRectF area(d->overview().left(), 1, d->overview().length(), height() - 2);
        d->activity.paint(painter, grid.aligned(area));
        d->drawBoxOverActivity(painter, boxColor);
    } else {
        const ViewAreaBox box = d->box();
        painter.fillRect(grid.aligned(pixelRect(box.left(), 1, box.right() - 1, height() - 2)),
                         boxColor);
    }

    if (d->searchDisplayed && d->searchValid) {
        const int left = std::max(pixelAt(d->searchBegin), 1);
        const int right = std::min(pixelAt(d->searchEnd), last) - 1;
        painter.fillRect(grid.aligned(pixelRect(left, 3 * height() / 4, right, height() - 1)),
                         d->searchColor);
    }

    d->drawSelectedRange(painter);

    const double x = d->xAt(d->indicatorPosition);
    if (x >= 0.0 && x <= width()) {
        painter.setPen(QPen(d->indicatorColor, 0));
        painter.drawLine(QPointF(x, 0), QPointF(x, height()));
    }
}

void TimelineScroll::mousePressEvent(QMouseEvent* event)
{
    if (!d->active || event->button() != Qt::LeftButton)
        return;
    QCoreApplication::instance()->installEventFilter(this);
    d->pressX = event->position().toPoint().x();
    if (const int side = d->sideOf(d->pressX); side != 0) {
        d->hold = Private::Hold::BesideBox;
        d->step = side * d->box().width();
        d->repeatTimer.start();
    } else if (d->activityVisible) {
        gripBox(event->position().x());
    } else {
        d->hold = Private::Hold::Box;
        d->dragOffset = d->pressX - d->box().center();
    }
    update();
    tellHeld();
}

void TimelineScroll::mouseMoveEvent(QMouseEvent* event)
{
    if (d->hold != Private::Hold::None && !(event->buttons() & Qt::LeftButton)) {
        // The release went elsewhere.
        endHold();
        if (!whileAlive(this, [this] { tellHeld(); }))
            return;
    }
    const int x = event->position().toPoint().x();
    const bool wasHovered = d->hovered();
    d->mouseX = x;
    if (d->hovered() != wasHovered)
        update();

    if (d->activityVisible) {
        dragBox(event->position().x());
        return;
    }
    if (d->hold != Private::Hold::Box || !(d->viewArea < 1.0) || x <= 0 || x >= width())
        return;
    const double position = d->box().draggedTo(x - d->dragOffset);
    storeCenterPosition(position);
    Q_EMIT viewAreaMoved(position);
}

void TimelineScroll::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    const bool besideBox = d->hold == Private::Hold::BesideBox;
    endHold();

    const int x = event->position().toPoint().x();
    whileAlive(
        this,
        [&] {
            const int side = d->sideOf(x);
            if (!besideBox || side == 0)
                return;
            d->step = side * d->box().width();
            translateViewAreaCenter();
        },
        [this] { tellHeld(); });
}

void TimelineScroll::keyPressEvent(QKeyEvent* event)
{
    if (d->activityVisible && resizeByKey(event))
        return;
    const double view = d->keyStep() * Private::keyStepsPerView;
    switch (event->key()) {
    case Qt::Key_Left:
        moveView(d->shownPosition() - d->keyStep());
        break;
    case Qt::Key_Right:
        moveView(d->shownPosition() + d->keyStep());
        break;
    case Qt::Key_PageUp:
        moveView(d->shownPosition() - view);
        break;
    case Qt::Key_PageDown:
        moveView(d->shownPosition() + view);
        break;
    case Qt::Key_Home:
        moveView(0.0);
        break;
    case Qt::Key_End:
        moveView(1.0);
        break;
    default:
        QLabel::keyPressEvent(event);
    }
}

void TimelineScroll::enterEvent(QEnterEvent* event)
{
    d->mouseX = event->position().toPoint().x();
    showCursor();
    update();
}

void TimelineScroll::leaveEvent(QEvent*)
{
    d->mouseX.reset();
    update();
}

void TimelineScroll::hideEvent(QHideEvent* event)
{
    endHold();
    QTimer::singleShot(0, this, &TimelineScroll::tellHeld);
    QLabel::hideEvent(event);
}

void TimelineScroll::changeEvent(QEvent* event)
{
    // A dialog that opens during a drag gets the release.
    if (!isEnabled() || (event->type() == QEvent::ActivationChange && !isActiveWindow())) {
        endHold();
        QTimer::singleShot(0, this, &TimelineScroll::tellHeld);
    }
    QLabel::changeEvent(event);
}

// While another button is held elsewhere, the release of the left one goes there too.
bool TimelineScroll::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonRelease && watched != this && watched->isWidgetType() &&
        static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) {
        endHold();
        QTimer::singleShot(0, this, &TimelineScroll::tellHeld);
    }
    return QLabel::eventFilter(watched, event);
}

void TimelineScroll::updateStyleSheet()
{
    setStyleSheet(u"QLabel {background-color: transparent;border: 1px solid %1;}"_s.arg(
        (d->active ? d->borderColor : d->inactiveBorderColor).name()));
    update();
}

void TimelineScroll::onMoveViewAreaTimer()
{
    const int side = d->sideOf(d->pressX);
    if (d->step > 0 ? side <= 0 : side >= 0)
        d->repeatTimer.stop();
    else
        translateViewAreaCenter();
}

void TimelineScroll::translateViewAreaCenter()
{
    if (d->activityVisible) {
        moveView(d->centerPosition + (d->step > 0 ? d->viewArea : -d->viewArea));
        return;
    }
    const double position = d->box().pagedBy(d->step);
    storeCenterPosition(position);
    Q_EMIT viewAreaMoved(position);
}

// Keys and assistive technology move exactly, where the mouse moves by pixels: of a long period,
// the smallest box still stands for many views.
void TimelineScroll::moveView(double centerPosition)
{
    if (!(d->viewArea < 1.0))
        return;
    const double half = std::max(d->viewArea, 0.0) / 2;
    const double position = std::clamp(centerPosition, half, 1.0 - half);
    storeCenterPosition(position);
    Q_EMIT viewAreaMoved(position);
}

void TimelineScroll::storeCenterPosition(double position)
{
    if (d->centerPosition == position)
        return;
    d->centerPosition = position;
    update();
    d->accessible.reportValueChange();
}

void TimelineScroll::endHold()
{
    QCoreApplication::instance()->removeEventFilter(this);
    d->repeatTimer.stop();
    d->hold = Private::Hold::None;
    d->wanted.reset();
    update();
}

bool TimelineScroll::isHeld() const
{
    return d->hold != Private::Hold::None;
}

void TimelineScroll::tellHeld()
{
    if (std::exchange(d->toldHeld, isHeld()) != isHeld())
        Q_EMIT heldChanged(isHeld());
}

} // namespace CorvelGui
