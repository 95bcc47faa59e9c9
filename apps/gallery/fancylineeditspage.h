// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace Gallery {

/// Line edits with icon buttons inside, and the filter field in its states.
class FancyLineEditsPage : public QWidget
{
    Q_OBJECT

public:
    explicit FancyLineEditsPage(QWidget* parent);
};

} // namespace Gallery
