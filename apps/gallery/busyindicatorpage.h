// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace CorvelGui {
class BusyIndicator;
}

namespace Gallery {

/// Busy overlays over a few controls.
class BusyIndicatorPage : public QWidget
{
    Q_OBJECT

public:
    explicit BusyIndicatorPage(QWidget* parent);

protected:
    void showEvent(QShowEvent* event) override;

private:
    CorvelGui::BusyIndicator* m_waiting = nullptr;
};

} // namespace Gallery
