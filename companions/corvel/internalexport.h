// SPDX-License-Identifier: MIT
#pragma once

#include <Corvel/corvel_export.h>

/// Marks internal functions and classes that tests and fuzzers reach. A build without them keeps
/// those hidden.
#ifdef CORVELGUI_EXPORT_INTERNALS
#define CORVEL_INTERNAL_EXPORT CORVEL_EXPORT
#else
#define CORVEL_INTERNAL_EXPORT
#endif
