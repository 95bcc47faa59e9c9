// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace Gallery {

/// Progress bars with one decimal, and the progress on the taskbar button of the gallery.
class ProgressPage : public QWidget
{
    Q_OBJECT

public:
    explicit ProgressPage(QWidget* parent);
};

} // namespace Gallery
