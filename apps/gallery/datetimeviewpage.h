// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace Gallery {

/// The date-time view in its modes. The first two can be clicked: their times of day are subject to
/// a change of the clocks, which the pop-up explains.
class DateTimeViewPage : public QWidget
{
    Q_OBJECT

public:
    explicit DateTimeViewPage(QWidget* parent);

protected:
    void showEvent(QShowEvent* event) override;

private:
    QWidget* m_focused = nullptr;
};

} // namespace Gallery
