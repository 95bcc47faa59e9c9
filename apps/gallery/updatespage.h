// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace Gallery {

/// The dialogs that tell of a newer release, and a change log that tries to do harm.
class UpdatesPage : public QWidget
{
    Q_OBJECT

public:
    explicit UpdatesPage(QWidget* parent = nullptr);
};

} // namespace Gallery
