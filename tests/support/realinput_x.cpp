#include "realinput.h"

#include <QGuiApplication>
#include <QProcess>
#include <QStandardPaths>
#include <QTest>

using namespace Qt::StringLiterals;

namespace RealInput {

namespace {

void xdo(const QStringList& arguments)
{
    QCOMPARE(QProcess::execute(u"xdotool"_s, arguments), 0);
    QCoreApplication::processEvents();
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

bool isWanted()
{
    return QGuiApplication::platformName() == u"xcb"_s;
}

bool isAvailable()
{
    return !QStandardPaths::findExecutable(u"xdotool"_s).isEmpty();
}

void moveTo(QPoint position)
{
    xdo({u"mousemove"_s, QString::number(position.x()), QString::number(position.y())});
}

void press()
{
    xdo({u"mousedown"_s, u"1"_s});
}

void release()
{
    xdo({u"mouseup"_s, u"1"_s});
}

void doubleClick()
{
    xdo({u"click"_s, u"--repeat"_s, u"2"_s, u"--delay"_s, u"50"_s, u"1"_s});
}

void turnWheel(int notches)
{
    for (int i = 0; i < qAbs(notches); ++i)
        xdo({u"click"_s, notches > 0 ? u"4"_s : u"5"_s});
}

void strike(const QString& key)
{
    xdo({u"key"_s, xKey(key)});
}

} // namespace RealInput
