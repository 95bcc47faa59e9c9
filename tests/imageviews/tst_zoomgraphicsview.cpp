// SPDX-License-Identifier: MIT
#include "testsupport.h"

#include <CorvelGui/ZoomGraphicsView>

#include <QGraphicsRectItem>

using namespace CorvelGui;

namespace {

constexpr QRectF sceneRect(-400, -300, 1600, 1200);
constexpr QRectF part(300, 200, 160, 120);

bool isNear(QPointF a, QPointF b, qreal distance = 1)
{
    return QLineF(a, b).length() <= distance;
}

bool isNear(const QRectF& a, const QRectF& b)
{
    return isNear(a.topLeft(), b.topLeft()) && isNear(a.bottomRight(), b.bottomRight());
}

/// A view that has started with @p rect. Positions count from the viewport or, on the frame, from
/// the corner of the view.
struct View
{
    explicit View(const QVariant& rect = part, int frameWidth = 1)
        : view(new ZoomGraphicsView(&scene, rect, nullptr)), target(view->viewport())
    {
        view->setFrameStyle(QFrame::Box);
        view->setLineWidth(frameWidth);
        view->resize(500, 400);
        view->show();
        QCoreApplication::processEvents();
        changes = std::make_unique<QSignalSpy>(view, &ZoomGraphicsView::viewPortChanged);
    }
    ~View() { delete view; }

    void wheel(QPointF at, int delta, Qt::KeyboardModifiers held = {})
    {
        turnWheel(target, at, {0, delta}, held);
    }
    void press(QPoint at) { QTest::mousePress(target, Qt::LeftButton, {}, at); }
    void release(QPoint at) { QTest::mouseRelease(target, Qt::LeftButton, {}, at); }
    void move(QPointF at) { moveMouse(*target, at, Qt::LeftButton); }
    QPointF sceneUnder(QPointF at) const
    {
        return view->viewportTransform().inverted().map(
            at - (target == view ? view->viewport()->pos() : QPoint()));
    }
    qreal scale() const { return view->transform().m11(); }
    bool showsWholeScene() const
    {
        const QRect shown = view->mapFromScene(sceneRect).boundingRect();
        return view->viewport()->rect().contains(shown) && (shown.left() <= 3 || shown.top() <= 3);
    }

    QGraphicsScene scene{sceneRect};
    QPointer<ZoomGraphicsView> view;
    QWidget* target;
    std::unique_ptr<QSignalSpy> changes;
};

} // namespace

class TestZoomGraphicsView : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void wheel()
    {
        View v;
        QRandomGenerator random(11);
        for (int i = 0; i < 50; ++i) {
            const QPointF at(random.bounded(500), random.bounded(400));
            const QPointF held = v.sceneUnder(at);
            const qreal before = v.scale();
            const bool in = before < 2 || (before < 20 && random.bounded(2));
            v.wheel(at, in ? 120 : -120);
            QVERIFY(isNear(v.view->viewportTransform().map(held), at));
            QCOMPARE(v.scale() / before, in ? 1.1 : 0.9);
        }
        v.wheel({9, 9}, 120, Qt::ControlModifier);
        QCOMPARE(v.changes->size(), 50);

        // The whole scene is the widest view, which neither panning nor endless zooming takes
        // apart.
        View whole{QVariant()};
        whole.wheel({20, 350}, 120);
        QVERIFY(!whole.view->visibleRect().contains(sceneRect));
        for (const int delta : {-120, -120, 0, -120, -120}) {
            whole.wheel({20, 350}, delta);
            QVERIFY(whole.showsWholeScene());
            QVERIFY(
                isNear(QPointF(whole.view->transform().dx(), whole.view->transform().dy()), {}));
        }
        // From a view that was moved before it fits again to the same place.
        const QPointF center = whole.view->viewportTransform().map(sceneRect.center());
        for (int i = 0; i < 20; ++i)
            whole.wheel({20, 350}, i < 10 ? 120 : -120);
        QVERIFY(isNear(whole.view->viewportTransform().map(sceneRect.center()), center, 1e-6));
        whole.press({100, 100});
        whole.move({150, 120});
        QCOMPARE(whole.changes->size(), 26);
        for (int i = 0; i < 400; ++i)
            whole.wheel({20, 350}, 120);
        QVERIFY(sceneRect.contains(whole.view->visibleRect().center()));
        QVERIFY(whole.view->transform().mapRect(sceneRect).width() < 2e9);
    }

    void panning()
    {
        for (const auto& [frameWidth, onFrame] : {std::pair(0, false), {30, false}, {30, true}}) {
            View v(QRectF(0, 0, 320, 240), frameWidth);
            if (onFrame)
                v.target = v.view;
            QPoint at(20, 200);
            const QPointF held = v.sceneUnder(at);
            v.press(at);
            for (const QPoint step : {QPoint(43, -20), {78, 70}, {-134, -139}}) {
                at += step;
                v.move(at);
                QVERIFY(isNear(v.sceneUnder(at), held, 1e-6));
            }
            v.release(at);
            v.move({60, 60});
            QCOMPARE(v.changes->size(), 3);
            v.wheel(at, 120);
            QVERIFY(isNear(v.sceneUnder(at), held));
        }
    }

    void itemsKeepTheirMouse()
    {
        View v(QRectF(0, 0, 320, 240));
        QGraphicsRectItem* item = v.scene.addRect(100, 100, 40, 40);
        const QPoint on = v.view->mapFromScene(120, 120);
        for (const auto flag :
             {QGraphicsItem::ItemIsMovable, QGraphicsItem::ItemIsSelectable,
              QGraphicsItem::ItemIsFocusable, QGraphicsItem::GraphicsItemFlag(0)}) {
            item->setFlags(flag);
            v.changes->clear();
            v.press(on);
            v.move(on + QPoint(30, 0));
            v.release(on + QPoint(30, 0));
            QCOMPARE(v.changes->size(), flag ? 0 : 1);
            QCOMPARE(item->x() > 0, flag == QGraphicsItem::ItemIsMovable);
            QCOMPARE(item->isSelected(), flag == QGraphicsItem::ItemIsSelectable);
            item->setPos(0, 0);
        }
    }

    void startRectangle()
    {
        for (const QVariant& rect : {QVariant(), QVariant(7), QVariant(QRectF(5, 5, 0, 9))})
            QVERIFY(View(rect).showsWholeScene());
        // Saving and restoring does not creep.
        const QRectF first = View().view->visibleRect();
        QVERIFY(first.contains(part));
        QRectF saved = first;
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
        scene.setSceneRect(0, 0, 4000, 3000); // another picture
        late.setVisibleRect({});
        QVERIFY(late.visibleRect().contains(scene.sceneRect()));
        const qsizetype told = changes.size();
        late.setVisibleRect(first);
        QVERIFY(isNear(late.visibleRect(), first));
        QCOMPARE(changes.size(), told + 1);
    }

    void resizing()
    {
        View v;
        const QRectF first = v.view->visibleRect();
        for (const QSize size : {QSize(900, 300), {200, 700}, {500, 400}}) {
            v.view->resize(size);
            QVERIFY(v.view->visibleRect().contains(first.adjusted(1, 1, -1, -1)));
        }
        QCOMPARE(v.changes->size(), 3);
        QVERIFY(isNear(v.view->visibleRect(), first));
        // Between closed splitters there may be no room for a while.
        View closed;
        closed.view->resize(500, 1);
        closed.view->resize(500, 400);
        QVERIFY(isNear(closed.view->visibleRect(), first));
        // Scroll bars that come with a zoom must not undo it.
        View whole{QVariant()};
        whole.view->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
        whole.view->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
        const qreal scale = whole.scale();
        for (int i = 0; i < 5; ++i)
            whole.wheel({250, 200}, 120);
        QVERIFY(whole.scale() > 1.5 * scale);
    }

    void keys()
    {
        View v;
        const QRectF first = v.view->visibleRect();
        QTest::keyClick(v.view, Qt::Key_Plus);
        const QRectF zoomed = v.view->visibleRect();
        QVERIFY(isNear(zoomed.center(), first.center()) && zoomed.width() < first.width() / 1.05);
        for (const Qt::Key key : {Qt::Key_Right, Qt::Key_A})
            QTest::keyClick(v.view, key);
        QVERIFY(v.view->visibleRect().left() > zoomed.left() + 5);
        QCOMPARE(v.changes->size(), 2);
    }

    void deletionWithinTheSignal()
    {
        for (const auto& act : std::initializer_list<std::function<void(View&)>>{
                 [](View& v) { v.wheel(QPoint(100, 100), 120); },
                 [](View& v) { v.press(QPoint(100, 100)), v.move(QPoint(150, 150)); },
                 [](View& v) { QTest::keyClick(v.view, Qt::Key_Minus); },
             }) {
            View v;
            connect(v.view, &ZoomGraphicsView::viewPortChanged, this, [&] { delete v.view; });
            act(v);
            QVERIFY(!v.view);
        }
    }
};

QTEST_MAIN(TestZoomGraphicsView)
#include "tst_zoomgraphicsview.moc"
