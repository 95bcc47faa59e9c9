// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class QLabel;
class QLineEdit;
class QTableWidget;

namespace Gallery {

/// Ordinary Qt widgets in their states, as the application's look dresses them.
class LooksPage : public QWidget
{
    Q_OBJECT

public:
    explicit LooksPage(QWidget* parent);

protected:
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    QWidget* createInputs();
    QWidget* createTexts();
    void applyStatusColors();

    QLineEdit* m_focused;
    QLabel* m_link;
    QLabel* m_failure;
    QTableWidget* m_devices;
};

} // namespace Gallery
