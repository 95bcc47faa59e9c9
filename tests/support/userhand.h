#pragma once

#include <QPoint>
#include <QString>

class QWidget;

/// A user's hand on mouse and keyboard. On an X server and on Windows it moves the real pointer and
/// presses real keys; elsewhere it sends events to the widgets.
class UserHand
{
public:
    /// False where the tool that drives the window system is missing.
    static bool isAvailable();

    UserHand();

    void moveTo(QWidget* widget, QPoint position);
    void press() { setPressed(true); }
    void release() { setPressed(false); }
    void click();
    void doubleClick();

    /// Turns the wheel by notches; positive ones away from the user.
    void turnWheel(int notches);
    /// Presses a key by its name in Qt, such as "Right".
    void strike(const QString& key);

private:
    void setPressed(bool pressed);
    void send(int type);

    QWidget* m_target = nullptr;
    QPoint m_position; // on the screen
    bool m_real;
    bool m_held = false;
};
