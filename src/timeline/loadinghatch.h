#pragma once

#include <QRectF>

class QPainter;

namespace CorvelGui {

/// Fills @p rect with what says that nothing is known yet. Neighbours fit together.
void fillLoading(QPainter& painter, const QRectF& rect);

} // namespace CorvelGui
