// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/corvelgui_export.h>

#include <QDate>
#include <QDateEdit>
#include <QTimeZone>

#include <memory>

namespace CorvelGui {

/// A QDateEdit that shows today at first, writes all digits of the year, and has a calendar with a
/// button for today. It opens by Alt and Down as well. Unless a client sets a display format, it
/// follows the default locale at every change of the language.
///
/// If it is allowed to be empty it shows dashes then. Ctrl with Delete or Backspace empties it, as
/// does one of these keys when all is selected, and a button of the calendar. Whatever changes an
/// empty one begins with today, or the nearest date within the limits. While it is empty,
/// QDateEdit::date() is the date that it had; ask chosenDate().
///
/// As with QDateEdit, a receiver of its signals must not delete it at once.
class CORVELGUI_EXPORT PDateEdit : public QDateEdit
{
    Q_OBJECT
    Q_PROPERTY(
        bool emptyAllowed READ isEmptyAllowed WRITE setEmptyAllowed NOTIFY emptyAllowedChanged)
    Q_PROPERTY(QDate chosenDate READ chosenDate WRITE setChosenDate NOTIFY chosenDateChanged)
    Q_PROPERTY(QTimeZone todayZone READ todayZone WRITE setTodayZone DESIGNABLE false)

public:
    explicit PDateEdit(QWidget* parent = nullptr);
    ~PDateEdit() override;

    /// Off at first.
    bool isEmptyAllowed() const;
    /// An empty one becomes today, or the nearest date within the limits, when it is no longer
    /// allowed.
    void setEmptyAllowed(bool allowed);

    /// Invalid while it is empty.
    QDate chosenDate() const;

    /// The zone whose date is today; that of this machine at first, and for an invalid one.
    void setTodayZone(const QTimeZone& zone);
    /// Invalid at first.
    QTimeZone todayZone() const;

    void stepBy(int steps) override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

public Q_SLOTS:
    /// Takes the nearest date within the limits. An invalid one empties the edit, and does nothing
    /// where it must not be empty.
    void setChosenDate(QDate date);

Q_SIGNALS:
    /// Emitted when setEmptyAllowed() changed it, after chosenDateChanged() if that follows from
    /// it.
    void emptyAllowedChanged(bool allowed);
    /// Emitted when chosenDate() changes, whoever changed it.
    void chosenDateChanged(QDate date);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;
    QValidator::State validate(QString& input, int& position) const override;
    QDateTime dateTimeFromText(const QString& text) const override;
    QString textFromDateTime(const QDateTime& dateTime) const override;
    StepEnabled stepEnabled() const override;

private:
    struct Private;

    bool isDashes(const QString& text) const;
    void setEmpty(bool empty);
    void showText();
    QDate today() const;
    void beginWithToday();
    void report();
    void openCalendar();
    void takeUsualFormat();

    const std::unique_ptr<Private> d;
};

} // namespace CorvelGui
