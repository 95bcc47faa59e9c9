// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace CorvelGui {
class PTableWidget;
}

namespace Gallery {

/// A table of devices with a filter, the column menu and cells that are edited, and the column menu
/// as it opens.
class TablePage : public QWidget
{
    Q_OBJECT

public:
    explicit TablePage(QWidget* parent);

protected:
    void changeEvent(QEvent* event) override;

private:
    void fill();

    CorvelGui::PTableWidget* m_devices;
};

} // namespace Gallery
