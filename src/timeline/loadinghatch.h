// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QRectF>

class QPainter;

namespace CorvelGui {

/// Fills @p areas with what says that nothing is known yet. Neighbours fit together.
void fillLoading(QPainter& painter, const QList<QRectF>& areas);

} // namespace CorvelGui
