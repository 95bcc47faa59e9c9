// SPDX-License-Identifier: MIT
// A plan with cameras: the wheel zooms, dragging the background pans, cameras can be moved.
// "Another view" opens the same part of the plan again.
#include <CorvelGui/ZoomGraphicsView>
#include <Hueloft/POrvGuiTheme>

#include <QApplication>
#include <QGraphicsRectItem>
#include <QGraphicsScene>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

using CorvelGui::ZoomGraphicsView;
using Hueloft::POrvGuiTheme;

void addRoom(QGraphicsScene& scene, const QRectF& rect, const QString& name)
{
    scene.addRect(rect, QPen(POrvGuiTheme::colorElephant, 6), POrvGuiTheme::colorTuna);
    auto* label = scene.addSimpleText(name);
    label->setBrush(Qt::white);
    label->setScale(2);
    label->setPos(rect.topLeft() + QPointF(15, 15));
}

void addCamera(QGraphicsScene& scene, QPointF position)
{
    auto* camera = scene.addEllipse(-16, -16, 32, 32, Qt::NoPen, POrvGuiTheme::colorOrange);
    camera->setPos(position);
    camera->setFlags(QGraphicsItem::ItemIsMovable | QGraphicsItem::ItemIsSelectable);
}

int main(int argc, char** argv)
{
    QApplication app(argc, argv);

    QGraphicsScene plan(0, 0, 900, 600); // its edges are the limits of the views
    plan.setBackgroundBrush(POrvGuiTheme::colorShark);
    addRoom(plan, {40, 40, 380, 520}, "Hall");
    addRoom(plan, {460, 40, 400, 240}, "Gate");
    addRoom(plan, {460, 320, 400, 240}, "Yard");
    addCamera(plan, {80, 500});
    addCamera(plan, {500, 240});
    addCamera(plan, {820, 520});

    QWidget window;
    window.setWindowTitle("Plan");
    window.resize(600, 480);
    auto* view = new ZoomGraphicsView(&plan, {});
    view->setRenderHint(QPainter::Antialiasing);
    auto* shown = new QLabel;
    auto* another = new QPushButton("Another view");
    auto* layout = new QVBoxLayout(&window);
    layout->addWidget(view);
    layout->addWidget(shown);
    layout->addWidget(another);

    const auto tell = [=] {
        const QRect rect = view->visibleRect().toRect();
        shown->setText(QString("From %1, %2 to %3, %4")
                           .arg(rect.left())
                           .arg(rect.top())
                           .arg(rect.right())
                           .arg(rect.bottom()));
    };
    QObject::connect(view, &ZoomGraphicsView::viewPortChanged, shown, tell);
    QTimer::singleShot(0, shown, tell); // the first rectangle comes without a signal
    QObject::connect(another, &QPushButton::clicked, view, [&plan, view] {
        auto* copy = new ZoomGraphicsView(&plan, view->visibleRect());
        copy->setAttribute(Qt::WA_DeleteOnClose);
        copy->resize(view->size());
        copy->show();
    });

    window.show();
    return app.exec();
}
