// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace CorvelGui {
class PTreeWidget;
}

namespace Gallery {

/// A tree of devices with marked and checked cells, and the same one filtered.
class TreePage : public QWidget
{
    Q_OBJECT

public:
    explicit TreePage(QWidget* parent);

protected:
    void changeEvent(QEvent* event) override;

private:
    void fill();

    CorvelGui::PTreeWidget* m_devices;
    CorvelGui::PTreeWidget* m_filtered;
};

} // namespace Gallery
