// SPDX-License-Identifier: MIT
#pragma once

#include "timelineactivity.h"

#include <QPixmap>
#include <QRectF>

#include <functional>
#include <optional>

class QPainter;

namespace CorvelGui {

/// The activity of a period as a picture: what is recorded in a band at the foot, and how much
/// happens in bars above it, the worst at the bottom. Drawn once for each size and each state of
/// things.
class ActivityPicture
{
public:
    using Source = std::function<TimelineActivity(int columns)>;

    void setSource(Source source);
    /// The source has something else to say now.
    void renew() { m_picture = {}; }
    void paint(QPainter& painter, const QRectF& area);

private:
    void draw(QPainter& painter, const QSizeF& size, qreal ratio) const;

    Source m_source;
    std::optional<QPixmap> m_picture;
    QSizeF m_size;
};

} // namespace CorvelGui
