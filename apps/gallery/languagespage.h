// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace Gallery {

/// The language dialog with languages to choose from and with none, and a button that switches.
class LanguagesPage : public QWidget
{
    Q_OBJECT

public:
    explicit LanguagesPage(QWidget* parent);
};

} // namespace Gallery
