#include "ruler.h"

#include "indicator.h"
#include "rulerarrows.h"
#include "rulerpainter.h"
#include "timescale.h"
#include "tracksegments.h"

#include <Corvel/TimeZoneHelper>
#include <Hueloft/POrvGuiTheme>

#include <QPainter>
#include <QTimer>

#include <cmath>
#include <utility>

using Corvel::TimeZoneHelper;
using Hueloft::POrvGuiTheme;
using namespace Qt::StringLiterals;

namespace CorvelGui {

namespace {

constexpr int initialHeight = 60;
constexpr int minimumRulerWidth = 800;
constexpr qint64 msecsPerDay = 86'400'000;

} // namespace

struct Ruler::Private
{
    TimeScale scale;
    TrackSegments segments;
    RulerPainter painter;
    QString dateFormat = u"dd.MM.yy"_s;

    Indicator* indicator = nullptr;
    QDateTime indicatorTime;
    RulerArrows* arrows = nullptr;

    QDateTime previewTime;
    bool previewVisible = false;
    bool previewPending = false;

    QDateTime searchBegin;
    QDateTime searchEnd;
    bool searchDisplayed = false;

    int headerHeight = initialHeight / 4;
    unsigned int fontSize = 8;
    bool theme = true;
    bool playMode = true;
    bool resultMode = false;
    bool active = false;
    bool blocked = false;
    bool viewChangeBlocked = false;
    bool viewChangePending = false;

    QColor indicatorColor() const
    {
        if (!playMode)
            return POrvGuiTheme::colorGreen;
        return theme ? POrvGuiTheme::colorYellow : POrvGuiTheme::colorBlue;
    }

    RulerScene scene(const QRect& rect) const
    {
        RulerScene scene{.scale = scale,
                         .segments = segments,
                         .rect = rect,
                         .headerHeight = headerHeight,
                         .dateFormat = dateFormat,
                         .searchRange = {},
                         .previewTime = {}};
        if (searchDisplayed && searchBegin.isValid() && searchEnd.isValid())
            scene.searchRange =
                TimeSpan{searchBegin.toMSecsSinceEpoch(), searchEnd.toMSecsSinceEpoch()};
        if (previewVisible && previewTime.isValid())
            scene.previewTime = previewTime.toMSecsSinceEpoch();
        return scene;
    }
};

Ruler::Ruler(QWidget* parent) : QWidget(parent), d(std::make_unique<Private>())
{
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
    setMinimumSize(minimumRulerWidth, initialHeight);
    setMaximumHeight(initialHeight);

    d->scale.setWidth(width());
    d->arrows = new RulerArrows(this, [this](int direction) { return canMoveViewPort(direction); });
    connect(d->arrows, &RulerArrows::step, this, &Ruler::moveViewPort);
    connect(d->arrows, &RulerArrows::released, this, [this] { changedTimeLineView(false); });
    d->indicator = new Indicator(this);
    d->indicator->hide();

    setOrvaneGuiTheme(true);
    setActive(false, false);
    updateSize();
}

Ruler::~Ruler() = default;

void Ruler::setTimeLimits(quint64 begin, quint64 end)
{
    const QDateTime oldViewStart = d->scale.viewStart();
    d->scale.setTimeLimits(begin, end);
    if (!oldViewStart.isValid() && d->scale.hasView())
        Q_EMIT centerPositionChanged(getCurrentCenterPosition());

    // No indicator counts as one at the epoch: it comes to the begin of the first period.
    const qint64 indicator = qint64(getIndicatorMSecs());
    if (indicator < d->scale.beginLimitMs())
        setIndicatorPosition(quint64(d->scale.beginLimitMs()));
    else if (d->scale.endLimitMs() < indicator)
        setIndicatorPosition(quint64(d->scale.endLimitMs()));

    updateTrackSegments();
    if (d->scale.hasView() && d->scale.viewStart() != oldViewStart) {
        updateChildren(true);
        changedTimeLineView(false);
    } else {
        updateChildren(false);
        if (d->segments.isTrackLimitChanged(d->scale))
            changedTimeLineView(false);
    }
}

std::pair<quint64, quint64> Ruler::getTimeLimits() const
{
    return {quint64(d->scale.beginLimitMs()), quint64(d->scale.endLimitMs())};
}

quint64 Ruler::getTotalDuration() const
{
    return d->scale.totalDuration();
}

void Ruler::setTimeZone(const QString& name)
{
    d->scale.setTimeZone(name.isEmpty() ? QTimeZone()
                                        : QTimeZone(TimeZoneHelper::getTimeZone(name).toUtf8()));
}

void Ruler::setTrackDescriptions(const QList<TrackDescription>& tracks)
{
    d->segments.setTracks(tracks);
    updateTrackSegments();
}

quint64 Ruler::beginTime() const
{
    return quint64(d->scale.viewStartMs());
}

quint64 Ruler::endTime() const
{
    return quint64(d->scale.viewEndMs());
}

int Ruler::getNrOfZooomLevels() const
{
    return TimeScale::levelCount;
}

int Ruler::level() const
{
    return d->scale.level();
}

void Ruler::changeLevel(int level, double anchor)
{
    const int oldLevel = d->scale.level();
    d->scale.changeLevel(level, anchor);
    const bool changed = d->scale.level() != oldLevel;
    if (changed)
        updateTrackSegments();
    updateChildren(changed);
    Q_EMIT changeSliderZoom(d->scale.level());
    Q_EMIT centerPositionChanged(getCurrentCenterPosition());
    changedTimeLineView(false);
    repaint();
}

double Ruler::getCurrentCenterPosition() const
{
    return d->scale.getCurrentCenterPosition();
}

double Ruler::getPosition(const QDateTime& time) const
{
    return d->scale.getPosition(time.toMSecsSinceEpoch());
}

double Ruler::lengthPerMillisecond() const
{
    return d->scale.lengthPerMillisecond();
}

bool Ruler::setIndicatorPosition(quint64 msecs)
{
    const quint64 current = getIndicatorMSecs();
    const quint64 distance = msecs > current ? msecs - current : current - msecs;
    if (distance == 0 || double(distance) * lengthPerMillisecond() < 1.0) {
        showIndicatorTime(msecs);
        return false;
    }
    if (msecs == 0) {
        d->indicatorTime = QDateTime();
        updateChildren(false);
        return true;
    }

    d->indicatorTime = d->scale.inZone(qint64(msecs));
    if (d->scale.pageTo(d->indicatorTime)) {
        updateTrackSegments();
        updateChildren(true);
        changedTimeLineView(false);
    } else {
        updateChildren(false);
    }
    return true;
}

quint64 Ruler::getIndicatorMSecs() const
{
    return d->indicatorTime.isValid() ? quint64(d->indicatorTime.toMSecsSinceEpoch()) : 0;
}

double Ruler::getIndicatorPosition() const
{
    return d->scale.getPosition(qint64(getIndicatorMSecs()));
}

bool Ruler::setPreviewIndicatorPosition(quint64 msecs)
{
    d->previewTime = msecs == 0 ? QDateTime() : d->scale.inZone(qint64(msecs));
    if (d->active)
        update();
    return true;
}

void Ruler::setSearchTimeRange(const QDateTime& from, const QDateTime& to, bool adjustZoom)
{
    const bool valid = from.isValid() && to.isValid() && from < to;
    d->searchBegin = valid ? from : QDateTime();
    d->searchEnd = valid ? to : QDateTime();
    if (adjustZoom)
        setLevelFromTimeRange(from, to);
    update();
}

void Ruler::resetSearchTimeRange()
{
    setSearchTimeRange(QDateTime(), QDateTime(), false);
}

void Ruler::displaySearchTimeRange(bool display)
{
    if (d->searchDisplayed == display)
        return;
    d->searchDisplayed = display;
    update();
}

void Ruler::setOrvaneGuiTheme(bool on)
{
    d->theme = on;
    d->indicator->setLook(d->indicatorColor(), d->fontSize);
    // Without the theme the colours stay as they are: there is no way back to those from before it.
    if (on)
        d->painter.colors = RulerColors::ofTheme();
    createGradients();
    updateChildren(false);
}

void Ruler::setFontSize(unsigned int points)
{
    d->fontSize = points;
    setOrvaneGuiTheme(d->theme);
}

void Ruler::setDateFormat(const QString& format)
{
    d->dateFormat = format;
}

void Ruler::setHeaderColor(const QColor& color)
{
    d->painter.colors.header = color;
}

void Ruler::setBodyColor(const QColor& color)
{
    d->painter.colors.body = color;
}

void Ruler::setResultMode(bool on)
{
    d->resultMode = on;
}

void Ruler::setPlayMode(bool on)
{
    d->playMode = on;
}

void Ruler::setActive(bool active, bool blocked)
{
    d->active = active;
    d->blocked = blocked;
    if (!active)
        d->indicator->hide();
    d->arrows->setEnabled(active && !blocked);
    updateChildren(false);
}

void Ruler::updateSize()
{
    d->headerHeight = d->indicator->labelHeight();
    const int rulerHeight = 4 * d->headerHeight;
    setMinimumHeight(rulerHeight);
    setMaximumHeight(rulerHeight);
    d->indicator->resize(d->indicator->width(), rulerHeight);
    createGradients();
}

void Ruler::blockSignalTimeLineViewChanged(bool block)
{
    d->viewChangeBlocked = block;
}

void Ruler::processTimeLineViewChanges()
{
    if (std::exchange(d->viewChangePending, false))
        emitTimeLineViewChanged(false);
}

void Ruler::onZoomerIn(int level, double anchor)
{
    if (level != d->scale.level() && level >= 0)
        changeLevel(level, anchor);
}

void Ruler::onZoomerOut(int level, double anchor)
{
    if (level == d->scale.level() || level > TimeScale::wholeRangeLevel)
        return;
    if (d->scale.canZoomOut())
        changeLevel(level, anchor);
    else
        Q_EMIT changeSliderZoom(d->scale.level());
}

void Ruler::onTimelineOffsetChanged(double position)
{
    d->scale.centerOn(position);
    updateChildren(true);
    updateTrackSegments();
    changedTimeLineView(false);
}

void Ruler::onPreviewVisible(bool visible, bool pending)
{
    d->previewVisible = visible;
    d->previewPending = pending;
    if (d->active)
        update();
}

void Ruler::onTimeLineViewSettingsNeeded()
{
    QTimer::singleShot(0, this, [this] { changedTimeLineView(false); });
}

void Ruler::paintEvent(QPaintEvent*)
{
    if (d->headerHeight != d->indicator->labelHeight())
        updateSize();

    QPainter painter(this);
    QFont font = painter.font();
    font.setPointSize(int(d->fontSize));
    painter.setFont(font);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    d->painter.paint(painter, d->scene(rect()));
}

void Ruler::resizeEvent(QResizeEvent*)
{
    d->scale.setWidth(width());
    d->arrows->layOut(d->headerHeight / 4);
    createGradients();
    updateTrackSegments();
    updateChildren(true);
}

void Ruler::createGradients()
{
    d->painter.createGradients(rect(), d->headerHeight);
}

void Ruler::updateTrackSegments()
{
    d->segments.update(d->scale);
    update();
}

void Ruler::updateChildren(bool)
{
    if (!d->active)
        return;
    const double x = std::trunc(d->scale.xAt(qint64(getIndicatorMSecs())));
    const double halfMargin = TimeScale::margin() / 2;
    const bool inView = x >= halfMargin && x <= width() - halfMargin;
    if (inView && d->scale.hasView() && d->indicatorTime.isValid() && !d->resultMode) {
        showIndicatorTime(getIndicatorMSecs());
        d->indicator->moveHotSpotTo(int(x));
        d->indicator->show();
    } else {
        d->indicator->hide();
    }
    update();
}

void Ruler::showIndicatorTime(quint64 msecs)
{
    // Where the view shows more than a day, a time alone says little.
    const bool needsDate = qint64(d->scale.millisecondsPerLevel()) > msecsPerDay;
    const QString format = needsDate ? d->dateFormat + u" hh:mm:ss"_s : u"hh:mm:ss"_s;
    d->indicator->setText(d->scale.inZone(qint64(msecs)).toString(format));
}

void Ruler::setLevelFromTimeRange(const QDateTime& from, const QDateTime& to)
{
    const int oldLevel = d->scale.level();
    const qint64 oldStart = d->scale.viewStartMs();
    if (!d->scale.setLevelFromTimeRange(from, to))
        return;
    const bool levelChanged = d->scale.level() != oldLevel;
    if (levelChanged || d->scale.viewStartMs() != oldStart)
        updateTrackSegments();
    updateChildren(levelChanged);
    Q_EMIT changeSliderZoom(d->scale.level());
    Q_EMIT centerPositionChanged(getCurrentCenterPosition());
    changedTimeLineView(false);
}

void Ruler::changedTimeLineView(bool moving)
{
    if (d->viewChangeBlocked)
        d->viewChangePending = true;
    else
        emitTimeLineViewChanged(moving);
}

void Ruler::emitTimeLineViewChanged(bool moving)
{
    const TimeScale& scale = d->scale;
    QDateTime viewBegin = scale.getDateTime(0.0);
    if (viewBegin < scale.beginLimit())
        viewBegin = scale.beginLimit();
    const QDateTime viewEnd = scale.viewStart().addMSecs(qint64(scale.millisecondsPerLevel()));
    Q_EMIT timeLineViewChanged(scale.beginLimit(), scale.endLimit(), viewBegin, viewEnd, moving);
}

bool Ruler::canMoveViewPort(int direction) const
{
    return direction < 0 ? d->scale.beginLimitMs() < d->scale.viewStartMs()
                         : d->scale.viewEndMs() <= d->scale.endLimitMs();
}

void Ruler::moveViewPort(int direction)
{
    d->scale.setViewStart(
        d->scale.viewStart().addMSecs(direction * d->scale.millisecondsPerInterval()));
    updateChildren(true);
    Q_EMIT centerPositionChanged(getCurrentCenterPosition());
    updateTrackSegments();
    changedTimeLineView(true);
}

} // namespace CorvelGui
