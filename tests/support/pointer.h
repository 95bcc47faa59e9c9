// SPDX-License-Identifier: MIT
#pragma once

#include <QEnterEvent>
#include <QEventLoop>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>
#include <QWidget>

#include <functional>

/// Turns the wheel over @p widget and returns whether anything handled it.
inline bool turnWheel(QWidget* widget, QPointF at, QPoint angle, Qt::KeyboardModifiers held = {})
{
    QWheelEvent event(at, widget->mapToGlobal(at), {}, angle, {}, held, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(widget, &event);
    return event.isAccepted();
}

inline void moveMouse(QWidget& widget, QPointF position, Qt::MouseButtons held = {})
{
    QMouseEvent event(QEvent::MouseMove, position, widget.mapToGlobal(position), Qt::NoButton, held,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &event);
}

inline void enterMouse(QWidget& widget, QPoint position = {8, 8})
{
    QEnterEvent event(position, widget.mapTo(widget.window(), position),
                      widget.mapToGlobal(position));
    QCoreApplication::sendEvent(&widget, &event);
}

inline void leaveMouse(QWidget& widget)
{
    QEvent event(QEvent::Leave);
    QCoreApplication::sendEvent(&widget, &event);
}

/// Does @p act to a new object of which every receiver of the signals deletes it. Returns whether
/// it is gone then.
template <typename Object, typename... Signals>
bool isDeletedBy(const std::function<void(Object&)>& act, Signals... signals)
{
    QPointer<Object> object = new Object;
    QObject context;
    (QObject::connect(object.data(), signals, &context, [&] { delete object; }), ...);
    act(*object);
    return QTest::qWaitFor([&] { return !object; });
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
