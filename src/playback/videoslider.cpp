// SPDX-License-Identifier: MIT
#include "videoslider.h"

#include "base/accessiblerange.h"
#include "base/keyboardfocus.h"
#include "base/wheelturns.h"
#include "base/whilealive.h"
#include "seekgate.h"
#include "slidertip.h"
#include "videotrack.h"

#include <Hueloft/POrvGuiTheme>

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPixmap>
#include <QTimer>

#include <algorithm>
#include <chrono>
#include <iterator>
#include <utility>

using Hueloft::POrvGuiTheme;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace CorvelGui {

namespace {

constexpr int trackThickness = 6;
constexpr int markHeight = 12;
constexpr int markWidth = 3;
constexpr int handleSize = 14;
constexpr int markReach = 4;                ///< how near the mouse must be to a mark, in pixels
constexpr int previewReach = 6;             ///< how far a preview may be from the mouse, in pixels
constexpr qint64 longest = qint64(1) << 53; ///< what a double counts exactly
constexpr auto restBeforePreview = 100ms;

} // namespace

struct VideoSlider::Private
{
    explicit Private(VideoSlider* slider) : focus(slider), tip(new SliderTip(slider)) {}

    qint64 duration = 0;
    qint64 position = 0;
    qint64 bufferedBegin = 0;
    qint64 bufferedEnd = 0;
    qint64 singleStep = 5'000;
    qint64 pageStep = 60'000;
    QList<Mark> marks;
    PositionText positionText;

    bool isDragging = false;
    qint64 dragBegin = 0;
    SeekGate seeks;
    WheelTurns turns;

    int mouseX = -1; ///< negative while the mouse is elsewhere
    QTimer rest;
    qint64 previewPosition = 0;
    QPixmap preview;

    KeyboardFocus focus;
    SliderTip* tip;
    std::unique_ptr<AccessibleRange> accessible;
};

VideoSlider::VideoSlider(QWidget* parent) : QWidget(parent), d(std::make_unique<Private>(this))
{
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setCursor(Qt::PointingHandCursor);
    d->rest.setSingleShot(true);
    d->rest.setInterval(restBeforePreview);
    connect(&d->rest, &QTimer::timeout, this, [this] {
        if (d->mouseX >= 0 && d->duration > 0)
            Q_EMIT previewRequested(track().positionAt(d->mouseX));
    });
    d->accessible = std::make_unique<AccessibleRange>(
        this,
        AccessibleRange::Description{
            .role = QAccessible::Slider,
            .name = [] { return tr("Position in the video"); },
            .minimum = [] { return 0.0; },
            .maximum = [this] { return double(d->duration); },
            .value = [this] { return double(d->position); },
            .step = [this] { return double(d->singleStep); },
            .text = [this] { return tr("%1 of %2").arg(textOf(d->position), textOf(d->duration)); },
            .move =
                [this](double position) {
                    seek(qint64(position));
                }});
}

VideoSlider::~VideoSlider() = default;

qint64 VideoSlider::duration() const
{
    return d->duration;
}

qint64 VideoSlider::position() const
{
    return d->position;
}

qint64 VideoSlider::bufferedBegin() const
{
    return d->bufferedBegin;
}

qint64 VideoSlider::bufferedEnd() const
{
    return d->bufferedEnd;
}

qint64 VideoSlider::singleStep() const
{
    return d->singleStep;
}

void VideoSlider::setSingleStep(qint64 step)
{
    if (std::exchange(d->singleStep, std::clamp<qint64>(step, 1, longest)) != d->singleStep)
        Q_EMIT singleStepChanged(d->singleStep);
}

qint64 VideoSlider::pageStep() const
{
    return d->pageStep;
}

void VideoSlider::setPageStep(qint64 step)
{
    if (std::exchange(d->pageStep, std::clamp<qint64>(step, 1, longest)) != d->pageStep)
        Q_EMIT pageStepChanged(d->pageStep);
}

QList<VideoSlider::Mark> VideoSlider::marks() const
{
    return d->marks;
}

void VideoSlider::setMarks(const QList<Mark>& marks)
{
    d->marks = marks;
    std::ranges::stable_sort(d->marks, {}, &Mark::position);
    update();
}

bool VideoSlider::isDragging() const
{
    return d->isDragging;
}

bool VideoSlider::isSeeking() const
{
    return d->seeks.isBusy();
}

QString VideoSlider::textOf(qint64 position) const
{
    return d->positionText ? d->positionText(position) : track().textOf(position);
}

void VideoSlider::setPositionText(PositionText text)
{
    d->positionText = std::move(text);
}

QSize VideoSlider::sizeHint() const
{
    return {240, handleSize + 8};
}

QSize VideoSlider::minimumSizeHint() const
{
    return {60, handleSize + 8};
}

void VideoSlider::setDuration(qint64 msecs)
{
    const qint64 duration = std::clamp<qint64>(msecs, 0, longest);
    if (duration == d->duration)
        return;
    d->duration = duration;
    update();
    whileAlive(
        this, [&] { Q_EMIT durationChanged(duration); }, [&] { showPosition(d->position); },
        [&] {
            if (d->duration == 0)
                forgetSeeks();
        });
}

void VideoSlider::setPosition(qint64 msecs)
{
    if (!d->isDragging && !d->seeks.isBusy())
        showPosition(msecs);
}

void VideoSlider::setBuffered(qint64 begin, qint64 end)
{
    if (begin == d->bufferedBegin && end == d->bufferedEnd)
        return;
    d->bufferedBegin = begin;
    d->bufferedEnd = end;
    update();
    Q_EMIT bufferedChanged();
}

void VideoSlider::seekDone()
{
    if (!d->seeks.isBusy())
        return;
    if (const auto next = d->seeks.done())
        Q_EMIT seekRequested(*next);
    else
        Q_EMIT seekingChanged(false);
}

void VideoSlider::forgetSeeks()
{
    const bool wasBusy = d->seeks.isBusy();
    d->seeks.forget();
    whileAlive(
        this, [&] { setDragging(false); },
        [&] {
            if (wasBusy && !d->seeks.isBusy())
                Q_EMIT seekingChanged(false);
        });
}

void VideoSlider::setPreview(qint64 position, const QPixmap& picture)
{
    d->previewPosition = position;
    d->preview = picture;
    if (d->mouseX >= 0)
        showTip();
}

void VideoSlider::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    d->focus.draw(painter);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const QColor text = palette().color(QPalette::WindowText);
    const auto faint = [&text](float share) {
        QColor color = text;
        color.setAlphaF(share);
        return color;
    };
    const QRectF bar(VideoTrack::margin, (height() - trackThickness) / 2.0,
                     width() - 2 * VideoTrack::margin, trackThickness);
    const auto fill = [&](qint64 begin, qint64 end, const QColor& color) {
        painter.setClipRect(
            QRectF(QPointF(track().xAt(begin), 0), QPointF(track().xAt(end), height())));
        painter.setBrush(color);
        painter.drawRoundedRect(bar, trackThickness / 2.0, trackThickness / 2.0);
        painter.setClipping(false);
    };
    painter.setBrush(faint(0.22F));
    painter.drawRoundedRect(bar, trackThickness / 2.0, trackThickness / 2.0);
    if (d->duration == 0)
        return;
    const QColor accent = isEnabled() ? POrvGuiTheme::colorBlue : faint(0.5F);
    if (d->bufferedEnd > d->bufferedBegin)
        fill(d->bufferedBegin, d->bufferedEnd, faint(0.3F));
    fill(0, d->position, accent);
    for (const Mark& mark : std::as_const(d->marks)) {
        if (mark.position < 0 || mark.position > d->duration)
            continue;
        const QColor color = mark.color.isValid() ? mark.color : POrvGuiTheme::colorOrange;
        painter.setBrush(isEnabled() ? color : accent);
        painter.drawRoundedRect(QRectF(track().xAt(mark.position) - markWidth / 2.0,
                                       (height() - markHeight) / 2.0, markWidth, markHeight),
                                1, 1);
    }
    if (d->mouseX >= 0 && !d->isDragging && isEnabled())
        painter.fillRect(QRectF(d->mouseX, (height() - markHeight) / 2.0, 1, markHeight), text);
    painter.setBrush(palette().color(isEnabled() ? QPalette::Base : QPalette::Window));
    painter.setPen(QPen(accent, 2));
    constexpr double radius = handleSize / 2.0 - 1;
    painter.drawEllipse(QPointF(track().xAt(d->position), height() / 2.0), radius, radius);
}

void VideoSlider::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton || d->duration == 0) {
        event->ignore();
        return;
    }
    const int x = event->position().toPoint().x();
    d->dragBegin = d->position;
    whileAlive(
        this, [&] { setDragging(true); },
        [&] {
            if (d->isDragging)
                seek(track().positionAt(x));
        },
        [&] { hover(x); });
}

void VideoSlider::mouseMoveEvent(QMouseEvent* event)
{
    const int x = event->position().toPoint().x();
    whileAlive(
        this,
        [&] {
            if (!event->buttons().testFlag(Qt::LeftButton))
                setDragging(false); // the release was lost
        },
        [&] {
            if (d->isDragging)
                seek(track().positionAt(x));
        },
        [&] { hover(x); });
}

void VideoSlider::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        setDragging(false);
}

void VideoSlider::wheelEvent(QWheelEvent* event)
{
    // Also at the ends: the page around must not begin to scroll there.
    event->accept();
    const QPoint angle = event->angleDelta();
    const int notches = d->turns.add(WheelTurns::isSideways(angle) ? -angle.x() : angle.y());
    if (notches != 0)
        seek(d->position + notches * d->singleStep);
}

void VideoSlider::keyPressEvent(QKeyEvent* event)
{
    const bool toMarks = event->modifiers().testFlag(Qt::ControlModifier);
    switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Down:
        return toMarks ? seekToMark(false) : seek(d->position - d->singleStep);
    case Qt::Key_Right:
    case Qt::Key_Up:
        return toMarks ? seekToMark(true) : seek(d->position + d->singleStep);
    case Qt::Key_PageDown:
        return seek(d->position - d->pageStep);
    case Qt::Key_PageUp:
        return seek(d->position + d->pageStep);
    case Qt::Key_Home:
        return seek(0);
    case Qt::Key_End:
        return seek(d->duration);
    case Qt::Key_Escape:
        if (d->isDragging) {
            whileAlive(
                this, [this] { setDragging(false); }, [this] { seek(d->dragBegin); });
            return;
        }
        [[fallthrough]];
    default:
        QWidget::keyPressEvent(event);
    }
}

void VideoSlider::leaveEvent(QEvent* event)
{
    QWidget::leaveEvent(event);
    hover(-1);
}

void VideoSlider::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    hover(-1);
    endDragLater();
}

void VideoSlider::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::EnabledChange && !isEnabled()) {
        hover(-1);
        endDragLater();
    }
}

VideoTrack VideoSlider::track() const
{
    return {d->duration, width()};
}

const VideoSlider::Mark* VideoSlider::markAt(int x) const
{
    const Mark* nearest = nullptr;
    int reach = markReach + 1;
    for (const Mark& mark : std::as_const(d->marks)) {
        const int distance = qAbs(track().xAt(mark.position) - x);
        if (mark.position < 0 || mark.position > d->duration || distance >= reach)
            continue;
        nearest = &mark;
        reach = distance;
    }
    return nearest;
}

void VideoSlider::showPosition(qint64 position)
{
    const qint64 shown = std::clamp<qint64>(position, 0, d->duration);
    if (shown == d->position)
        return;
    d->position = shown;
    update();
    d->accessible->reportValueChange();
    Q_EMIT positionChanged(shown);
}

// What the user wants.
void VideoSlider::seek(qint64 position)
{
    const qint64 wanted = std::clamp<qint64>(position, 0, d->duration);
    if (wanted == d->position)
        return;
    const bool wasBusy = d->seeks.isBusy();
    const bool isAsked = d->seeks.want(wanted);
    whileAlive(
        this, [&] { showPosition(wanted); },
        [&] {
            if (!wasBusy && d->seeks.isBusy())
                Q_EMIT seekingChanged(true);
        },
        [&] {
            if (isAsked && d->seeks.isBusy())
                Q_EMIT seekRequested(wanted);
        });
}

void VideoSlider::seekToMark(bool behind)
{
    const auto place =
        std::ranges::lower_bound(d->marks, d->position + (behind ? 1 : 0), {}, &Mark::position);
    if (behind && place != d->marks.end() && place->position <= d->duration)
        seek(place->position);
    else if (!behind && place != d->marks.begin())
        seek(std::prev(place)->position);
}

void VideoSlider::setDragging(bool on)
{
    if (std::exchange(d->isDragging, on) != on)
        Q_EMIT draggingChanged(on);
}

// Qt still holds the slider, which a receiver may delete.
void VideoSlider::endDragLater()
{
    if (d->isDragging)
        QTimer::singleShot(0, this, [this] { setDragging(false); });
}

void VideoSlider::hover(int x)
{
    d->mouseX = x;
    update();
    if (x < 0 || d->duration == 0 || !isEnabled()) {
        d->mouseX = -1;
        d->rest.stop();
        d->tip->hide();
        return;
    }
    d->rest.start();
    showTip();
}

void VideoSlider::showTip()
{
    const qint64 position = track().positionAt(d->mouseX);
    QString text = textOf(position);
    if (const Mark* mark = markAt(d->mouseX); mark && !mark->text.isEmpty())
        text += u'\n' + mark->text;
    const bool isNear =
        qAbs(track().xAt(d->previewPosition) - track().xAt(position)) <= previewReach;
    d->tip->say(QRect(track().xAt(position), 0, 1, height()), text,
                isNear ? d->preview : QPixmap());
}

} // namespace CorvelGui
