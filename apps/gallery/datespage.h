// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace Gallery {

/// Dates, moments and ranges to enter, in a zone whose clock changes can be tried.
class DatesPage : public QWidget
{
    Q_OBJECT

public:
    explicit DatesPage(QWidget* parent);

protected:
    void showEvent(QShowEvent* event) override;

private:
    QWidget* m_focused = nullptr;
};

} // namespace Gallery
