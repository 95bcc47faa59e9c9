// SPDX-License-Identifier: MIT
#include "timelinestage.h"

#include "fuzzing.h"

#include <QCoreApplication>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>
#include <QWindow>

#include <algorithm>
#include <cmath>
#include <utility>

using CorvelGui::Ruler;
using CorvelGui::TimeSpan;
using CorvelGui::ZoomTimeline;
using Fuzzing::require;

namespace {

// Three times the farthest instant that the timeline knows: room for a view at its end.
constexpr qint64 farthest = 3 * Q_INT64_C(8'640'000'000'000'000);

bool isSane(quint64 msecs)
{
    return std::abs(qint64(msecs)) < farthest;
}

} // namespace

TimelineStage::TimelineStage(bool zoomTimeline) : m_window(std::make_unique<QWidget>())
{
    auto* layout = new QVBoxLayout(m_window.get());
    if (zoomTimeline) {
        m_timeline = new ZoomTimeline;
        m_ruler = m_timeline->ruler();
    } else {
        m_ruler = new Ruler;
    }
    layout->addWidget(top());
    watch();
    m_window->resize(1000, 140);
    m_window->show();
    QCoreApplication::processEvents();
}

TimelineStage::~TimelineStage() = default;

QWidget* TimelineStage::top() const
{
    return m_timeline ? static_cast<QWidget*>(m_timeline) : m_ruler;
}

void TimelineStage::deleteTop()
{
    delete top();
}

void TimelineStage::react(int signalsBefore, std::function<void()> reaction)
{
    m_signalsBefore = signalsBefore;
    m_reaction = std::move(reaction);
}

void TimelineStage::signalled()
{
    if (m_reaction && m_signalsBefore-- == 0)
        std::exchange(m_reaction, {})();
}

void TimelineStage::watch()
{
    Ruler* const ruler = m_ruler;
    QWidget* const context = m_window.get();
    QObject::connect(ruler, &Ruler::changeSliderZoom, context, [this](int level) {
        require(level >= 0 && level <= m_ruler->getNrOfZooomLevels(), "the level is one");
        signalled();
    });
    QObject::connect(ruler, &Ruler::centerPositionChanged, context, [this](double position) {
        require(std::isfinite(position), "the centre is somewhere");
        signalled();
    });
    QObject::connect(
        ruler, &Ruler::indicatorPositionChanged, context, [this](quint64 msecs, double position) {
            require(isSane(msecs) && std::isfinite(position), "the indicator is somewhere");
            signalled();
        });
    QObject::connect(ruler, &Ruler::timeLineViewChanged, context,
                     [this](const QDateTime& begin, const QDateTime& end, const QDateTime& from,
                            const QDateTime& to, bool moving) {
                         require(begin.isValid() == end.isValid(), "there are two limits or none");
                         require(!from.isValid() || !to.isValid() || from <= to ||
                                     to < begin, // the view lies before the limits
                                 "the view begins before it ends");
                         m_viewMoving = moving;
                         signalled();
                     });
    QObject::connect(ruler, &Ruler::previewPositionChanged, context,
                     [this](quint64 msecs, const QPoint&, bool) {
                         const auto [begin, end] = m_ruler->getTimeLimits();
                         require(msecs == 0 || (begin <= msecs && msecs <= end),
                                 "previews are asked for within the limits");
                         m_previewWanted = msecs != 0;
                         signalled();
                     });
    QObject::connect(ruler, &Ruler::newVisibleRulerMarkers, context,
                     [this](const QList<QDateTime>& times) {
                         require(!times.isEmpty() && std::is_sorted(times.begin(), times.end()),
                                 "new markers are told in order");
                         signalled();
                     });
    watchChoices();
}

/// What the user chose, which is not of the view.
void TimelineStage::watchChoices()
{
    Ruler* const ruler = m_ruler;
    QWidget* const context = m_window.get();
    const auto jumped = [this](const QDateTime& time) {
        require(time.isValid(), "a jump leads somewhere");
        signalled();
    };
    QObject::connect(ruler, &Ruler::jumpToTime, context, jumped);
    QObject::connect(ruler, &Ruler::jumpToTrackTime, context, jumped);
    QObject::connect(ruler, &Ruler::selectedRangeChanged, context, [this](const TimeSpan& range) {
        const auto [begin, end] = m_ruler->getTimeLimits();
        require(range == TimeSpan() || (qint64(begin) <= range.begin && range.begin < range.end &&
                                        range.end <= qint64(end)),
                "the selected range is one within the limits");
        signalled();
    });
    QObject::connect(ruler, &Ruler::viewSettled, context,
                     [this](const TimeSpan&, const QList<TimeSpan>& added) {
                         require(added.size() <= 2, "a view is new at its ends at most");
                         signalled();
                     });
    QObject::connect(ruler, &Ruler::contextRequested, context, [this] { signalled(); });
    const auto selecting = [this](bool begins) {
        require(std::exchange(m_selecting, begins) != begins, "a selection begins before it ends");
        signalled();
    };
    QObject::connect(ruler, &Ruler::rangeSelectionStarted, context,
                     [selecting] { selecting(true); });
    QObject::connect(ruler, &Ruler::rangeSelectionEnded, context,
                     [selecting] { selecting(false); });
    QObject::connect(ruler, &Ruler::previewIndicatorPositionChanged, context,
                     [this] { signalled(); });
}

void TimelineStage::mouse(QEvent::Type type, QPoint position, Qt::MouseButton button,
                          Qt::KeyboardModifiers modifiers)
{
    if (type == QEvent::MouseButtonPress)
        m_buttons |= button;
    else if (type == QEvent::MouseButtonRelease)
        m_buttons &= ~int(button);
    // Less than the time of a double click lies between two events.
    m_timestamp += 50;
    if (QWindow* const handle = m_window->windowHandle())
        qt_handleMouseEvent(handle, position, m_window->mapToGlobal(position), m_buttons, button,
                            type, modifiers, m_timestamp);
    QCoreApplication::processEvents();
}

void TimelineStage::fireTimers()
{
    QList<QPointer<QTimer>> timers;
    for (QTimer* timer : m_window->findChildren<QTimer*>())
        timers.append(timer);
    for (const auto& timer : timers) {
        if (timer && timer->isActive())
            QMetaObject::invokeMethod(timer, "timeout");
    }
}

void TimelineStage::setActive(bool active, bool blocked)
{
    m_active = active;
    m_blocked = blocked;
    if (m_timeline)
        m_timeline->setActive(active, blocked);
    else
        m_ruler->setActive(active, blocked);
}

void TimelineStage::checkState() const
{
    if (!m_ruler)
        return;
    require(m_ruler->level() >= 0 && m_ruler->level() <= m_ruler->getNrOfZooomLevels(),
            "the level is one");
    require(isSane(m_ruler->beginTime()) && isSane(m_ruler->endTime()), "the view is somewhere");
    require(qint64(m_ruler->beginTime()) <= qint64(m_ruler->endTime()), "the view has an extent");
    require(isSane(m_ruler->getTotalDuration()), "the duration is one");
    require(std::isfinite(m_ruler->getCurrentCenterPosition()), "the centre is somewhere");
    require(std::isfinite(m_ruler->getIndicatorPosition()), "the indicator is somewhere");
    require(m_ruler->lengthPerMillisecond() >= 0.0, "time has a length");
    const auto takesInput = this->takesInput();
    require((takesInput && m_ruler->isVisible()) || !m_previewWanted,
            "who cannot be asked for previews wants none");
}

void TimelineStage::checkIdle()
{
    for (const auto button : {Qt::LeftButton, Qt::RightButton}) {
        if (m_buttons & button)
            mouse(QEvent::MouseButtonRelease, {500, 60}, button);
    }
    m_reaction = {};
    if (!m_ruler)
        return;
    QCoreApplication::processEvents();
    const quint64 begin = m_ruler->beginTime();
    const quint64 indicator = m_ruler->getIndicatorMSecs();
    const int level = m_ruler->level();
    for (const QPoint position : {QPoint(300, 30), QPoint(700, 40), QPoint(990, 135)}) {
        mouse(QEvent::MouseMove, position);
        fireTimers();
    }
    require(m_ruler->beginTime() == begin && m_ruler->level() == level,
            "no gesture moves the view when no button is held");
    require(m_ruler->getIndicatorMSecs() == indicator,
            "no gesture moves the indicator when no button is held");
    require(!m_viewMoving && !m_selecting, "a gesture that ended said so");
    checkState();
}
