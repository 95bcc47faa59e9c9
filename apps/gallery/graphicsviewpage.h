// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace Gallery {

/// A plan in zoomable views: as a whole, and restored to a part of it inside a frame.
class GraphicsViewPage : public QWidget
{
    Q_OBJECT

public:
    explicit GraphicsViewPage(QWidget* parent);
};

} // namespace Gallery
