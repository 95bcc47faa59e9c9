#include "timelinescroll.h"

#include "accessiblerange.h"
#include "base/whilealive.h"
#include "devicegrid.h"
#include "keyboardfocus.h"
#include "viewareabox.h"

#include <Hueloft/POrvGuiTheme>

#include <QKeyEvent>
#include <QLinearGradient>
#include <QLocale>
#include <QMouseEvent>
#include <QPainter>
#include <QTimer>

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

using Hueloft::POrvGuiTheme;
using namespace Qt::StringLiterals;

namespace CorvelGui {

namespace {

constexpr int maximumStripHeight = 15;
constexpr int holdInterval = 200; // milliseconds
constexpr double sameSearchPosition = 1e-5;
constexpr double keyStepsPerView = 10.0;

/// The pixels from @p left to @p right and from @p top to @p bottom, all four included.
QRectF pixelRect(int left, int top, int right, int bottom)
{
    return {QPointF(left, top), QPointF(std::max(right + 1, left), std::max(bottom + 1, top))};
}

} // namespace

struct TimelineScroll::Private
{
    explicit Private(TimelineScroll* strip)
        : q(strip)
        , accessible(strip, {.role = QAccessible::ScrollBar,
                             .name = [] { return tr("Timeline overview"); },
                             .minimum = [] { return 0.0; },
                             .maximum = [] { return 1.0; },
                             .value = [this] { return shownPosition(); },
                             .step = [this] { return keyStep(); },
                             .text = [this] { return spokenPosition(); },
                             .move =
                                 [this](double position) {
                                     q->moveView(position);
                                 }})
    {}

    ViewAreaBox box() const { return {q->width(), viewArea, centerPosition}; }
    bool hovered() const { return hover || (mouseX && box().contains(*mouseX)); }

    // The view may reach beyond the period.
    double shownPosition() const
    {
        return centerPosition > 0.0 ? std::min(centerPosition, 1.0) : 0.0;
    }
    double keyStep() const { return viewArea > 0.0 ? viewArea / keyStepsPerView : 0.0; }
    QString spokenPosition() const
    {
        return tr("%1 percent").arg(QLocale().toString(shownPosition() * 100, 'f', 1));
    }

    enum class Hold { None, Box, BesideBox };

    TimelineScroll* const q;

    bool active = false;
    bool resultMode = false;
    double viewArea = 1.0;
    double indicatorPosition = 0.0;
    double centerPosition = 0.0;

    QColor boxColor{100, 100, 100};
    QColor hoverColor{140, 140, 140};
    QColor dragColor{80, 80, 80};
    QColor indicatorColor{255, 210, 0};
    QColor borderColor{180, 180, 180};
    QColor inactiveBorderColor{180, 180, 180};
    QColor searchColor{28, 187, 255};

    double searchBegin = 0.0;
    double searchEnd = 0.0;
    bool searchValid = false;
    bool searchDisplayed = false;

    bool hover = false;
    std::optional<int> mouseX; // while the mouse is inside
    Hold hold = Hold::None;
    bool toldHeld = false;
    int pressX = 0;
    int dragOffset = 0;
    int step = 0;
    QTimer repeatTimer{q};
    const KeyboardFocus* const focus = new KeyboardFocus(q);

    AccessibleRange accessible;
};

TimelineScroll::TimelineScroll(QWidget* parent) : QLabel(parent), d(std::make_unique<Private>(this))
{
    setMaximumHeight(maximumStripHeight);
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

void TimelineScroll::setActive(bool active)
{
    if (d->active == active)
        return;
    setEnabled(active);
    d->active = active;
    updateStyleSheet();
}

void TimelineScroll::setOrvaneGuiTheme(bool on)
{
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

void TimelineScroll::setResultMode(bool on)
{
    d->resultMode = on;
}

void TimelineScroll::setHover(bool hover)
{
    d->hover = hover;
    update();
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

void TimelineScroll::paintEvent(QPaintEvent* event)
{
    QLabel::paintEvent(event);
    if (!d->active)
        return;

    QPainter painter(this);
    const DeviceGrid grid(painter);
    const int last = width() - 1;
    const auto pixelAt = [last](double position) {
        return ViewAreaBox::pixels((last - 1) * position + 1.0);
    };

    QLinearGradient background(0, 0, 0, height());
    background.setColorAt(0.0, POrvGuiTheme::colorBlack);
    background.setColorAt(0.1, POrvGuiTheme::colorPanther);
    background.setColorAt(0.9, POrvGuiTheme::colorPanther);
    background.setColorAt(1.0, POrvGuiTheme::colorBlack);
    painter.fillRect(rect(), background);
    d->focus->draw(painter);

    const ViewAreaBox box = d->box();
    const QColor boxColor = d->hold == Private::Hold::Box ? d->dragColor
                            : d->hovered()                ? d->hoverColor
                                                          : d->boxColor;
    painter.fillRect(grid.aligned(pixelRect(box.left(), 1, box.right() - 1, height() - 2)),
                     boxColor);

    if (d->searchDisplayed && d->searchValid) {
        const int left = std::max(pixelAt(d->searchBegin), 1);
        const int right = std::min(pixelAt(d->searchEnd), last) - 1;
        painter.fillRect(grid.aligned(pixelRect(left, 3 * height() / 4, right, height() - 1)),
                         d->searchColor);
    }

    const double x = (last - 1) * d->indicatorPosition + 1.0;
    if (x >= 0.0 && x <= width()) {
        painter.setPen(QPen(d->indicatorColor, 0));
        painter.drawLine(QPointF(x, 0), QPointF(x, height()));
    }
}

void TimelineScroll::mousePressEvent(QMouseEvent* event)
{
    if (!d->active || event->button() != Qt::LeftButton)
        return;
    const ViewAreaBox box = d->box();
    d->pressX = event->position().toPoint().x();
    if (box.contains(d->pressX)) {
        d->hold = Private::Hold::Box;
        d->dragOffset = d->pressX - box.center();
    } else {
        d->hold = Private::Hold::BesideBox;
        d->step = d->pressX < box.left() ? -box.width() : box.width();
        d->repeatTimer.start();
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

    const ViewAreaBox box = d->box();
    const int x = event->position().toPoint().x();
    whileAlive(
        this,
        [&] {
            if (!besideBox || box.contains(x))
                return;
            d->step = x > box.right() ? box.width() : -box.width();
            translateViewAreaCenter();
        },
        [this] { tellHeld(); });
}

void TimelineScroll::keyPressEvent(QKeyEvent* event)
{
    const double view = d->keyStep() * keyStepsPerView;
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

void TimelineScroll::updateStyleSheet()
{
    setStyleSheet(u"QLabel {background-color: transparent;border: 1px solid %1;}"_s.arg(
        (d->active ? d->borderColor : d->inactiveBorderColor).name()));
    update();
}

void TimelineScroll::onMoveViewAreaTimer()
{
    const ViewAreaBox box = d->box();
    const bool reached = d->step > 0 ? d->pressX <= box.right() : d->pressX >= box.left();
    if (reached)
        d->repeatTimer.stop();
    else
        translateViewAreaCenter();
}

void TimelineScroll::translateViewAreaCenter()
{
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
    d->repeatTimer.stop();
    d->hold = Private::Hold::None;
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
