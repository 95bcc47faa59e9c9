#pragma once

#include <QPoint>
#include <QString>

/// Moves the real mouse pointer and presses real keys, through the window system and all that lies
/// between it and the widgets.
namespace RealInput {

/// False where the platform has no pointer and no keys, such as offscreen.
bool isWanted();
/// False where a tool that drives the window system is missing.
bool isAvailable();

/// @p position is in pixels of the device.
void moveTo(QPoint position);
void setPressed(bool pressed);

/// Positive notches turn the wheel away from the user.
void turnWheel(int notches);
/// Presses a key by its name in Qt.
void strike(const QString& key);

} // namespace RealInput
