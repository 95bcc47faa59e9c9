// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class QLabel;

namespace CorvelGui {
class PRowFilterModel;
}

namespace Gallery {

/// A million rows in an ordinary view on a model, with all that the library has for such lists: a
/// filter and an order that keep nothing waiting, copies, export and the column menu.
class LongListPage : public QWidget
{
    Q_OBJECT

public:
    explicit LongListPage(QWidget* parent);

private:
    void showCount();

    CorvelGui::PRowFilterModel* m_rows;
    QLabel* m_count;
};

} // namespace Gallery
