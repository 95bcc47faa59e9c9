// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

/// Spans in milliseconds.
inline constexpr qint64 second = 1000;
inline constexpr qint64 minute = 60 * second;
inline constexpr qint64 hour = 60 * minute;
inline constexpr qint64 day = 24 * hour;

/// 2026-03-02T00:00:00Z, a Monday.
inline constexpr qint64 monday = 1'772'409'600'000;
