// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// What a program with windows says to the console from which it was started. A redirected stream
/// gets it as well. Without either it is lost.
namespace Console {

void print(const QString& text);
void printError(const QString& text);

} // namespace Console
