// SPDX-License-Identifier: MIT
#include "busyindicator.h"

#include "base/whilealive.h"
#include "keyboardguard.h"

#include <QPainter>
#include <QPixmap>
#include <QResizeEvent>
#include <QTimer>

#include <algorithm>
#include <utility>

using namespace std::chrono_literals;

namespace CorvelGui {

namespace {

using Clock = std::chrono::steady_clock;

constexpr auto interval = 20ms;
constexpr double step = 0.03;
constexpr double longestArc = 0.2; // of a turn
constexpr double turnEnd = 1.2;
constexpr int sixteenthsOfTurn = 360 * 16;

constexpr int ringSize = 80;
constexpr int ringWidth = 12;

constexpr QColor dimming(100, 100, 100, 100);
constexpr QColor imageDimming(100, 100, 100, 20);
constexpr QColor trackColor(50, 50, 50);
constexpr QColor arcColor(0, 191, 255);
// Tells the track from a window that is about as dark.
constexpr QColor rimColor(150, 156, 164);
constexpr int rimWidth = 1;

QRect ringRect(const QWidget* widget)
{
    return {widget->width() / 2 - ringSize / 2, widget->height() / 2 - ringSize / 2, ringSize,
            ringSize};
}

} // namespace

struct BusyIndicator::Private
{
    explicit Private(BusyIndicator* q) : timer(new QTimer(q)), keyboard(q) {}

    double progress = 0;
    QPixmap image;
    QTimer* const timer;
    bool finished = false;
    bool imageDrawnLast = false;
    std::chrono::milliseconds delay{0};
    Clock::time_point ringStart;
    // The next step paints the background, not only the ring.
    bool backgroundIsStale = false;
    KeyboardGuard keyboard;
};

BusyIndicator::BusyIndicator(QWidget* parent, Qt::WindowFlags f)
    : QWidget(parent, f), d(std::make_unique<Private>(this))
{
    // The parent gets no event that the overlay leaves.
    setAttribute(Qt::WA_NoMousePropagation);
    setAccessibleName(tr("Busy"));
    follow(parent);
    // Only a widget with a native window hears that its parent is about to change.
    winId();
    connect(d->timer, &QTimer::timeout, this, &BusyIndicator::onTimeOut);
}

BusyIndicator::~BusyIndicator() = default;

void BusyIndicator::setBackgroundImage(const QPixmap& image)
{
    d->image = image;
    d->backgroundIsStale = true;
}

QPixmap BusyIndicator::backgroundImage() const
{
    return d->image;
}

std::chrono::milliseconds BusyIndicator::delay() const
{
    return d->delay;
}

void BusyIndicator::setDelay(std::chrono::milliseconds delay)
{
    d->delay = delay;
}

void BusyIndicator::setFinished()
{
    d->finished = true;
    repaint();
    hide();
}

void BusyIndicator::onTimeOut()
{
    if (!isVisible())
        return;
    d->progress += step;
    if (d->progress > turnEnd)
        d->progress = longestArc;
    // What lies below is painted with it, so only where something moves.
    constexpr int border = ringWidth / 2 + rimWidth + 1;
    const QRect moving = ringRect(this).adjusted(-border, -border, border, border);
    repaint(std::exchange(d->backgroundIsStale, false) ? rect() : moving);
}

bool BusyIndicator::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == parent()) {
        if (event->type() == QEvent::Resize)
            resize(static_cast<QResizeEvent*>(event)->size());
        else if (event->type() == QEvent::ChildAdded)
            raise();
    }
    return QWidget::eventFilter(watched, event);
}

bool BusyIndicator::event(QEvent* event)
{
    if (event->type() == QEvent::ParentAboutToChange) {
        if (parent())
            parent()->removeEventFilter(this);
    } else if (event->type() == QEvent::ParentChange) {
        follow(parentWidget());
        raise();
    } else if (event->type() == QEvent::LanguageChange) {
        setAccessibleName(tr("Busy"));
    }
    return QWidget::event(event);
}

void BusyIndicator::follow(QWidget* parent)
{
    if (!parent)
        return;
    parent->installEventFilter(this);
    resize(parent->size());
}

void BusyIndicator::showEvent(QShowEvent* event)
{
    if (!d->timer->isActive()) {
        d->finished = false;
        d->progress = 0;
        d->timer->start(interval);
        d->ringStart = Clock::now() + d->delay;
    }
    QWidget::showEvent(event);
    whileAlive(
        this, [this] { d->keyboard.start(); }, [this] { repaint(); });
}

void BusyIndicator::hideEvent(QHideEvent* event)
{
    d->timer->stop();
    // Deliberately: a delay holds for one showing.
    d->delay = 0ms;
    QWidget::hideEvent(event);
    // A minimised window keeps its overlay.
    if (!event->spontaneous())
        d->keyboard.stop();
}

bool BusyIndicator::focusNextPrevChild(bool next)
{
    return d->keyboard.isActive() ? d->keyboard.moveFocusOutside(next)
                                  : QWidget::focusNextPrevChild(next);
}

void BusyIndicator::paintEvent(QPaintEvent* event)
{
    QWidget::paintEvent(event);
    QPainter painter(this);
    paintBackground(painter);

    if (d->delay > 0ms && Clock::now() < d->ringStart)
        d->progress = 0;
    else
        paintRing(painter);
}

void BusyIndicator::paintBackground(QPainter& painter)
{
    if (d->image.isNull()) {
        if (d->imageDrawnLast) {
            painter.eraseRect(rect());
            d->backgroundIsStale = true; // what lies below is not in it
        }
        painter.fillRect(rect(), dimming);
    } else {
        painter.drawPixmap(rect(), d->image);
        painter.fillRect(rect(), imageDimming);
    }
    d->imageDrawnLast = !d->image.isNull();
}

void BusyIndicator::paintRing(QPainter& painter) const
{
    const QRect ring = ringRect(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (palette().color(QPalette::Window).lightness() < trackColor.lightness() * 2) {
        painter.setPen(QPen(rimColor, ringWidth + 2 * rimWidth));
        painter.drawEllipse(ring);
    }
    painter.setPen(QPen(trackColor, ringWidth));
    painter.drawEllipse(ring);

    // Negative angles run clockwise from three o'clock.
    const int start =
        d->finished ? 0 : int(std::min(longestArc - d->progress, 0.0) * sixteenthsOfTurn);
    const int span =
        d->finished ? sixteenthsOfTurn : int(std::min(d->progress, longestArc) * -sixteenthsOfTurn);
    painter.setPen(QPen(arcColor, ringWidth, Qt::SolidLine, Qt::FlatCap));
    painter.drawArc(ring, start, span);
}

} // namespace CorvelGui
