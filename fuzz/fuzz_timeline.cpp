// Random operations on a ruler or a zoom timeline: what a client may call, what a user may do, in
// any order, and inside signals as well.

#include "fuzzing.h"
#include "timelinestage.h"
#include "timelinevalues.h"

#include <CorvelGui/TimelineScroll>
#include <CorvelGui/Zoomer>
#include <Hueloft/POrvGuiTheme>

#include <QApplication>
#include <QKeyEvent>
#include <QWheelEvent>

#include <array>

using namespace CorvelGui;
using namespace Qt::StringLiterals;

namespace {

constexpr int operationsAtMost = 200;

class Play
{
public:
    Play(const uint8_t* data, size_t size) : m_values(data, size), m_stage(m_values.flag()) {}

    void run();

private:
    using Operation = void (Play::*)();
    static const std::array<Operation, 36> operations;

    bool flag() { return m_values.flag(); }
    int number(int least, int most) { return m_values.number(least, most); }
    quint64 instant() { return m_values.instant(); }
    QDateTime time() { return m_values.time(); }
    QPoint place();
    Qt::MouseButton button() { return flag() || flag() ? Qt::LeftButton : Qt::RightButton; }

    Ruler* ruler() const { return m_stage.ruler(); }
    ZoomTimeline* timeline() const { return m_stage.timeline(); }
    void perform();

    // The client
    void setLimits();
    void setLimitsAndIndicator();
    void reset();
    void setZone();
    void setTracks();
    void changeLevel();
    void zoom();
    void center();
    void setIndicator();
    void setPreview();
    void setSearchRange();
    void displaySearchRange();
    void setResultRange();
    void addMarkers();
    void removeMarkers();
    void operateOnMarkers();
    void setIconSize();
    void setLook();
    void setFont();
    void setModes();
    void setActive();
    void blockViewChanges();
    void askForView();
    void resize();
    void setVisible();
    void armReaction();

    // The user
    void move();
    void press();
    void release();
    void drag();
    void turnWheel();
    void pressKey();
    void loseFocus();
    void passTime();
    void setAdditions();
    void changeView();

    TimelineValues m_values;
    TimelineStage m_stage;
    QList<RulerMarker> m_added;
};

const std::array<Play::Operation, 36> Play::operations{
    &Play::setLimits,      &Play::setLimitsAndIndicator,
    &Play::reset,          &Play::setZone,
    &Play::setTracks,      &Play::changeLevel,
    &Play::zoom,           &Play::center,
    &Play::setIndicator,   &Play::setPreview,
    &Play::setSearchRange, &Play::displaySearchRange,
    &Play::setResultRange, &Play::addMarkers,
    &Play::removeMarkers,  &Play::operateOnMarkers,
    &Play::setIconSize,    &Play::setLook,
    &Play::setFont,        &Play::setModes,
    &Play::setActive,      &Play::blockViewChanges,
    &Play::askForView,     &Play::resize,
    &Play::setVisible,     &Play::armReaction,
    &Play::move,           &Play::press,
    &Play::release,        &Play::drag,
    &Play::turnWheel,      &Play::pressKey,
    &Play::loseFocus,      &Play::passTime,
    &Play::setAdditions,   &Play::changeView};

/// Anywhere in or around the window, or on one of the visible parts.
QPoint Play::place()
{
    if (flag() && m_stage.top()) {
        QList<QWidget*> parts;
        for (QWidget* part : m_stage.top()->findChildren<QWidget*>()) {
            if (part->isVisible())
                parts.append(part);
        }
        if (!parts.isEmpty()) {
            const QWidget* part = parts.at(number(0, int(parts.size()) - 1));
            return part->mapTo(m_stage.window(), part->rect().center());
        }
    }
    return {number(-50, 1100), number(-30, 170)};
}

void Play::setLimits()
{
    const quint64 begin = instant();
    const quint64 end =
        flag() ? begin + quint64(number(0, 40'000)) * TimelineValues::minute : instant();
    if (timeline() && flag())
        timeline()->setTimeLimits(begin, end);
    else
        ruler()->setTimeLimits(begin, end);
}

void Play::setLimitsAndIndicator()
{
    if (!timeline())
        return;
    const quint64 begin = instant();
    const quint64 end = instant();
    timeline()->setTimeLimitsAndIndicatorPosition(begin, end, instant());
}

void Play::reset()
{
    if (timeline())
        timeline()->resetTimeline();
}

void Play::setZone()
{
    if (timeline())
        timeline()->setTimeZone(m_values.zone());
    else
        ruler()->setTimeZone(m_values.zone());
}

void Play::setTracks()
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

void Play::changeLevel()
{
    const int level = number(-2, 10);
    ruler()->changeLevel(level, m_values.position());
}

void Play::zoom()
{
    const int level = number(-2, 10);
    if (flag())
        ruler()->onZoomerIn(level, m_values.position());
    else
        ruler()->onZoomerOut(level, m_values.position());
}

void Play::center()
{
    const double center = flag() ? m_values.position() : m_values.anyDouble();
    if (timeline())
        timeline()->onViewAreaPositionChanged(center);
    else
        ruler()->onTimelineOffsetChanged(center);
}

void Play::setIndicator()
{
    const quint64 msecs = instant();
    if (timeline())
        timeline()->setIndicatorPosition(msecs);
    else
        ruler()->setIndicatorPosition(msecs);
    if (ruler())
        ruler()->setIndicatorDragEnabled(flag());
}

void Play::setPreview()
{
    ruler()->setPreviewIndicatorPosition(instant());
    const bool visible = flag();
    ruler()->onPreviewVisible(visible, flag());
    ruler()->setPreviewEnabled(number(0, 3) > 0);
}

void Play::setSearchRange()
{
    const QDateTime from = time();
    const QDateTime to = time();
    if (timeline())
        timeline()->setSearchTimeRange(from, to, flag());
    else
        ruler()->setSearchTimeRange(from, to, flag());
}

void Play::displaySearchRange()
{
    if (timeline())
        timeline()->onZoomTimeLineOperation({number(0, 8), time(), time(), flag(), flag()});
    else
        ruler()->displaySearchTimeRange(flag());
}

void Play::setResultRange()
{
    const QDateTime from = time();
    const QDateTime to = time();
    ruler()->setResultTimeRange(from, to, flag(), flag(), flag(), flag());
}

void Play::addMarkers()
{
    const QList<RulerMarker> added = m_values.markers();
    m_added += added;
    ruler()->onAddMarkers(added);
}

void Play::removeMarkers()
{
    if (!m_added.isEmpty())
        ruler()->onRemoveMarkers({m_added.takeAt(number(0, int(m_added.size()) - 1))});
}

void Play::operateOnMarkers()
{
    ruler()->onMarkerOperation({flag() ? m_values.markers() : QList<RulerMarker>(), number(0, 6)});
}

void Play::setIconSize()
{
    ruler()->setIconSize({number(-1, 80), number(-1, 80)});
}

void Play::setLook()
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

void Play::setFont()
{
    const int points = number(-1, 210);
    if (timeline())
        timeline()->setFontSize(points);
    else
        ruler()->setFontSize(unsigned(points));
}

void Play::setModes()
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

void Play::setActive()
{
    const bool active = number(0, 3) > 0;
    m_stage.setActive(active, number(0, 3) == 0);
}

void Play::blockViewChanges()
{
    ruler()->blockSignalTimeLineViewChanged(true);
    perform();
    if (!ruler())
        return;
    ruler()->blockSignalTimeLineViewChanged(false);
    ruler()->processTimeLineViewChanges();
}

void Play::askForView()
{
    ruler()->onTimeLineViewSettingsNeeded();
}

void Play::resize()
{
    if (flag())
        m_stage.top()->setMinimumSize(0, 0);
    if (flag())
        ruler()->setMinimumWidth(0);
    m_stage.window()->resize(number(0, 2200), number(0, 300));
}

void Play::setVisible()
{
    QWidget* const widget = flag() ? ruler() : m_stage.top();
    widget->setVisible(flag());
}

void Play::armReaction()
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

void Play::move()
{
    m_stage.mouse(QEvent::MouseMove, place());
}

void Play::press()
{
    const QPoint at = place();
    m_stage.mouse(QEvent::MouseButtonPress, at, button(),
                  flag() ? Qt::ShiftModifier : Qt::NoModifier);
}

void Play::release()
{
    const QPoint at = place();
    m_stage.mouse(QEvent::MouseButtonRelease, at, button());
}

void Play::drag()
{
    const Qt::MouseButton held = button();
    m_stage.mouse(QEvent::MouseButtonPress, place(), held);
    for (int moves = number(0, 5); moves > 0; --moves)
        m_stage.mouse(QEvent::MouseMove, place());
    if (number(0, 3) > 0)
        m_stage.mouse(QEvent::MouseButtonRelease, place(), held);
    else if (flag())
        m_stage.forgetButtons();
}

void Play::turnWheel()
{
    const QPoint at = place();
    QWidget* const target = m_stage.window()->childAt(at);
    if (!target)
        return;
    const QPoint angle(number(-240, 240), number(-240, 240));
    QWheelEvent event(target->mapFrom(m_stage.window(), at), m_stage.window()->mapToGlobal(at),
                      flag() ? angle : QPoint(), angle, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(target, &event);
}

void Play::pressKey()
{
    static constexpr std::array keys{
        Qt::Key_Left,  Qt::Key_Right,  Qt::Key_Home, Qt::Key_End, Qt::Key_PageUp, Qt::Key_PageDown,
        Qt::Key_Plus,  Qt::Key_Minus,  Qt::Key_0,    Qt::Key_N,   Qt::Key_P,      Qt::Key_Tab,
        Qt::Key_Space, Qt::Key_Escape, Qt::Key_I,    Qt::Key_O,   Qt::Key_Delete};
    QWidget* const focused = QApplication::focusWidget();
    QWidget* const target = focused && flag() ? focused : ruler();
    const Qt::KeyboardModifiers modifiers = m_values.pick(std::array<Qt::KeyboardModifiers, 3>{
        Qt::NoModifier, Qt::ShiftModifier, Qt::ControlModifier});
    const int key = m_values.pick(keys);
    const QPointer<QWidget> alive(target);
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        if (QKeyEvent event(type, key, modifiers); alive)
            QApplication::sendEvent(alive, &event);
    }
}

void Play::loseFocus()
{
    static constexpr std::array types{QEvent::Leave, QEvent::WindowDeactivate, QEvent::FocusOut,
                                      QEvent::LanguageChange, QEvent::PaletteChange};
    switch (number(0, 2)) {
    case 0: {
        QEvent event(m_values.pick(types));
        if (event.type() != QEvent::FocusOut)
            QApplication::sendEvent(flag() ? ruler() : m_stage.top(), &event);
        return;
    }
    case 1:
        m_stage.window()->clearFocus();
        return;
    default:
        m_stage.window()->hide();
        m_stage.window()->show();
    }
}

void Play::passTime()
{
    m_stage.fireTimers();
    if (flag())
        QApplication::processEvents();
    if (flag() && m_stage.window()->isVisible())
        m_stage.window()->grab();
}

/// What is off by default.
void Play::setAdditions()
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

void Play::changeView()
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
        ruler()->setView(from, flag() && from < TimelineValues::base * 2 ? from + length
                                                                         : qint64(instant()));
    }
    }
}

void Play::perform()
{
    if (ruler())
        (this->*operations[size_t(number(0, int(operations.size()) - 1))])();
}

void Play::run()
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
    Play(data, size).run();
    return 0;
}
