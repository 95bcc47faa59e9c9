// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class QLabel;

namespace Gallery {

/// Tooltips as they appear over devices and list entries, shown side by side.
class ToolTipsPage : public QWidget
{
    Q_OBJECT

public:
    explicit ToolTipsPage(QWidget* parent);

protected:
    void changeEvent(QEvent* event) override;

private:
    void fill();

    QLabel* m_device;
    QLabel* m_recording;
    QLabel* m_markup;
};

} // namespace Gallery
