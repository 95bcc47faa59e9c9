// SPDX-License-Identifier: MIT
#pragma once

#include "base/internalexport.h"
#include "rulerranges.h"
#include "ticklayout.h"

#include <QBrush>
#include <QColor>
#include <QHash>
#include <QRect>
#include <QStaticText>
#include <QString>

class QPainter;

namespace CorvelGui {

class ClockChanges;
class KeyboardFocus;
class TimeScale;
class TrackSegments;

/// The ruler's colours. A default-constructed set is the one without the theme.
struct CORVELGUI_INTERNAL_EXPORT RulerColors
{
    QColor body{60, 60, 60};
    QColor header{40, 40, 40};
    QColor shade{0, 0, 0};
    QColor track{60, 60, 60};
    QColor trackEdge{255, 255, 0};
    QColor search{28, 187, 255};
    QColor preview{37, 124, 191};
    QColor previewClamped{207, 0, 249};
    QColor resultMark{255, 140, 0};
    QColor clockChange{190, 130, 255};
    QColor selection{214, 232, 250};

    static RulerColors ofTheme();
};

/// Tints a range from end to end, and marks those ends that are in sight. The columns of the scale
/// begin at the left of @p area.
void drawSelectedRange(QPainter& painter, const TimeScale& scale, const QRectF& area,
                       const TimeSpan& range, const QColor& color);

/// What there is to paint.
struct RulerScene
{
    const TimeScale& scale;
    const TrackSegments& segments;
    QRect rect;
    int headerHeight;
    QString dateFormat;
    RulerRanges ranges = {};
    const KeyboardFocus* focus = nullptr;
    const ClockChanges* clock = nullptr; ///< only for ticks in steps that people count in
};

/// Draws the ruler's bands, highlights and scale. It decides about colours and pixels, never about
/// times.
class CORVELGUI_INTERNAL_EXPORT RulerPainter
{
public:
    RulerColors colors;

    /// Makes the gradients for a ruler that fills @p rect. Colours changed later show with the next
    /// call.
    void createGradients(const QRect& rect, int headerHeight);

    void paint(QPainter& painter, const RulerScene& scene) const;

private:
    void fillBands(QPainter& painter, const RulerScene& scene) const;
    void fillSearchRange(QPainter& painter, const RulerScene& scene) const;
    void fillTracks(QPainter& painter, const RulerScene& scene) const;
    void shadeOutsideLimits(QPainter& painter, const RulerScene& scene, const QRectF& rect) const;
    void drawResultMarks(QPainter& painter, const RulerScene& scene) const;
    void drawPreviewLine(QPainter& painter, const RulerScene& scene, const QRectF& rect) const;
    void tintRepeated(QPainter& painter, const QRectF& rect, const ClockMark& mark,
                      int headerHeight) const;
    void drawScaleRuler(QPainter& painter, const RulerScene& scene, const QRectF& rect,
                        qint64 toMidnight) const;

    const QStaticText& shaped(const QString& text) const;

    QBrush m_headerGradient;
    QBrush m_searchGradient;
    QBrush m_trackGradient;
    mutable QHash<QString, QStaticText> m_shapedTexts;
};

} // namespace CorvelGui
