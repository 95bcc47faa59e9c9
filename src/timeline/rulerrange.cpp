// SPDX-License-Identifier: MIT
#include "rulerrange.h"

#include "frame/stringhelper.h"
#include "lengthlabel.h"
#include "ruler_p.h"

#include <QCursor>
#include <QKeyEvent>
#include <QLocale>
#include <QMouseEvent>

#include <algorithm>
#include <cmath>
#include <utility>

using namespace Qt::StringLiterals;

namespace CorvelGui {

namespace {

constexpr double snapDistance = 6; // pixels

using End = RangeHandle::End;

} // namespace

RulerRange::RulerRange(Ruler* ruler, Ruler::Private& rulerState)
    : QObject(ruler)
    , m_ruler(ruler)
    , d(rulerState)
    , m_handles{new RangeHandle(End::Begin, ruler), new RangeHandle(End::End, ruler)}
    , m_length(new LengthLabel(ruler))
{
    for (RangeHandle* handle : m_handles) {
        handle->installEventFilter(this);
        describe(handle);
    }
}

RulerRange::~RulerRange() = default;

QWidget* RulerRange::lowestWidget() const
{
    return m_handles.front();
}

// For assistive technology a handle is a slider.
void RulerRange::describe(RangeHandle* handle)
{
    const End end = handle->end();
    m_accessible[std::size_t(end)] = std::make_unique<AccessibleRange>(
        handle, AccessibleRange::Description{
                    .role = QAccessible::Slider,
                    .name =
                        [end] {
                            return end == End::Begin ? tr("Begin of the selected range")
                                                     : tr("End of the selected range");
                        },
                    .minimum = [this] { return double(d.scale.beginLimitMs()); },
                    .maximum = [this] { return double(d.scale.endLimitMs()); },
                    .value = [this, end] { return double(timeOf(end)); },
                    .step = [this] { return double(d.scale.millisecondsPerMinorDivision()); },
                    .text =
                        [this, end] {
                            return tr("%1, selected: %2")
                                .arg(QLocale().toString(d.scale.inZone(timeOf(end))),
                                     StringHelper::duration(m_range.end - m_range.begin));
                        },
                    .move =
                        [this, end](double msecs) {
                            moveEnd(end, qint64(msecs));
                        }});
}

void RulerRange::setMode(Ruler::RangeSelection mode)
{
    if (m_mode == mode)
        return;
    m_mode = mode;
    whileAlive(
        this,
        [this] {
            if (m_drag)
                d.gestures->end();
        },
        [this] { layOut(); }, [&] { Q_EMIT m_ruler->rangeSelectionChanged(mode); });
}

void RulerRange::setRange(const TimeSpan& wanted)
{
    const TimeSpan range = withinLimits(wanted);
    if (m_range == range)
        return layOut();
    m_range = range;
    layOut();
    m_ruler->update();
    for (const auto& accessible : m_accessible)
        accessible->reportValueChange();
    Q_EMIT m_ruler->selectedRangeChanged(range);
}

void RulerRange::followLimits()
{
    setRange(m_range);
}

TimeSpan RulerRange::withinLimits(const TimeSpan& range) const
{
    if (!d.scale.hasView())
        return {};
    const TimeSpan inside{std::max(range.begin, d.scale.beginLimitMs()),
                          std::min(range.end, d.scale.endLimitMs())};
    return inside.isEmpty() ? TimeSpan() : inside;
}

// While an end is dragged, both may stand at one time, which is no range.
TimeSpan RulerRange::shownRange() const
{
    if (!m_drag)
        return m_range;
    return {std::min(m_drag->anchor, m_drag->end), std::max(m_drag->anchor, m_drag->end)};
}

void RulerRange::layOut()
{
    const bool usable =
        m_mode != Ruler::RangeSelection::NoSelection && d.active && d.scale.hasView();
    const TimeSpan range = shownRange();
    for (RangeHandle* handle : m_handles) {
        const double x =
            std::trunc(d.scale.xAt(handle->end() == End::Begin ? range.begin : range.end));
        // A handle that is held stays, wherever it stands.
        const bool shown = usable && (m_drag || (!m_range.isEmpty() && d.scale.isInSight(x)));
        if (shown) {
            constexpr double outside = 100;
            const int column = int(std::clamp(x, -outside, m_ruler->width() + outside));
            handle->standAt(column, d.headerHeight, d.headerHeight);
        }
        showHandle(handle, shown);
    }
    if (m_drag && usable)
        showLength();
    else
        m_length->hide();
}

void RulerRange::showHandle(RangeHandle* handle, bool shown)
{
    handle->setEnabled(d.takesInput());
    if (!shown && handle->hasFocus())
        m_ruler->setFocus(Qt::OtherFocusReason);
    handle->setVisible(shown);
}

void RulerRange::showLength()
{
    const TimeSpan range = shownRange();
    const double left = std::max(d.scale.xAt(range.begin), TimeScale::margin());
    const double right = std::min(d.scale.xAt(range.end), d.scale.width() - TimeScale::margin());
    constexpr int distance = 3;
    m_length->say(StringHelper::duration(range.end - range.begin), (left + right) / 2,
                  2 * d.headerHeight + distance, int(d.fontSize));
}

// The mouse

bool RulerRange::isSelecting(Qt::KeyboardModifiers held) const
{
    const bool withShift = m_mode == Ruler::RangeSelection::ShiftDrag;
    return m_mode != Ruler::RangeSelection::NoSelection &&
           held.testFlag(Qt::ShiftModifier) == withShift;
}

void RulerRange::takeNew(qint64 pressed, int x, Qt::KeyboardModifiers held)
{
    const qint64 anchor =
        std::clamp(snapped(pressed, held), d.scale.beginLimitMs(), d.scale.endLimitMs());
    m_drag =
        Drag{.before = m_range, .anchor = anchor, .end = anchor, .x = x, .offset = 0, .held = held};
    tellStart();
}

void RulerRange::takeHandle(End end, int x)
{
    if (m_range.isEmpty() || !d.gestures->beginRange() || m_range.isEmpty())
        return;
    m_drag = Drag{.before = m_range,
                  .anchor = timeOf(end == End::Begin ? End::End : End::Begin),
                  .end = timeOf(end),
                  .x = x,
                  .offset = x - handleOf(end)->column(),
                  .held = {}};
    layOut();
    tellStart();
}

void RulerRange::drag(int x, Qt::KeyboardModifiers held)
{
    if (!m_drag || m_drag->x == x)
        return;
    m_drag->x = x;
    m_drag->held = held;
    dragAgain();
}

void RulerRange::dragAgain()
{
    if (!m_drag || !d.scale.hasView())
        return;
    const double left = TimeScale::margin();
    const double right = std::max(d.scale.width() - TimeScale::margin(), left);
    const double x = std::clamp(double(m_drag->x - m_drag->offset), left, right);
    m_drag->end = std::clamp(snapped(d.scale.msecsAt(x), m_drag->held), d.scale.beginLimitMs(),
                             d.scale.endLimitMs());
    setRange(shownRange());
}

void RulerRange::letGo()
{
    if (!m_drag)
        return;
    m_drag.reset();
    m_untoldEnd = m_untoldEnd.value_or(false);
    layOut();
}

void RulerRange::tellStart()
{
    if (!std::exchange(m_told, true))
        Q_EMIT m_ruler->rangeSelectionStarted();
}

void RulerRange::tellEnd()
{
    const auto cancelled = std::exchange(m_untoldEnd, {});
    if (cancelled && std::exchange(m_told, false))
        Q_EMIT m_ruler->rangeSelectionEnded(*cancelled);
}

void RulerRange::cancel()
{
    const TimeSpan before = m_drag->before;
    m_drag.reset();
    m_untoldEnd = true;
    whileAlive(
        this, [&] { setRange(before); }, [this] { d.gestures->end(); });
}

qint64 RulerRange::snapped(qint64 msecs, Qt::KeyboardModifiers held) const
{
    const double pixels = d.scale.lengthPerMillisecond();
    if (held & Qt::ControlModifier || !(pixels > 0))
        return msecs;
    const auto reach = quint64(std::min(snapDistance / pixels, 1e15));
    std::optional<qint64> best;
    for (const auto& candidate :
         {nearestEdge(d.segments.recordedSpans(), msecs), d.markers->nearestTime(msecs)}) {
        if (candidate && distanceOf(*candidate, msecs) <= reach &&
            (!best || distanceOf(*candidate, msecs) < distanceOf(*best, msecs)))
            best = candidate;
    }
    return best.value_or(msecs);
}

bool RulerRange::eventFilter(QObject* watched, QEvent* event)
{
    auto* handle = static_cast<RangeHandle*>(watched);
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseMove:
        return mouseEvent(handle, static_cast<QMouseEvent*>(event));
    case QEvent::KeyPress:
        return moveByKey(handle, static_cast<QKeyEvent*>(event));
    case QEvent::Hide:
        if (m_drag)
            d.gestures->end(RulerGestures::Report::NextTurn);
        return false;
    default:
        return false;
    }
}

bool RulerRange::mouseEvent(RangeHandle* handle, QMouseEvent* event)
{
    if (!d.takesInput())
        return false;
    const QPoint position = handle->mapToParent(event->position().toPoint());
    switch (event->type()) {
    case QEvent::MouseMove:
        d.gestures->dragRange(position, event->modifiers(), event->buttons() & Qt::LeftButton);
        return true;
    case QEvent::MouseButtonRelease:
        if (event->button() == Qt::LeftButton)
            d.gestures->dropRange(position.x(), event->modifiers());
        return event->button() == Qt::LeftButton;
    default:
        break;
    }
    if (event->button() != Qt::LeftButton)
        return false;
    takeHandle(handle->end(), position.x());
    return true;
}

// Keys

// Where the keys put an end: to the indicator, without one to the mouse.
std::optional<qint64> RulerRange::timeForKeys() const
{
    if (d.indicatorTime.isValid() && !d.resultMode)
        return qint64(d.exactIndicator);
    const QPoint mouse = m_ruler->mapFromGlobal(QCursor::pos());
    if (m_ruler->underMouse() && d.scale.isOnScale(mouse.x()))
        return d.scale.msecsAt(mouse.x());
    return {};
}

bool RulerRange::pressKey(const QKeyEvent* event)
{
    if (m_mode == Ruler::RangeSelection::NoSelection)
        return false;
    if (event->key() == Qt::Key_Escape)
        return m_drag && (cancel(), true);
    if (m_drag || event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
        return false;
    switch (event->key()) {
    case Qt::Key_I:
    case Qt::Key_O:
        if (const auto time = timeForKeys())
            change(withEnd(event->key() == Qt::Key_I ? End::Begin : End::End, *time));
        return true;
    case Qt::Key_Delete:
        change({});
        return true;
    default:
        return false;
    }
}

TimeSpan RulerRange::withEnd(End end, qint64 msecs) const
{
    TimeSpan range{msecs, msecs};
    if (end == End::Begin)
        range.end = msecs < m_range.end ? m_range.end : d.scale.endLimitMs();
    else
        range.begin =
            !m_range.isEmpty() && m_range.begin < msecs ? m_range.begin : d.scale.beginLimitMs();
    return withinLimits(range).isEmpty() ? m_range : range;
}

std::optional<int> RulerRange::focusedColumn() const
{
    const auto focused = std::ranges::find_if(m_handles, &QWidget::hasFocus);
    return focused == m_handles.end() ? std::nullopt : std::optional((*focused)->column());
}

bool RulerRange::moveByKey(RangeHandle* handle, const QKeyEvent* event)
{
    if (m_drag || event->modifiers() & (Qt::ControlModifier | Qt::AltModifier))
        return false;
    const qint64 step = event->modifiers() & Qt::ShiftModifier
                            ? d.scale.millisecondsPerInterval()
                            : d.scale.millisecondsPerMinorDivision();
    const qint64 time = timeOf(handle->end());
    switch (event->key()) {
    case Qt::Key_Left:
        return moveEnd(handle->end(), time - step), true;
    case Qt::Key_Right:
        return moveEnd(handle->end(), time + step), true;
    case Qt::Key_Home:
        return moveEnd(handle->end(), d.scale.beginLimitMs()), true;
    case Qt::Key_End:
        return moveEnd(handle->end(), d.scale.endLimitMs()), true;
    default:
        return false;
    }
}

qint64 RulerRange::timeOf(End end) const
{
    return end == End::Begin ? m_range.begin : m_range.end;
}

// As far as the other end, and into view.
void RulerRange::moveEnd(End end, qint64 msecs)
{
    if (m_range.isEmpty() || !d.takesInput())
        return;
    TimeSpan range = m_range;
    if (end == End::Begin)
        range.begin = std::clamp(msecs, d.scale.beginLimitMs(), m_range.end - 1);
    else
        range.end = std::clamp(msecs, m_range.begin + 1, d.scale.endLimitMs());
    whileAlive(
        this, [&] { change(range); },
        [&] {
            if (!m_range.isEmpty())
                d.gestures->bringIntoView(timeOf(end));
        });
}

void RulerRange::change(const TimeSpan& range)
{
    if (m_told || withinLimits(range) == m_range)
        return;
    whileAlive(
        this, [this] { tellStart(); }, [&] { setRange(range); },
        [this] {
            if (m_drag)
                return;
            m_untoldEnd = false;
            tellEnd();
        });
}

} // namespace CorvelGui
