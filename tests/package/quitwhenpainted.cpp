// SPDX-License-Identifier: MIT
// Part of each program that the package test builds: ends it once its first window is painted.
#include <QApplication>
#include <QImage>
#include <QTimer>
#include <QWidget>

#include <cstdio>

namespace {

class FirstPaint : public QObject
{
public:
    using QObject::QObject;

private:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const auto* widget = qobject_cast<QWidget*>(watched);
        if (event->type() == QEvent::Paint && widget && widget->isWindow()) {
            QCoreApplication::instance()->removeEventFilter(this);
            QTimer::singleShot(0, widget, [widget] { leave(const_cast<QWidget*>(widget)); });
        }
        return false;
    }

    static void leave(QWidget* window)
    {
        window->grab().save(QCoreApplication::applicationFilePath() + ".png");
        std::printf("Shown: %s\n", qPrintable(window->windowTitle()));
        QCoreApplication::quit();
    }
};

void watch()
{
    QCoreApplication* application = QCoreApplication::instance();
    application->installEventFilter(new FirstPaint(application));
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(watch)
