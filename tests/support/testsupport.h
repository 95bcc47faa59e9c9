#pragma once

#include <QObject>

/// Base of all test classes: a test fails on every warning that it did not announce with
/// QTest::ignoreMessage(). A class that has an init() of its own calls this one from it.
class WarningFreeTest : public QObject
{
    Q_OBJECT

protected Q_SLOTS:
    void init();
};
