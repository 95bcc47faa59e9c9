#include "realinput.h"

#include <QGuiApplication>
#include <QHash>
#include <QTest>

#include <qt_windows.h>

using namespace Qt::StringLiterals;

namespace RealInput {

namespace {

void send(INPUT input)
{
    QCOMPARE(SendInput(1, &input, sizeof input), 1u);
    QCoreApplication::processEvents();
}

void sendMouse(DWORD flags, int wheel = 0)
{
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = flags;
    input.mi.mouseData = DWORD(wheel);
    send(input);
}

void sendKey(WORD key, DWORD flags)
{
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = key;
    // Without it these are the keys of the numeric pad.
    input.ki.dwFlags = flags | KEYEVENTF_EXTENDEDKEY;
    send(input);
}

} // namespace

bool isWanted()
{
    return QGuiApplication::platformName() == u"windows"_s;
}

bool isAvailable()
{
    return true;
}

void moveTo(QPoint position)
{
    QVERIFY(SetCursorPos(position.x(), position.y()));
    QCoreApplication::processEvents();
}

void setPressed(bool pressed)
{
    sendMouse(pressed ? MOUSEEVENTF_LEFTDOWN : MOUSEEVENTF_LEFTUP);
}

void turnWheel(int notches)
{
    for (int i = 0; i < qAbs(notches); ++i)
        sendMouse(MOUSEEVENTF_WHEEL, notches > 0 ? WHEEL_DELTA : -WHEEL_DELTA);
}

void strike(const QString& key)
{
    static const QHash<QString, WORD> keys{
        {u"Right"_s, WORD(VK_RIGHT)}, {u"Home"_s, WORD(VK_HOME)}, {u"Escape"_s, WORD(VK_ESCAPE)}};

    // Letters have the code of their capital.
    const WORD letter = key.size() == 1 ? WORD(key.front().toUpper().unicode()) : WORD(0);
    const WORD code = keys.value(key, letter);
    QVERIFY(code != 0);
    sendKey(code, 0);
    sendKey(code, KEYEVENTF_KEYUP);
}

} // namespace RealInput
