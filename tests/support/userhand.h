#pragma once

#include <QPoint>
#include <QString>

class QWidget;

/// A user's hand on mouse and keyboard. On an X server it moves the real pointer and presses real
/// keys, through the server and all that lies between it and the widgets; elsewhere it sends events
/// to the widgets.
class UserHand
{
public:
    /// False where the platform is X but the tool that drives the server is missing.
    static bool isAvailable();

    UserHand();

    void moveTo(QWidget* widget, QPoint position);
    void press();
    void release();
    void click();
    void doubleClick();
    /// Turns the wheel by notches; positive ones away from the user.
    void turnWheel(int notches);
    /// Presses a key by its name in Qt, such as "Right" or "PgDown".
    void strike(const QString& key);

private:
    void xdo(const QStringList& arguments);
    void send(int type);

    QWidget* m_target = nullptr;
    QPoint m_position; // on the screen
    bool m_real;
    bool m_held = false;
};
