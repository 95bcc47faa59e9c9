// SPDX-License-Identifier: MIT
#pragma once

#include "data/trackhistory.h"

#include <QColor>
#include <QCoreApplication>
#include <QIcon>

class QPainter;

namespace Review {

/// How the client shows what is known of a track: a full bar, an empty frame, or a dotted line,
/// told apart without colour.
class StateSign
{
    Q_DECLARE_TR_FUNCTIONS(Review::StateSign)

public:
    static QString text(TrackState state);
    /// @p line is the colour of frame and dots.
    static void paint(QPainter& painter, const QRectF& area, TrackState state, const QColor& line);
    /// In the colours of the look that is active at the time of painting.
    static QIcon icon(TrackState state);
};

} // namespace Review
