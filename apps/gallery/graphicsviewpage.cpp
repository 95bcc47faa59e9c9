// SPDX-License-Identifier: MIT
#include "graphicsviewpage.h"

#include <CorvelGui/ZoomGraphicsView>
#include <Hueloft/POrvGuiTheme>

#include <QGraphicsItem>
#include <QGraphicsScene>
#include <QGridLayout>
#include <QLabel>
#include <QTimer>

using CorvelGui::ZoomGraphicsView;
using Hueloft::POrvGuiTheme;
using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

constexpr QRectF planRect(0, 0, 1200, 800);
constexpr QRectF gateRect(120, 420, 420, 300);

void addRoom(QGraphicsScene* scene, const QRectF& rect, const QString& name)
{
    scene->addRect(rect, QPen(POrvGuiTheme::colorElephant, 6), POrvGuiTheme::colorTuna);
    QGraphicsSimpleTextItem* label = scene->addSimpleText(name);
    QFont font = label->font();
    font.setPixelSize(28);
    label->setFont(font);
    label->setBrush(Qt::white);
    label->setPos(rect.topLeft() + QPointF(18, 14));
}

void addCamera(QGraphicsScene* scene, QPointF position, qreal direction)
{
    auto* camera = new QGraphicsPolygonItem(QPolygonF{
        {-16, -14}, {16, -14}, {16, -6}, {36, -14}, {36, 14}, {16, 6}, {16, 14}, {-16, 14}});
    camera->setBrush(POrvGuiTheme::colorOrange);
    camera->setPen(QPen(POrvGuiTheme::colorBlack, 2));
    camera->setPos(position);
    camera->setRotation(direction);
    camera->setFlags(QGraphicsItem::ItemIsMovable | QGraphicsItem::ItemIsSelectable);
    scene->addItem(camera);
}

QGraphicsScene* createPlan(QObject* parent)
{
    auto* scene = new QGraphicsScene(planRect, parent);
    scene->setBackgroundBrush(POrvGuiTheme::colorShark);
    addRoom(scene, {60, 60, 500, 300}, u"Hall"_s);
    addRoom(scene, {60, 400, 500, 340}, u"Gate"_s);
    addRoom(scene, {600, 60, 540, 680}, u"Yard"_s);
    addCamera(scene, {120, 160}, 30);
    addCamera(scene, {480, 480}, 150);
    addCamera(scene, {260, 660}, -60);
    addCamera(scene, {1060, 660}, -135);
    return scene;
}

} // namespace

GraphicsViewPage::GraphicsViewPage(QWidget* parent) : QWidget(parent)
{
    auto* grid = new QGridLayout(this);
    grid->setSpacing(8);
    QGraphicsScene* plan = createPlan(this);
    const auto add = [&](int column, const QString& caption, const QVariant& rect) {
        auto* view = new ZoomGraphicsView(plan, rect, this);
        view->setRenderHint(QPainter::Antialiasing);
        view->setMinimumSize(320, 320);
        view->setAccessibleName(caption);
        auto* state = new QLabel(this);
        const auto showState = [view, state] {
            const QRect visible = view->visibleRect().toRect();
            state->setText(tr("In view: %1, %2, %3 × %4")
                               .arg(visible.x())
                               .arg(visible.y())
                               .arg(visible.width())
                               .arg(visible.height()));
        };
        connect(view, &ZoomGraphicsView::viewPortChanged, state, showState);
        // The first rectangle comes without a signal.
        QTimer::singleShot(0, state, showState);
        grid->addWidget(new QLabel(caption, this), 0, column);
        grid->addWidget(view, 1, column);
        grid->addWidget(state, 2, column);
        return view;
    };
    add(0, tr("The whole plan"), {})->setFrameShape(QFrame::NoFrame);
    ZoomGraphicsView* framed = add(1, tr("Restored to the gate, in a frame"), gateRect);
    framed->setFrameStyle(QFrame::Box);
    framed->setLineWidth(6);

    auto* hint = new QLabel(
        tr("The wheel zooms at the mouse, + and − at the centre; empty background can be dragged. "
           "The cameras keep their mouse."),
        this);
    hint->setWordWrap(true);
    grid->addWidget(hint, 3, 0, 1, 2);
    grid->setRowStretch(1, 1);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
}

} // namespace Gallery
