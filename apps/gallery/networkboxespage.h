// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace Gallery {

/// Combo boxes for subnet masks and network interfaces.
class NetworkBoxesPage : public QWidget
{
    Q_OBJECT

public:
    explicit NetworkBoxesPage(QWidget* parent);
};

} // namespace Gallery
