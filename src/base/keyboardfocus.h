// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class QPainter;
class QWidget;

namespace CorvelGui {

/// Whether a widget has the focus from the keyboard, and the frame that says so. A focus that came
/// by a click or with the window shows no frame; one that comes back with the window shows what it
/// showed before. Belongs to the widget and repaints it.
class KeyboardFocus : public QObject
{
public:
    explicit KeyboardFocus(QWidget* widget);

    bool isShown() const { return m_shown; }
    /// Draws the frame along the edge of the widget. To be drawn before all that it must not cover.
    void draw(QPainter& painter) const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* const m_widget;
    bool m_fromKeyboard = false;
    bool m_shown = false;
};

} // namespace CorvelGui
