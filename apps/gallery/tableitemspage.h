// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class QTableWidget;

namespace Gallery {

/// A device table of all kinds of cells, sorted by address.
class TableItemsPage : public QWidget
{
    Q_OBJECT

public:
    explicit TableItemsPage(QWidget* parent);

protected:
    void changeEvent(QEvent* event) override;

private:
    void fill();

    QTableWidget* m_table;
};

} // namespace Gallery
