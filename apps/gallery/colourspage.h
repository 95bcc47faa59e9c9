// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace Gallery {

/// The named colours with their values, and texts in the status colours.
class ColoursPage : public QWidget
{
    Q_OBJECT

public:
    explicit ColoursPage(QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace Gallery
