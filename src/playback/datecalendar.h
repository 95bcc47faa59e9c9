// SPDX-License-Identifier: MIT
#pragma once

#include <QCalendarWidget>

class QPushButton;

namespace CorvelGui {

/// The calendar of a PDateEdit, with a button for today and one for no date below it. Both choose
/// as a click on a day does.
class DateCalendar : public QCalendarWidget
{
    Q_OBJECT

public:
    explicit DateCalendar(QWidget* parent = nullptr);

    void setEmptyAllowed(bool allowed);
    /// What the button for today chooses, as far as it is within the limits.
    void setToday(QDate today);

    QSize sizeHint() const override { return minimumSizeHint(); }
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// The user wants no date.
    void emptyChosen();
    void shown();
    /// It is not shown any more; what was chosen has been told.
    void hidden();

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void retranslate();

    QDate m_todayDate;
    QWidget* m_foot;
    QPushButton* m_today;
    QPushButton* m_empty;
};

} // namespace CorvelGui
