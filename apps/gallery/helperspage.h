// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace Gallery {

/// What is done to texts that are typed here, and files handed over to the desktop.
class HelpersPage : public QWidget
{
    Q_OBJECT

public:
    explicit HelpersPage(QWidget* parent);
};

} // namespace Gallery
