#include "testsupport.h"

#include <CorvelGui/ZoomGraphicsView>

#include <QGraphicsRectItem>
#include <QMouseEvent>
#include <QPointer>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>

using namespace CorvelGui;

namespace {

constexpr QRectF sceneRect(-400, -300, 1600, 1200);

void turnWheel(QWidget* target, QPointF position, int delta, Qt::KeyboardModifiers modifiers = {})
{
    QWheelEvent event(position, target->mapToGlobal(position), {}, {0, delta}, {}, modifiers,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(target, &event);
}

void move(QWidget* target, QPoint position)
{
    QMouseEvent event(QEvent::MouseMove, position, target->mapToGlobal(position), Qt::NoButton,
                      Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(target, &event);
}

bool isNear(QPointF a, QPointF b, qreal distance)
{
    return QLineF(a, b).length() <= distance;
}

bool isNear(const QRectF& a, const QRectF& b)
{
    return isNear(a.topLeft(), b.topLeft(), 1) && isNear(a.bottomRight(), b.bottomRight(), 1);
}

/// A view that has started with @p rect.
struct View
{
    explicit View(const QVariant& rect = {}, int frameWidth = 1)
        : view(new ZoomGraphicsView(&scene, rect, nullptr))
    {
        view->setFrameStyle(QFrame::Box);
        view->setLineWidth(frameWidth);
        view->resize(500, 400);
        view->show();
        QCoreApplication::processEvents();
        changes = std::make_unique<QSignalSpy>(view, &ZoomGraphicsView::viewPortChanged);
    }
    ~View() { delete view; }

    bool showsWholeScene() const
    {
        const QRect shown = view->mapFromScene(sceneRect).boundingRect();
        return view->viewport()->rect().contains(shown) && (shown.left() <= 3 || shown.top() <= 3);
    }

    QGraphicsScene scene{sceneRect};
    QPointer<ZoomGraphicsView> view;
    std::unique_ptr<QSignalSpy> changes;
};

} // namespace

class TestZoomGraphicsView : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void wheelKeepsThePointUnderTheMouse();
    void zoomingOutStopsAtTheWholeScene();
    void panning();
    void itemsKeepTheirMouse();
    void startRectangle();
    void resizing();
    void keys();
    void deletionWithinTheSignal();
};

void TestZoomGraphicsView::wheelKeepsThePointUnderTheMouse()
{
    View v(QRectF(300, 200, 160, 120));
    QRandomGenerator random(11);
    const QPointF position(311, 97);
    const QPointF held = v.view->viewportTransform().inverted().map(position);
    for (int i = 0; i < 50; ++i) {
        const qreal scale = v.view->transform().m11();
        const bool in = scale < 2 || (scale < 20 && random.bounded(2));
        turnWheel(v.view->viewport(), position, in ? 120 : -120);
        QVERIFY(isNear(v.view->viewportTransform().map(held), position, 1));
        QCOMPARE(v.view->transform().m11() / scale, in ? 1.1 : 0.9);
    }
    QCOMPARE(v.changes->size(), 50);
    turnWheel(v.view->viewport(), position, 120, Qt::ControlModifier);
    QCOMPARE(v.changes->size(), 50);
}

void TestZoomGraphicsView::zoomingOutStopsAtTheWholeScene()
{
    View v;
    QVERIFY(v.showsWholeScene());
    const QPointF aside(20, 350);
    turnWheel(v.view->viewport(), aside, 120);
    QVERIFY(!v.view->visibleRect().contains(sceneRect));
    for (int i = 1; i <= 3; ++i) {
        turnWheel(v.view->viewport(), aside, -120);
        QVERIFY(v.showsWholeScene());
        QCOMPARE(v.changes->size(), 1 + i);
    }
    // Neither panning nor endless zooming in take it apart.
    QTest::mousePress(v.view->viewport(), Qt::LeftButton, {}, {100, 100});
    move(v.view->viewport(), {150, 120});
    QCOMPARE(v.changes->size(), 4);
    for (int i = 0; i < 400; ++i)
        turnWheel(v.view->viewport(), aside, 120);
    QVERIFY(sceneRect.contains(v.view->visibleRect().center()));
}

void TestZoomGraphicsView::panning()
{
    for (const auto& [frameWidth, onFrame] : {std::pair(0, false), {30, false}, {30, true}}) {
        View v(QRectF(0, 0, 320, 240), frameWidth);
        QWidget* target = onFrame ? static_cast<QWidget*>(v.view) : v.view->viewport();
        const auto sceneUnder = [&](QPoint position) {
            return v.view->mapToScene(position - (onFrame ? v.view->viewport()->pos() : QPoint()));
        };
        QPoint position(20, 200);
        const QPointF held = sceneUnder(position);
        QTest::mousePress(target, Qt::LeftButton, {}, position);
        for (const QPoint step : {QPoint(43, -20), {78, 70}, {-134, -139}}) {
            position += step;
            move(target, position);
            QVERIFY(isNear(sceneUnder(position), held, 1e-6));
        }
        QTest::mouseRelease(target, Qt::LeftButton, {}, position);
        move(target, {60, 60});
        QCOMPARE(v.changes->size(), 3);
        turnWheel(target, position, 120);
        QVERIFY(isNear(sceneUnder(position), held, 1));
    }
}

void TestZoomGraphicsView::itemsKeepTheirMouse()
{
    View v(QRectF(0, 0, 320, 240));
    QGraphicsRectItem* item = v.scene.addRect(100, 100, 40, 40);
    const QPoint on = v.view->mapFromScene(120, 120);
    for (const auto flag : {QGraphicsItem::ItemIsMovable, QGraphicsItem::ItemIsSelectable,
                            QGraphicsItem::ItemIsFocusable, QGraphicsItem::GraphicsItemFlag(0)}) {
        item->setFlags(flag);
        v.changes->clear();
        QTest::mousePress(v.view->viewport(), Qt::LeftButton, {}, on);
        move(v.view->viewport(), on + QPoint(30, 0));
        QTest::mouseRelease(v.view->viewport(), Qt::LeftButton, {}, on + QPoint(30, 0));
        QCOMPARE(v.changes->size(), flag ? 0 : 1);
        QCOMPARE(item->x() > 0, flag == QGraphicsItem::ItemIsMovable);
        QCOMPARE(item->isSelected(), flag == QGraphicsItem::ItemIsSelectable);
        item->setPos(0, 0);
    }
}

void TestZoomGraphicsView::startRectangle()
{
    for (const QVariant& rect : {QVariant(), QVariant(7), QVariant(QRectF(5, 5, 0, 9))})
        QVERIFY(View(rect).showsWholeScene());

    // Saving and restoring does not creep.
    QRectF saved = View(QRectF(300, 200, 160, 120)).view->visibleRect();
    const QRectF first = saved;
    QVERIFY(saved.contains(QRectF(300, 200, 160, 120)));
    for (int i = 0; i < 20; ++i)
        saved = View(saved).view->visibleRect();
    QVERIFY(isNear(saved, first));

    // The view may be shown long after it was made.
    QGraphicsScene scene(sceneRect);
    ZoomGraphicsView late(&scene, first);
    QSignalSpy changes(&late, &ZoomGraphicsView::viewPortChanged);
    late.resize(100, 400);
    QCoreApplication::processEvents();
    QCOMPARE(changes.size(), 0);
    late.setFrameStyle(QFrame::Box);
    late.resize(500, 400);
    late.show();
    QVERIFY(isNear(late.visibleRect(), first));
}

void TestZoomGraphicsView::resizing()
{
    View v(QRectF(300, 200, 160, 120));
    const QRectF first = v.view->visibleRect();
    for (const QSize size : {QSize(900, 300), {200, 700}, {500, 400}}) {
        v.view->resize(size);
        QVERIFY(v.view->visibleRect().contains(first.adjusted(1, 1, -1, -1)));
    }
    QCOMPARE(v.changes->size(), 3);
    QVERIFY(isNear(v.view->visibleRect(), first));

    // Scroll bars that come with a zoom must not undo it.
    View whole;
    whole.view->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    whole.view->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    const qreal scale = whole.view->transform().m11();
    for (int i = 0; i < 5; ++i)
        turnWheel(whole.view->viewport(), {250, 200}, 120);
    QVERIFY(whole.view->transform().m11() > 1.5 * scale);
}

void TestZoomGraphicsView::keys()
{
    View v(QRectF(300, 200, 160, 120));
    const QRectF first = v.view->visibleRect();
    QTest::keyClick(v.view, Qt::Key_Plus);
    QVERIFY(isNear(v.view->visibleRect().center(), first.center(), 1));
    QVERIFY(v.view->visibleRect().width() < first.width() / 1.05);
    const QRectF before = v.view->visibleRect();
    QTest::keyClick(v.view, Qt::Key_Right);
    QVERIFY(v.view->visibleRect().left() > before.left() + 5);
    QTest::keyClick(v.view, Qt::Key_A);
    QCOMPARE(v.changes->size(), 2);
}

void TestZoomGraphicsView::deletionWithinTheSignal()
{
    for (int way = 0; way < 3; ++way) {
        View v(QRectF(300, 200, 160, 120));
        QWidget* viewport = v.view->viewport();
        QTest::mousePress(viewport, Qt::LeftButton, {}, {100, 100});
        connect(v.view, &ZoomGraphicsView::viewPortChanged, this, [&] { delete v.view; });
        if (way == 0)
            turnWheel(viewport, {100, 100}, 120);
        else if (way == 1)
            move(viewport, {150, 150});
        else
            QTest::keyClick(v.view, Qt::Key_Minus);
        QVERIFY(!v.view);
    }
}

QTEST_MAIN(TestZoomGraphicsView)
#include "tst_zoomgraphicsview.moc"
