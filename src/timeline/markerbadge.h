// SPDX-License-Identifier: MIT
#pragma once

#include "base/internalexport.h"
#include "rulermarker.h"

#include <QFont>
#include <QSize>

#include <optional>

class QPainter;
class QRect;

namespace CorvelGui {

/// The sign under a marker's symbol: how many markers it stands for, in the colour of the worst.
struct CORVELGUI_INTERNAL_EXPORT MarkerBadge
{
    qsizetype count = 0; ///< 0 for no badge
    RulerMarker::Severity severity = RulerMarker::Severity::None;

    bool operator==(const MarkerBadge&) const = default;

    /// One marker without a severity has none.
    bool isNull() const
    {
        return count == 0 || (count == 1 && severity == RulerMarker::Severity::None);
    }
    /// At most four characters, cut off: 12k are 12,000 or more.
    QString text() const;
    QSize size(const QFont& font) const;
    /// Draws it at the middle of the lower edge of @p area.
    void draw(QPainter& painter, const QFont& font, const QRect& area) const;

private:
    void drawOn(QPainter& painter, const QFont& font, const QSize& badge) const;
};

} // namespace CorvelGui
