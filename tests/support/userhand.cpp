#include "userhand.h"

#include <QApplication>
#include <QKeySequence>
#include <QMouseEvent>
#include <QProcess>
#include <QStandardPaths>
#include <QTest>
#include <QWheelEvent>
#include <QWidget>

using namespace Qt::StringLiterals;

namespace {

bool isX()
{
    return QGuiApplication::platformName() == u"xcb"_s;
}

/// The X server's names differ where Qt's are short.
QString xKey(const QString& key)
{
    if (key == u"PgDown"_s)
        return u"Next"_s;
    if (key == u"PgUp"_s)
        return u"Prior"_s;
    return key;
}

} // namespace

bool UserHand::isAvailable()
{
    return !isX() || !QStandardPaths::findExecutable(u"xdotool"_s).isEmpty();
}

UserHand::UserHand() : m_real(isX()) {}

void UserHand::moveTo(QWidget* widget, QPoint position)
{
    // The widget that was pressed holds the mouse.
    if (!m_held)
        m_target = widget;
    m_position = widget->mapToGlobal(position);
    if (m_real) {
        xdo({u"mousemove"_s, QString::number(m_position.x()), QString::number(m_position.y())});
    } else {
        send(QEvent::MouseMove);
    }
}

void UserHand::press()
{
    m_held = true;
    if (m_real)
        xdo({u"mousedown"_s, u"1"_s});
    else
        send(QEvent::MouseButtonPress);
}

void UserHand::release()
{
    m_held = false;
    if (m_real)
        xdo({u"mouseup"_s, u"1"_s});
    else
        send(QEvent::MouseButtonRelease);
}

void UserHand::click()
{
    press();
    release();
}

void UserHand::doubleClick()
{
    if (m_real) {
        xdo({u"click"_s, u"--repeat"_s, u"2"_s, u"--delay"_s, u"50"_s, u"1"_s});
        return;
    }
    click();
    send(QEvent::MouseButtonDblClick);
    release();
}

void UserHand::turnWheel(int notches)
{
    for (int i = 0; i < qAbs(notches); ++i) {
        if (m_real) {
            xdo({u"click"_s, notches > 0 ? u"4"_s : u"5"_s});
            continue;
        }
        QWheelEvent event(m_target->mapFromGlobal(QPointF(m_position)), m_position, {},
                          QPoint(0, notches > 0 ? 120 : -120), Qt::NoButton, {}, Qt::NoScrollPhase,
                          false);
        QApplication::sendEvent(m_target, &event);
    }
}

void UserHand::strike(const QString& key)
{
    if (m_real)
        return xdo({u"key"_s, xKey(key)});
    QTest::keyClick(QApplication::focusWidget(), QKeySequence(key)[0].key());
}

void UserHand::xdo(const QStringList& arguments)
{
    QCOMPARE(QProcess::execute(u"xdotool"_s, arguments), 0);
    QCoreApplication::processEvents();
}

void UserHand::send(int type)
{
    const bool moves = type == QEvent::MouseMove;
    const Qt::MouseButton button = moves ? Qt::NoButton : Qt::LeftButton;
    const bool held = m_held || type == QEvent::MouseButtonPress;
    // The target may have moved under the hand.
    QMouseEvent event(QEvent::Type(type), m_target->mapFromGlobal(m_position), m_position, button,
                      held ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(m_target, &event);
    if (type == QEvent::MouseButtonPress && m_target->focusPolicy() & Qt::ClickFocus)
        m_target->setFocus();
}
