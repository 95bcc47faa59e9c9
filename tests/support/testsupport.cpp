#include "testsupport.h"

#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;

void WarningFreeTest::init()
{
    // The offscreen platform says of itself what it cannot do.
    QTest::failOnWarning(QRegularExpression(u"^(?!This plugin does not support)"_s));
}
