// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace Gallery {

/// Each dialog as a part of the page, with a button that opens it as a window, and what came of it
/// the last time.
class DialogsPage : public QWidget
{
    Q_OBJECT

public:
    explicit DialogsPage(QWidget* parent);
};

} // namespace Gallery
