// SPDX-License-Identifier: MIT
#include "console.h"

#include <cstdio>

namespace Console {

void print(const QString& text)
{
    std::fputs(qPrintable(text), stdout);
}

void printError(const QString& text)
{
    std::fputs(qPrintable(text), stderr);
}

} // namespace Console
