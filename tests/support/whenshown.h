// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <functional>

inline QPushButton* buttonOf(const QWidget& dialog, QDialogButtonBox::StandardButton button)
{
    return dialog.findChild<QDialogButtonBox*>()->button(button);
}

/// A widget in the active window, at least 300 pixels wide.
template <typename Widget>
struct Shown : Widget
{
    Shown()
    {
        this->resize(this->sizeHint().expandedTo({300, 0}));
        this->show();
        this->activateWindow();
        if (!QTest::qWaitForWindowActive(this))
            qFatal("The window does not become active");
    }
};

/// Runs @p act once a modal dialog of that class is shown, inside the dialog's event loop. It must
/// end the dialog.
template <typename Dialog>
void whenShown(QObject* context, const std::function<void(Dialog&)>& act)
{
    auto* timer = new QTimer(context);
    QObject::connect(timer, &QTimer::timeout, context, [timer, act] {
        auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
        if (!dialog || !dialog->isVisible())
            return;
        timer->stop();
        timer->deleteLater();
        act(*dialog);
    });
    timer->start(0);
}
