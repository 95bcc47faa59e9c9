// SPDX-License-Identifier: MIT
#pragma once

#include "pointer.h"
#include "testfiles.h"
#include "whenshown.h"

// What many tests use comes with the base class, the literals of texts included.
#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPainter>
#include <QPointer>
#include <QPushButton>
#include <QRandomGenerator>
#include <QSettings>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTimeZone>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>
#include <memory>
#include <optional>
#include <utility>

using namespace Qt::StringLiterals;

/// What Tab does not reach in the active window that the user could use, by class and text.
QStringList unreachedByTab(const QWidget& window);

/// Base of all test classes: a test fails on every warning that it did not announce with
/// QTest::ignoreMessage(). A class that has an init() of its own calls this one from it.
class WarningFreeTest : public QObject
{
    Q_OBJECT

protected Q_SLOTS:
    void init();
};
