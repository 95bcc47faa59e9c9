// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class PTabWidget;

namespace Gallery {

/// Tabs that can be closed, moved and renamed, and one that is being renamed.
class TabWidgetPage : public QWidget
{
    Q_OBJECT

public:
    explicit TabWidgetPage(QWidget* parent);

protected:
    void showEvent(QShowEvent* event) override;

private:
    PTabWidget* m_renamed;
};

} // namespace Gallery
