#include "testsupport.h"

#include <QCursor>
#include <QGuiApplication>
#include <QRegularExpression>
#include <QScreen>
#include <QTest>

using namespace Qt::StringLiterals;

void WarningFreeTest::init()
{
    // A real mouse cursor must not rest on a window that a test opens.
    if (const QScreen* screen = QGuiApplication::primaryScreen())
        QCursor::setPos(screen->geometry().bottomRight());
    // The offscreen platform says of itself what it cannot do, and so does that of Windows under Wine.
    QTest::failOnWarning(
        QRegularExpression(u"^(?!This plugin does not support|queryDarkBorder: Unable)"_s));
}
