// SPDX-License-Identifier: MIT
#include "timelinelanes.h"

#include "accessiblelanes.h"
#include "base/devicegrid.h"
#include "base/whilealive.h"
#include "frame/stringhelper.h"
#include "lanelayout.h"
#include "lanepainter.h"
#include "ruler_p.h"

#include <Hueloft/POrvGuiTheme>

#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QHelpEvent>
#include <QMetaMethod>
#include <QPainter>
#include <QScrollBar>
#include <QToolTip>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>
#include <vector>

using Hueloft::POrvGuiTheme;

namespace CorvelGui {

namespace {

constexpr int lanePadding = 6;
constexpr int namePadding = 12;
constexpr int widestNames = 240;
constexpr int narrowestNames = 60;
constexpr int largestFont = 200;
constexpr int wheelNotch = 120;

int widestName(const TimelineLanes& lanes)
{
    QFont bold = lanes.font();
    bold.setBold(true);
    const QFontMetrics metrics(bold);
    int widest = 0;
    for (int lane = 0; lane < lanes.laneCount(); ++lane)
        widest = std::max(widest, metrics.horizontalAdvance(lanes.laneName(lane)));
    return widest;
}

} // namespace

struct TimelineLanes::Private
{
    /// What of the ruler is seen in the lanes.
    struct ShownView
    {
        FineTime start;
        double pixels;
        qint64 begin;
        qint64 end;
        int indicator; ///< its column; -1 without one
        QRgb indicatorColor;
        RulerRanges ranges;

        bool operator==(const ShownView&) const = default;
    };

    Private(TimelineLanes* lanes, Ruler* r, const TimeScale& s, const TrackLanes& t,
            const Indicator& i)
        : q(lanes)
        , ruler(r)
        , scale(s)
        , tracks(t)
        , indicator(i)
        , scrollBar(new QScrollBar(Qt::Vertical, lanes))
        , focus(new KeyboardFocus(lanes))
    {}

    LaneLayout layout() const
    {
        return {tracks.count(), laneHeight, q->height(), scrollBar->value()};
    }
    int rulerLeft() const
    {
        if (ruler->window() != q->window())
            return 0; // as long as they are made without the parent that they will have
        return ruler->mapTo(q->window(), QPoint()).x() - q->mapTo(q->window(), QPoint()).x();
    }
    QRect columns() const { return q->rect().adjusted(rulerLeft(), 0, 0, 0); }
    int barWidth() const { return scrollBar->isVisibleTo(q) ? scrollBar->width() : 0; }

    ShownView shownView() const
    {
        const bool indicated = indicator.isVisibleTo(ruler);
        return {scale.fineViewStart(),
                scale.lengthPerMillisecond(),
                scale.beginLimitMs(),
                scale.endLimitMs(),
                indicated ? indicator.x() + indicator.hotSpot() : -1,
                indicator.color().rgb(),
                ruler->d->shownRanges()};
    }

    TimelineLanes* const q;
    Ruler* const ruler;
    const TimeScale& scale;
    const TrackLanes& tracks;
    const Indicator& indicator;
    QScrollBar* const scrollBar;
    const KeyboardFocus* const focus;
    QString currentTrack;
    int maximumLanes = 8;
    int laneHeight = 1;
    int widestName = 0; ///< in pixels
    int namesWidth = 0; ///< when it was told last
    int wheelRest = 0;
    ShownView shown{};
};

TimelineLanes::TimelineLanes(Ruler* ruler, QWidget* parent)
    : QWidget(parent)
    , d(std::make_unique<Private>(this, ruler, ruler->d->scale, ruler->d->lanes,
                                  *ruler->d->indicator))
{
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus);
    makeLanesAccessible();
    d->scrollBar->setFocusPolicy(Qt::NoFocus);
    d->scrollBar->hide();
    connect(d->scrollBar, &QScrollBar::valueChanged, this, qOverload<>(&QWidget::update));
    connect(ruler, &Ruler::tracksChanged, this, &TimelineLanes::followTracks);
    ruler->installEventFilter(this);
    setFontSize(int(ruler->d->fontSize));
}

TimelineLanes::~TimelineLanes() = default;

int TimelineLanes::laneCount() const
{
    return d->tracks.count();
}

QString TimelineLanes::laneName(int lane) const
{
    const TrackDescription& track = d->tracks.tracks()[lane];
    return track.name.isEmpty() ? track.identifier : track.name;
}

QString TimelineLanes::laneTrack(int lane) const
{
    return d->tracks.tracks()[lane].identifier;
}

QRect TimelineLanes::laneRect(int lane) const
{
    return {0, d->layout().top(lane), width(), d->laneHeight};
}

int TimelineLanes::laneAt(const QPoint& position) const
{
    return rect().contains(position) ? d->layout().laneAt(position.y()) : -1;
}

QString TimelineLanes::trackAt(const QPoint& position) const
{
    const int lane = laneAt(position);
    return lane < 0 ? QString() : laneTrack(lane);
}

RulerContext TimelineLanes::contextAt(const QPoint& position) const
{
    RulerContext context = d->ruler->contextOfColumn(position.x() - d->rulerLeft());
    context.globalPosition = mapToGlobal(position);
    context.track = trackAt(position);
    return context;
}

void TimelineLanes::contextMenuEvent(QContextMenuEvent* event)
{
    if (!isSignalConnected(QMetaMethod::fromSignal(&TimelineLanes::contextRequested)) ||
        !d->ruler->d->takesInput())
        return QWidget::contextMenuEvent(event);
    event->accept();
    QPoint position = event->pos();
    if (event->reason() == QContextMenuEvent::Keyboard) {
        const LaneLayout lanes = d->layout();
        const int lane = std::max(std::min(currentLane(), lanes.end() - 1), lanes.first());
        position = {d->rulerLeft() + d->ruler->d->columnForKeys(d->ruler->width()),
                    laneRect(lane).center().y()};
    }
    Q_EMIT contextRequested(contextAt(position));
}

QString TimelineLanes::currentTrack() const
{
    return d->currentTrack;
}

void TimelineLanes::setCurrentTrack(const QString& identifier)
{
    if (d->currentTrack == identifier)
        return;
    d->currentTrack = identifier;
    showCurrentLane();
    update();
    reportCurrentLane();
    Q_EMIT currentTrackChanged(identifier);
}

int TimelineLanes::currentLane() const
{
    return d->tracks.indexOf(d->currentTrack);
}

int TimelineLanes::maximumLanes() const
{
    return d->maximumLanes;
}

void TimelineLanes::setMaximumLanes(int count)
{
    const int maximum = std::max(count, 1);
    if (d->maximumLanes == maximum)
        return;
    d->maximumLanes = maximum;
    updateGeometryOfLanes();
    Q_EMIT maximumLanesChanged(maximum);
}

void TimelineLanes::setFontSize(int points)
{
    QFont font = this->font();
    font.setPointSize(std::clamp(points, 1, largestFont));
    setFont(font);
    updateGeometryOfLanes();
}

int TimelineLanes::fontSize() const
{
    return font().pointSize();
}

int TimelineLanes::namesWidth() const
{
    const int bar = d->layout().maximumOffset() > 0 ? d->scrollBar->sizeHint().width() : 0;
    const int most = std::clamp(width() / 3, narrowestNames, widestNames);
    return std::clamp(d->widestName + namePadding, narrowestNames, most) + bar;
}

QSize TimelineLanes::sizeHint() const
{
    return {namesWidth(), maximumHeight()};
}

void TimelineLanes::followTracks()
{
    updateGeometryOfLanes();
    Q_EMIT lanesChanged();
}

void TimelineLanes::updateGeometryOfLanes()
{
    d->laneHeight = fontMetrics().height() + lanePadding;
    d->widestName = widestName(*this);
    const int wanted = std::clamp(laneCount(), 1, d->maximumLanes) * d->laneHeight;
    setMinimumHeight(d->laneHeight);
    if (maximumHeight() != wanted) {
        setMaximumHeight(wanted);
        resize(width(), wanted); // until whoever lays this out has less room
    }
    updateScrollBar();
    showCurrentLane();
    update();
}

// Between the names and the ruler's columns, which reach to the right edge.
void TimelineLanes::updateScrollBar()
{
    const LaneLayout layout = d->layout();
    QScrollBar* bar = d->scrollBar;
    bar->setRange(0, layout.maximumOffset());
    bar->setSingleStep(d->laneHeight);
    bar->setPageStep(height());
    bar->setVisible(layout.maximumOffset() > 0);
    const int width = bar->sizeHint().width();
    bar->setGeometry(d->rulerLeft() - width, 0, width, height());
}

void TimelineLanes::showCurrentLane()
{
    if (const int lane = currentLane(); lane >= 0)
        d->scrollBar->setValue(d->layout().offsetShowing(lane));
}

void TimelineLanes::reportCurrentLane()
{
    const int lane = currentLane();
    if (lane < 0)
        return;
    for (const QAccessible::Event type : {QAccessible::Selection, QAccessible::Focus}) {
        if (type == QAccessible::Focus && !hasFocus())
            continue;
        QAccessibleEvent event(this, type);
        event.setChild(lane);
        QAccessible::updateAccessibility(&event);
    }
}

void TimelineLanes::paintEvent(QPaintEvent* event)
{
    const Private::ShownView shown = d->shownView();
    if (event->rect().contains(d->columns()))
        d->shown = shown;
    QPainter painter(this);
    painter.fillRect(rect(), POrvGuiTheme::colorBlack);
    const LaneLayout layout = d->layout();
    const int left = d->rulerLeft();
    const LanePainter lanes{d->scale, double(left), double(left - d->barWidth())};
    const int current = currentLane();
    const bool paintsNames = event->rect().left() < left;
    for (int lane = layout.first(); lane < layout.end(); ++lane) {
        const QRectF area = laneRect(lane);
        lanes.drawLane(painter, area, d->tracks.spans(lane));
        if (paintsNames)
            lanes.drawName(painter, area, laneName(lane), lane == current);
    }
    if (current >= layout.first() && current < layout.end())
        lanes.drawFrame(painter, laneRect(current));
    if (d->scale.hasView())
        lanes.drawRanges(painter, height(), shown.ranges, d->ruler->d->painter.colors);
    if (shown.indicator >= 0) {
        const DeviceGrid grid(painter);
        painter.fillRect(grid.aligned(QRectF(left + shown.indicator - 1, 0, 2, height())),
                         QColor(shown.indicatorColor));
    }
    d->focus->draw(painter);
}

void TimelineLanes::resizeEvent(QResizeEvent* event)
{
    updateScrollBar();
    // Later, because whoever lays this out may be just about it.
    if (event->size().height() < event->oldSize().height())
        QMetaObject::invokeMethod(this, &TimelineLanes::showCurrentLane, Qt::QueuedConnection);
    if (std::exchange(d->namesWidth, namesWidth()) != namesWidth())
        QMetaObject::invokeMethod(this, &TimelineLanes::lanesChanged, Qt::QueuedConnection);
}

void TimelineLanes::mousePressEvent(QMouseEvent* event)
{
    const int lane = laneAt(event->position().toPoint());
    if (event->button() == Qt::LeftButton && lane >= 0)
        setCurrentTrack(laneTrack(lane));
    else
        QWidget::mousePressEvent(event);
}

void TimelineLanes::wheelEvent(QWheelEvent* event)
{
    event->accept();
    const QPointF onRuler(event->position().x() - d->rulerLeft(), d->ruler->height() / 2.0);
    if (onRuler.x() >= 0 && !(event->modifiers() & Qt::ShiftModifier)) {
        QWheelEvent wheel(onRuler, event->globalPosition(), event->pixelDelta(),
                          event->angleDelta(), event->buttons(), event->modifiers(), event->phase(),
                          event->inverted());
        QCoreApplication::sendEvent(d->ruler, &wheel);
        return;
    }
    // Some systems turn the wheel sideways while Shift is held.
    const QPoint delta = event->angleDelta();
    d->wheelRest += (delta.y() != 0 ? delta.y() : delta.x()) * d->laneHeight;
    d->scrollBar->setValue(d->scrollBar->value() - d->wheelRest / wheelNotch);
    d->wheelRest %= wheelNotch;
}

void TimelineLanes::keyPressEvent(QKeyEvent* event)
{
    const int last = laneCount() - 1;
    const int current = currentLane();
    const int page = std::max(height() / d->laneHeight, 1);
    int lane = -1;
    switch (event->key()) {
    case Qt::Key_Up:
        lane = current < 0 ? last : current - 1;
        break;
    case Qt::Key_Down:
        lane = current + 1;
        break;
    case Qt::Key_PageUp:
        lane = current - page;
        break;
    case Qt::Key_PageDown:
        lane = current + page;
        break;
    case Qt::Key_Home:
        lane = 0;
        break;
    case Qt::Key_End:
        lane = last;
        break;
    default:
        QWidget::keyPressEvent(event);
        return;
    }
    if (last >= 0)
        setCurrentTrack(laneTrack(std::clamp(lane, 0, last)));
}

void TimelineLanes::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        updateGeometryOfLanes();
        Q_EMIT lanesChanged();
    }
}

bool TimelineLanes::event(QEvent* event)
{
    if (event->type() == QEvent::Show)
        window()->installEventFilter(this); // as often as it likes
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    const int lane = help->x() < d->rulerLeft() ? laneAt(help->pos()) : -1;
    if (lane >= 0)
        QToolTip::showText(help->globalPos(), StringHelper::plainToolTip(laneName(lane)), this);
    else
        QToolTip::hideText();
    return true;
}

// Whatever moves the ruler's view or indicator has it painted anew. The lanes are to be painted
// with it, not a frame later, so they look at it when the window is about to paint; only what the
// ruler paints at once comes before that. The names stay.
bool TimelineLanes::eventFilter(QObject* watched, QEvent* event)
{
    const bool isPainted = event->type() == QEvent::Paint && watched == d->ruler;
    if ((isPainted || event->type() == QEvent::UpdateRequest) && !(d->shown == d->shownView()))
        update(d->columns());
    if (watched != d->ruler)
        return false;
    if (event->type() == QEvent::Move || event->type() == QEvent::Resize) {
        updateScrollBar();
        update();
    }
    return false;
}

} // namespace CorvelGui
