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

void setPressed(bool pressed)
{
    xdo({pressed ? u"mousedown"_s : u"mouseup"_s, u"1"_s});
}

void turnWheel(int notches)
{
    for (int i = 0; i < qAbs(notches); ++i)
        xdo({u"click"_s, notches > 0 ? u"4"_s : u"5"_s});
}

void strike(const QString& key)
{
    xdo({u"key"_s, key});
}

} // namespace RealInput
