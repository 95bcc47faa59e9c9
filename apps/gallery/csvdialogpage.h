// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace Gallery {

/// The export dialog beside the list that it exports from.
class CsvDialogPage : public QWidget
{
    Q_OBJECT

public:
    explicit CsvDialogPage(QWidget* parent);
};

} // namespace Gallery
