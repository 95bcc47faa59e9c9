// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>

/// The contrast ratio of WCAG 2, from 1 (none) to 21.
double contrast(const QColor& one, const QColor& other);

/// How different two colours are, in Oklab, for eyes that cannot tell red from green: by lightness
/// and blueness alone. Black and white are 1 apart; 0.1 is easily seen.
double difference(const QColor& one, const QColor& other);
