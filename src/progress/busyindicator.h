// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/corvelgui_export.h>

#include <QPixmap>
#include <QWidget>

#include <chrono>
#include <memory>

namespace CorvelGui {

/// Covers its parent with a dimmed background and a spinning ring while something runs.
///
/// It takes the parent's size, stays above the parent's other children, and moves to another parent
/// by setParent(). While it is shown, neither mouse nor keyboard reach what it covers: the keyboard
/// focus rests on the overlay and goes back afterwards to the widget that had it, or that a client
/// gave it meanwhile. The Tab key leaves to widgets that are not covered.
///
/// The ring moves as long as the event loop runs; work that blocks the loop stops it.
class CORVELGUI_EXPORT BusyIndicator : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QPixmap backgroundImage READ backgroundImage WRITE setBackgroundImage)

public:
    /// Show it with show(): a child of a parent that is visible already starts hidden.
    explicit BusyIndicator(QWidget* parent = nullptr, Qt::WindowFlags f = {});
    ~BusyIndicator() override;

    /// A picture under the ring, stretched over the whole parent; a null one for the dimmed parent.
    /// Appears with the next step of the animation.
    void setBackgroundImage(const QPixmap& image);
    QPixmap backgroundImage() const;
    /// For how long after the next show only the background is drawn. It holds for that one
    /// showing.
    void setDelay(std::chrono::milliseconds delay);
    /// 0 at first, and again once it was hidden.
    std::chrono::milliseconds delay() const;
    /// Paints the full ring once and hides the indicator.
    void setFinished();

    bool eventFilter(QObject* watched, QEvent* event) override;

protected Q_SLOTS:
    /// One step of the animation, every 20 ms.
    void onTimeOut();

protected:
    bool event(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    void follow(QWidget* parent);
    void paintBackground(QPainter& painter);
    void paintRing(QPainter& painter) const;

    struct Private;
    const std::unique_ptr<Private> d;
};

} // namespace CorvelGui
