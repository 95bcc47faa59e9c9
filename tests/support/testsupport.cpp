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
    // Platforms say of themselves what they cannot do: the offscreen one, and Wine's. The one of
    // Windows also tells of windows whose wrapped texts need another height than was asked for.
    QTest::failOnWarning(QRegularExpression(u"^(?!This plugin does not support|queryDarkBorder: "
                                            "Unable|setGeometry: Unable)"_s));
}
