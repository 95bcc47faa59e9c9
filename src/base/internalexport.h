// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/corvelgui_export.h>

/// Marks internal classes that tests, benchmarks and fuzzers reach. A build without them keeps
/// those classes hidden.
#ifdef CORVELGUI_EXPORT_INTERNALS
#define CORVELGUI_INTERNAL_EXPORT CORVELGUI_EXPORT
#else
#define CORVELGUI_INTERNAL_EXPORT
#endif
