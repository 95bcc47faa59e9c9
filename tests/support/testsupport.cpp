// SPDX-License-Identifier: MIT
#include "testsupport.h"

#include <QCursor>
#include <QGuiApplication>
#include <QRegularExpression>
#include <QScreen>

QStringList unreachedByTab(const QWidget& window)
{
    QList<QWidget*> left;
    for (QWidget* widget : window.findChildren<QWidget*>())
        if (widget->isVisible() && widget->isEnabled() && !widget->focusProxy() &&
            (widget->focusPolicy() & Qt::TabFocus) == Qt::TabFocus)
            left.append(widget);
    constexpr int stops = 3; // where Tab goes from part to part, as in a date
    for (qsizetype presses = stops * left.size(); presses > 0; --presses) {
        left.removeOne(QApplication::focusWidget());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    QStringList names;
    for (const QWidget* widget : std::as_const(left)) {
        const auto* button = qobject_cast<const QAbstractButton*>(widget);
        names.append(QString::fromLatin1(widget->metaObject()->className()) + u' ' +
                     (button ? button->text() : widget->accessibleName()));
    }
    return names;
}

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
