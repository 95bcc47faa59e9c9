#pragma once

#include <QColor>

enum class Eyes { Usual, Protanopia, Deuteranopia };

/// The contrast ratio of WCAG 2, from 1 (none) to 21.
double contrast(const QColor& one, const QColor& other);

/// The distance in CIELAB (1976) as these eyes see the colours. About 2 is just noticeable.
double difference(const QColor& one, const QColor& other, Eyes eyes = Eyes::Usual);
