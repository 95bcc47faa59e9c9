// SPDX-License-Identifier: MIT
#include "zoomgraphicsview.h"

#include "base/whilealive.h"

#include <QGraphicsItem>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QTimer>
#include <QWheelEvent>

#include <algorithm>

namespace CorvelGui {

namespace {

constexpr qreal zoomInFactor = 1.1;
constexpr qreal zoomOutFactor = 0.9;
// Scroll bars count pixels in int.
constexpr qreal maximumSceneWidth = 1 << 30;

/// The event as the viewport would get it, from one that the frame around it got.
QMouseEvent forViewport(const QMouseEvent& event, QPointF frame)
{
    return QMouseEvent(event.type(), event.position() - frame, event.scenePosition(),
                       event.globalPosition(), event.button(), event.buttons(), event.modifiers(),
                       event.source(), event.pointingDevice());
}

QWheelEvent forViewport(const QWheelEvent& event, QPointF frame)
{
    return QWheelEvent(event.position() - frame, event.globalPosition(), event.pixelDelta(),
                       event.angleDelta(), event.buttons(), event.modifiers(), event.phase(),
                       event.inverted(), event.source(), event.pointingDevice());
}

} // namespace

struct ZoomGraphicsView::Private
{
    QRectF firstRect;      // empty for the whole scene
    QRectF visibleRect{};  // in scene coordinates
    QPoint lastPosition{}; // of the mouse while panning
    bool panning = false;
    bool adjusting = false; // a scroll bar that comes or goes then is no resize
    bool settling = false;  // started, but never painted since
};

ZoomGraphicsView::ZoomGraphicsView(QGraphicsScene* scene, const QVariant& rect, QWidget* parent)
    : QGraphicsView(scene, parent), d(new Private{.firstRect = rect.toRectF()})
{
    setTransformationAnchor(AnchorUnderMouse);
    setResizeAnchor(NoAnchor);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    QTimer::singleShot(0, this, &ZoomGraphicsView::start);
}

ZoomGraphicsView::~ZoomGraphicsView() = default;

QRectF ZoomGraphicsView::visibleRect() const
{
    return QRectF(mapToScene(0, 0), mapToScene(viewport()->width(), viewport()->height()));
}

void ZoomGraphicsView::setVisibleRect(const QRectF& rect)
{
    d->firstRect = rect; // of a view that is not shown yet
    showFirstRect();
    Q_EMIT viewPortChanged();
}

bool ZoomGraphicsView::event(QEvent* event)
{
    const QPointF frame = viewport()->pos();
    switch (event->type()) {
    case QEvent::MouseButtonPress: {
        QMouseEvent press = forViewport(*static_cast<QMouseEvent*>(event), frame);
        mousePressEvent(&press);
        return true;
    }
    case QEvent::MouseButtonRelease: {
        QMouseEvent release = forViewport(*static_cast<QMouseEvent*>(event), frame);
        mouseReleaseEvent(&release);
        return true;
    }
    case QEvent::MouseMove: {
        QMouseEvent move = forViewport(*static_cast<QMouseEvent*>(event), frame);
        mouseMoveEvent(&move);
        return true;
    }
    case QEvent::Wheel: {
        QWheelEvent wheel = forViewport(*static_cast<QWheelEvent*>(event), frame);
        wheelEvent(&wheel);
        return true;
    }
    default:
        return QGraphicsView::event(event);
    }
}

void ZoomGraphicsView::wheelEvent(QWheelEvent* event)
{
    if (event->modifiers() != Qt::NoModifier)
        return;
    event->accept();
    zoom(event->position(), event->angleDelta().y() > 0 ? zoomInFactor : zoomOutFactor);
}

void ZoomGraphicsView::mousePressEvent(QMouseEvent* event)
{
    const QPoint position = event->position().toPoint();
    if (event->button() == Qt::LeftButton && !isTakenByItem(position)) {
        d->panning = true;
        d->lastPosition = position;
    }
    QGraphicsView::mousePressEvent(event);
}

void ZoomGraphicsView::mouseMoveEvent(QMouseEvent* event)
{
    if (d->panning && event->buttons() == Qt::LeftButton) {
        if (sceneFits())
            return;
        const QPoint position = event->position().toPoint();
        if (!isTakenByItem(position)) {
            bringTo(position, sceneAt(d->lastPosition));
            d->lastPosition = position;
            rememberView();
            if (!tellOfView())
                return;
        }
    }
    QGraphicsView::mouseMoveEvent(event);
}

void ZoomGraphicsView::mouseReleaseEvent(QMouseEvent* event)
{
    d->panning = false;
    QGraphicsView::mouseReleaseEvent(event);
}

void ZoomGraphicsView::keyPressEvent(QKeyEvent* event)
{
    const QRectF before = visibleRect();
    if (!whileAlive(this, [&] { QGraphicsView::keyPressEvent(event); }))
        return;
    if (!event->isAccepted() && (event->key() == Qt::Key_Plus || event->key() == Qt::Key_Minus)) {
        event->accept();
        zoom(QRectF(viewport()->rect()).center(),
             event->key() == Qt::Key_Plus ? zoomInFactor : zoomOutFactor);
    } else if (visibleRect() != before) {
        rememberView();
        Q_EMIT viewPortChanged();
    }
}

void ZoomGraphicsView::resizeEvent(QResizeEvent* event)
{
    if (!d->adjusting) {
        restoreView();
        if (!tellOfView())
            return;
    }
    QGraphicsView::resizeEvent(event);
}

void ZoomGraphicsView::showEvent(QShowEvent* event)
{
    if (restoreView() && !tellOfView())
        return;
    // It would centre the view on a point of earlier.
    setTransformationAnchor(NoAnchor);
    QGraphicsView::showEvent(event);
    setTransformationAnchor(AnchorUnderMouse);
}

void ZoomGraphicsView::paintEvent(QPaintEvent* event)
{
    d->settling = false;
    QGraphicsView::paintEvent(event);
}

QPointF ZoomGraphicsView::sceneAt(QPointF position) const
{
    return viewportTransform().inverted().map(position);
}

// Qt's own anchors count in whole pixels and would let the point creep away over many steps.
void ZoomGraphicsView::bringTo(QPointF position, QPointF scenePoint)
{
    const QScopedValueRollback adjusting(d->adjusting, true);
    const QPointF shift = sceneAt(position) - scenePoint;
    setTransformationAnchor(NoAnchor);
    translate(shift.x(), shift.y());
    setTransformationAnchor(AnchorUnderMouse);
}

void ZoomGraphicsView::zoom(QPointF position, qreal factor)
{
    {
        const QScopedValueRollback adjusting(d->adjusting, true);
        const QSizeF size = transform().mapRect(sceneRect()).size() * factor;
        if (!size.isEmpty() && std::max(size.width(), size.height()) < maximumSceneWidth) {
            const QPointF held = sceneAt(position);
            scale(factor, factor);
            bringTo(position, held);
        }
        if (sceneFits())
            showScene();
    }
    rememberView();
    Q_EMIT viewPortChanged();
}

// At the same place each time, however far bringTo() has moved the scene before.
void ZoomGraphicsView::showScene()
{
    const QTransform& scaled = transform();
    setTransform(QTransform(scaled.m11(), scaled.m12(), scaled.m21(), scaled.m22(), 0, 0));
    fitInView(sceneRect(), Qt::KeepAspectRatio);
}

// Unlike fitInView() without a margin around a part of the scene, so that a rectangle that is saved
// and restored again and again does not grow.
void ZoomGraphicsView::showRect(const QRectF& rect)
{
    const QScopedValueRollback adjusting(d->adjusting, true);
    if (rect.contains(sceneRect()))
        return showScene();

    const QSizeF space = viewport()->size();
    const QSizeF size = transform().mapRect(rect).size();
    if (space.isEmpty() || size.isEmpty())
        return;
    // Rounding must not hide a part of the rectangle.
    constexpr qreal hair = 1e-6;
    const qreal factor =
        std::min(space.width() / size.width(), space.height() / size.height()) * (1 - hair);
    scale(factor, factor);
    bringTo({space.width() / 2, space.height() / 2}, rect.center());
}

void ZoomGraphicsView::start()
{
    d->settling = true;
    showFirstRect();
}

void ZoomGraphicsView::showFirstRect()
{
    showRect(d->firstRect.isEmpty() ? sceneRect() : d->firstRect);
    rememberView();
}

// Returns whether the whole scene fits.
bool ZoomGraphicsView::restoreView()
{
    // A view that is shown long after it was made had no size from a layout until then.
    if (d->settling)
        showFirstRect();
    else if (!d->visibleRect.isEmpty())
        showRect(d->visibleRect);
    if (!sceneFits())
        return false;
    showRect(sceneRect());
    rememberView();
    return true;
}

bool ZoomGraphicsView::sceneFits() const
{
    const QRect scene = mapFromScene(sceneRect()).boundingRect();
    return scene.left() >= 1 && scene.top() >= 1;
}

bool ZoomGraphicsView::isTakenByItem(QPoint position) const
{
    static constexpr QGraphicsItem::GraphicsItemFlags takesMouse = QGraphicsItem::ItemIsMovable |
                                                                   QGraphicsItem::ItemIsSelectable |
                                                                   QGraphicsItem::ItemIsFocusable;
    return std::ranges::any_of(items(position), [](const QGraphicsItem* item) {
        return bool(item->flags() & takesMouse);
    });
}

void ZoomGraphicsView::rememberView()
{
    d->visibleRect = visibleRect();
}

// Returns whether the view outlived it.
bool ZoomGraphicsView::tellOfView()
{
    return whileAlive(this, [this] { Q_EMIT viewPortChanged(); });
}

} // namespace CorvelGui
