// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace Gallery {

/// A button for each dialog, with what came of it the last time.
class DialogsPage : public QWidget
{
    Q_OBJECT

public:
    explicit DialogsPage(QWidget* parent);
};

} // namespace Gallery
