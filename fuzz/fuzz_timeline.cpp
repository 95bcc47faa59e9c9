// SPDX-License-Identifier: MIT
// Random operations on a ruler or a zoom timeline, and what a client does to them.

#include "fuzzing.h"
#include "timelineplay.h"

#include <CorvelGui/TimelineScroll>
#include <CorvelGui/Zoomer>
#include <Hueloft/POrvGuiTheme>

#include <QApplication>

using namespace CorvelGui;
using namespace Qt::StringLiterals;

constexpr int operationsAtMost = 200;

const std::array<TimelinePlay::Operation, 36> TimelinePlay::operations{
    &TimelinePlay::setLimits,      &TimelinePlay::setLimitsAndIndicator,
    &TimelinePlay::reset,          &TimelinePlay::setZone,
    &TimelinePlay::setTracks,      &TimelinePlay::changeLevel,
    &TimelinePlay::zoom,           &TimelinePlay::center,
    &TimelinePlay::setIndicator,   &TimelinePlay::setPreview,
    &TimelinePlay::setSearchRange, &TimelinePlay::displaySearchRange,
    &TimelinePlay::setResultRange, &TimelinePlay::addMarkers,
    &TimelinePlay::removeMarkers,  &TimelinePlay::operateOnMarkers,
    &TimelinePlay::setIconSize,    &TimelinePlay::setLook,
    &TimelinePlay::setFont,        &TimelinePlay::setModes,
    &TimelinePlay::setActive,      &TimelinePlay::blockViewChanges,
    &TimelinePlay::askForView,     &TimelinePlay::resize,
    &TimelinePlay::setVisible,     &TimelinePlay::armReaction,
    &TimelinePlay::move,           &TimelinePlay::press,
    &TimelinePlay::release,        &TimelinePlay::drag,
    &TimelinePlay::turnWheel,      &TimelinePlay::pressKey,
    &TimelinePlay::loseFocus,      &TimelinePlay::passTime,
    &TimelinePlay::setAdditions,   &TimelinePlay::changeView};

void TimelinePlay::setLimits()
{
    const quint64 begin = instant();
    const quint64 end =
        flag() ? begin + quint64(number(0, 40'000)) * TimelineValues::minute : instant();
    if (timeline() && flag())
        timeline()->setTimeLimits(begin, end);
    else
        ruler()->setTimeLimits(begin, end);
}

void TimelinePlay::setLimitsAndIndicator()
{
    if (!timeline())
        return;
    const quint64 begin = instant();
    const quint64 end = instant();
    timeline()->setTimeLimitsAndIndicatorPosition(begin, end, instant());
}

void TimelinePlay::reset()
{
    if (timeline())
        timeline()->resetTimeline();
}

void TimelinePlay::setZone()
{
    if (timeline())
        timeline()->setTimeZone(m_values.zone());
    else
        ruler()->setTimeZone(m_values.zone());
}

void TimelinePlay::setTracks()
{
    QList<TrackDescription> tracks;
    for (int count = number(0, 3); count > 0; --count) {
        TrackDescription track{.begin = qint64(instant()), .end = qint64(instant())};
        for (int spans = number(0, 8); spans > 0; --spans) {
            const auto begin = qint64(instant());
            track.recorded.append({begin, qint64(instant())});
        }
        tracks.append(track);
    }
    ruler()->setTrackDescriptions(tracks);
}

void TimelinePlay::changeLevel()
{
    const int level = number(-2, 10);
    ruler()->changeLevel(level, m_values.position());
}

void TimelinePlay::zoom()
{
    const int level = number(-2, 10);
    if (flag())
        ruler()->onZoomerIn(level, m_values.position());
    else
        ruler()->onZoomerOut(level, m_values.position());
}

void TimelinePlay::center()
{
    const double center = flag() ? m_values.position() : m_values.anyDouble();
    if (timeline())
        timeline()->onViewAreaPositionChanged(center);
    else
        ruler()->onTimelineOffsetChanged(center);
}

void TimelinePlay::setIndicator()
{
    const quint64 msecs = instant();
    if (timeline())
        timeline()->setIndicatorPosition(msecs);
    else
        ruler()->setIndicatorPosition(msecs);
    if (ruler())
        ruler()->setIndicatorDragEnabled(flag());
}

void TimelinePlay::setPreview()
{
    ruler()->setPreviewIndicatorPosition(instant());
    const bool visible = flag();
    ruler()->onPreviewVisible(visible, flag());
    ruler()->setPreviewEnabled(number(0, 3) > 0);
}

void TimelinePlay::setSearchRange()
{
    const QDateTime from = time();
    const QDateTime to = time();
    if (timeline())
        timeline()->setSearchTimeRange(from, to, flag());
    else
        ruler()->setSearchTimeRange(from, to, flag());
}

void TimelinePlay::displaySearchRange()
{
    if (timeline())
        timeline()->onZoomTimeLineOperation({number(0, 8), time(), time(), flag(), flag()});
    else
        ruler()->displaySearchTimeRange(flag());
}

void TimelinePlay::setResultRange()
{
    const QDateTime from = time();
    const QDateTime to = time();
    ruler()->setResultTimeRange(from, to, flag(), flag(), flag(), flag());
}

void TimelinePlay::addMarkers()
{
    const QList<RulerMarker> added = m_values.markers();
    m_added += added;
    ruler()->onAddMarkers(added);
}

void TimelinePlay::removeMarkers()
{
    if (!m_added.isEmpty())
        ruler()->onRemoveMarkers({m_added.takeAt(number(0, int(m_added.size()) - 1))});
}

void TimelinePlay::operateOnMarkers()
{
    ruler()->onMarkerOperation({flag() ? m_values.markers() : QList<RulerMarker>(), number(0, 6)});
}

void TimelinePlay::setIconSize()
{
    ruler()->setIconSize({number(-1, 80), number(-1, 80)});
}

void TimelinePlay::setLook()
{
    ruler()->setHeaderColor(flag() ? Qt::white : Qt::black);
    ruler()->setBodyColor(flag() ? QColor() : Qt::gray);
    const bool theme = flag();
    if (timeline())
        timeline()->setOrvaneGuiTheme(theme);
    else
        ruler()->setOrvaneGuiTheme(theme);
    ruler()->setDateFormat(flag() ? u"yyyy-MM-dd"_s : QString());
    QPalette palette;
    if (flag())
        Hueloft::POrvGuiTheme::SetDarkPalette(palette);
    m_stage.window()->setPalette(palette);
    m_stage.window()->setLayoutDirection(flag() ? Qt::RightToLeft : Qt::LeftToRight);
}

void TimelinePlay::setFont()
{
    const int points = number(-1, 210);
    if (timeline())
        timeline()->setFontSize(points);
    else
        ruler()->setFontSize(unsigned(points));
}

void TimelinePlay::setModes()
{
    const bool result = flag();
    const bool play = flag();
    if (timeline()) {
        timeline()->setResultMode(result);
        timeline()->setPlayMode(play);
    } else {
        ruler()->setResultMode(result);
        ruler()->setPlayMode(play);
    }
}

void TimelinePlay::setActive()
{
    const bool active = number(0, 3) > 0;
    m_stage.setActive(active, number(0, 3) == 0);
}

void TimelinePlay::blockViewChanges()
{
    ruler()->blockSignalTimeLineViewChanged(true);
    perform();
    if (!ruler())
        return;
    ruler()->blockSignalTimeLineViewChanged(false);
    ruler()->processTimeLineViewChanges();
}

void TimelinePlay::askForView()
{
    ruler()->onTimeLineViewSettingsNeeded();
}

void TimelinePlay::resize()
{
    if (flag())
        m_stage.top()->setMinimumSize(0, 0);
    if (flag())
        ruler()->setMinimumWidth(0);
    m_stage.window()->resize(number(0, 2200), number(0, 300));
}

void TimelinePlay::setVisible()
{
    QWidget* const widget = flag() ? ruler() : m_stage.top();
    widget->setVisible(flag());
}

void TimelinePlay::armReaction()
{
    const int before = number(0, 6);
    switch (number(0, 7)) {
    case 0:
        return m_stage.react(before, [this] { m_stage.deleteTop(); });
    case 1:
        return m_stage.react(before, [this] { ruler()->onClearMarkers(); });
    case 2:
        return m_stage.react(before, [this] { m_stage.top()->hide(); });
    case 3:
        return m_stage.react(before, [this] { m_stage.setActive(false, false); });
    default:
        return m_stage.react(before, [this] { perform(); });
    }
}

/// What is off by default.
void TimelinePlay::setAdditions()
{
    // The client may delete the ruler in any of the signals.
    constexpr void (Ruler::*switches[])(bool) = {
        &Ruler::setContinuousZoom, &Ruler::setCalendarTicks, &Ruler::setZoomHistory,
        &Ruler::setFineWheel,      &Ruler::setTouchGestures, &Ruler::setEdgeScrolling};
    for (const auto& set : switches) {
        if (ruler())
            (ruler()->*set)(flag());
    }
    if (ruler())
        ruler()->setFollowMode(Ruler::FollowMode(number(0, int(Ruler::FollowMode::Smooth))));
    if (ruler())
        ruler()->setRangeSelection(Ruler::RangeSelection(number(0, 2)));
    if (ruler() && flag())
        ruler()->setSelectedRange({qint64(instant()), qint64(instant())});
    if (ruler() && flag())
        ruler()->setLoading({}, {qint64(instant()), qint64(instant())}, flag());
    if (ruler() && flag())
        ruler()->contextAt(place());
    if (timeline())
        timeline()->setActivityVisible(flag());
    if (timeline())
        timeline()->setLanesVisible(flag());
}

void TimelinePlay::changeView()
{
    switch (number(0, 5)) {
    case 0:
        return ruler()->zoomIn();
    case 1:
        return ruler()->zoomOut();
    case 2:
        return flag() ? ruler()->zoomBack() : ruler()->zoomForward();
    case 3:
        return ruler()->centerOn(qint64(instant()));
    case 4:
        return ruler()->resumeFollowing();
    default: {
        const qint64 from = qint64(instant());
        const qint64 length = number(-10, 100'000);
        ruler()->setView(from, flag() && from < qint64(2 * TimelineValues::base)
                                   ? from + length
                                   : qint64(instant()));
    }
    }
}

void TimelinePlay::perform()
{
    if (ruler())
        (this->*operations[size_t(number(0, int(operations.size()) - 1))])();
}

void TimelinePlay::run()
{
    m_stage.setActive(true, false);
    ruler()->setPreviewEnabled(true);
    ruler()->setTimeZone(u"UTC"_s);
    ruler()->setTimeLimits(TimelineValues::base,
                           TimelineValues::base + number(0, 60) * TimelineValues::day);
    for (int count = 0; count < operationsAtMost && !m_values.atEnd() && ruler(); ++count) {
        perform();
        m_stage.checkState();
    }
    m_stage.checkIdle();
}

namespace {

void failOnWarning(QtMsgType type, const QMessageLogContext&, const QString& text)
{
    // The offscreen platform has no windows to raise.
    if (type == QtDebugMsg || type == QtInfoMsg || text.startsWith("This plugin does not"_L1))
        return;
    std::fprintf(stderr, "%s\n", qPrintable(text));
    Fuzzing::require(false, "there are no warnings");
}

} // namespace

// It keeps what it has read of the system's fonts.
extern "C" const char* __lsan_default_suppressions()
{
    return "leak:libfontconfig\n";
}

extern "C" const char* __lsan_default_options()
{
    return "print_suppressions=0";
}

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("TZ", "Europe/Brussels");
    static int argumentCount = 1;
    static char name[] = "fuzz_timeline";
    static char* arguments[] = {name, nullptr};
    // Never deleted: what it would take with it ends with the program.
    static const auto* application = new QApplication(argumentCount, arguments);
    Q_UNUSED(application);
    qInstallMessageHandler(failOnWarning);
    // The timeline tells every move of its strip there.
    return std::freopen("/dev/null", "w", stdout) ? 0 : 1;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    TimelinePlay(data, size).run();
    return 0;
}
