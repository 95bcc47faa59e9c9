// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/corvelgui_export.h>

#include <QGraphicsView>
#include <QVariant>

#include <memory>

namespace CorvelGui {

/// Looks at a picture or a plan in a scene: the wheel, or + and -, zooms, and dragging empty
/// background with the left button pans. Zoomed out, it stops where the whole scene fits.
///
/// The scene's edges are limits: a point stays under the mouse as far as they allow. Items that can
/// be moved, selected or focused keep the mouse handling of QGraphicsView. There are no scroll bars
/// unless a client asks for them.
class CORVELGUI_EXPORT ZoomGraphicsView : public QGraphicsView
{
    Q_OBJECT
    Q_PROPERTY(QRectF visibleRect READ visibleRect NOTIFY viewPortChanged)

public:
    /// Starts with @p rect in view, a QRectF in scene coordinates such as an earlier visibleRect();
    /// with the whole scene if it is empty or something else. The view does not own @p scene.
    ZoomGraphicsView(QGraphicsScene* scene, const QVariant& rect, QWidget* parent = nullptr);
    ~ZoomGraphicsView() override;

    /// What the view shows at this moment, in scene coordinates. Where the scene fills the view
    /// only in part, the rectangle reaches beyond the scene.
    QRectF visibleRect() const;

public Q_SLOTS:
    /// Shows @p rect, in scene coordinates, in the middle and as large as there is room; the whole
    /// scene if it is empty, such as after another picture has come into it.
    void setVisibleRect(const QRectF& rect);

Q_SIGNALS:
    /// Emitted after setVisibleRect(), each zoom (also one that changes nothing, because the scene
    /// fits), each step of panning or of scrolling by keys and each resize, and when the view is
    /// shown with a scene that fits. Not emitted for the rectangle that the view starts with.
    void viewPortChanged();

protected:
    bool event(QEvent* event) override;
    /// A turn away from the user zooms in, everything else out; nothing happens while a modifier
    /// key is held.
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    struct Private;

    QPointF sceneAt(QPointF position) const;
    void bringTo(QPointF position, QPointF scenePoint);
    void zoom(QPointF position, qreal factor);
    void showScene();
    void showRect(const QRectF& rect);
    void start();
    void showFirstRect();
    bool restoreView();
    bool sceneFits() const;
    bool isTakenByItem(QPoint position) const;
    void rememberView();
    bool tellOfView();

    const std::unique_ptr<Private> d;
};

} // namespace CorvelGui
