#pragma once

#include <QCoreApplication>
#include <QEventLoop>
#include <QMouseEvent>
#include <QTimer>
#include <QWheelEvent>
#include <QWidget>

/// Turns the wheel over @p widget and returns whether anything handled it.
inline bool turnWheel(QWidget* widget, QPointF at, QPoint angle, Qt::KeyboardModifiers held = {})
{
    QWheelEvent event(at, widget->mapToGlobal(at), {}, angle, {}, held, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(widget, &event);
    return event.isAccepted();
}

/// Moves the mouse, with its left button held, to a point of @p widget.
inline void dragTo(QWidget* widget, QPointF at)
{
    QMouseEvent event(QEvent::MouseMove, at, widget->mapToGlobal(at), Qt::NoButton, Qt::LeftButton,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &event);
}

/// Deletes @p object, if @p nested from an event loop that goes on for a while.
inline void deleteWithin(QObject* object, bool nested)
{
    if (!nested)
        return delete object;
    QEventLoop loop;
    QTimer::singleShot(0, &loop, [&] {
        delete object;
        QTimer::singleShot(0, &loop, &QEventLoop::quit);
    });
    loop.exec();
}
