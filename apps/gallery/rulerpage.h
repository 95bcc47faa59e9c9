// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace Gallery {

/// The ruler at every zoom level, and with everything that can be seen on it.
class RulerPage : public QWidget
{
    Q_OBJECT

public:
    explicit RulerPage(QWidget* parent);
};

} // namespace Gallery
