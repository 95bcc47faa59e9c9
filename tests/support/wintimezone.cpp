// SPDX-License-Identifier: MIT
#include <cstdlib>

// The tests run with TZ=Europe/Brussels. Wine takes the zone of the machine from it, but the C
// run-time library of Windows expects TZ in a form of its own, and without TZ asks for the zone of
// the machine.
static const int withoutTz = _putenv("TZ=");
