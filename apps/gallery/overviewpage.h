// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace Gallery {

/// The overview strip and the zoomer in their states.
class OverviewPage : public QWidget
{
    Q_OBJECT

public:
    explicit OverviewPage(QWidget* parent);

protected:
    void showEvent(QShowEvent* event) override;

private:
    QWidget* m_focused = nullptr;
};

} // namespace Gallery
