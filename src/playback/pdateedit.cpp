// SPDX-License-Identifier: MIT
#include "pdateedit.h"

#include "datecalendar.h"
#include "localmoments.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPointer>
#include <QScopedValueRollback>
#include <QStyleOptionComboBox>

#include <algorithm>
#include <utility>

namespace CorvelGui {

struct PDateEdit::Private
{
    QPointer<DateCalendar> calendar; ///< a client may set another one
    bool isEmptyAllowed = false;
    bool isEmpty = false;
    bool wasEmpty = false; ///< when the calendar opened, and no date has been chosen since
    QDate reported;
    QString usualFormat; ///< that of the locale
    QTimeZone todayZone;
};

PDateEdit::PDateEdit(QWidget* parent) : QDateEdit(parent), d(std::make_unique<Private>())
{
    // Where every date exists: some clocks skip a midnight.
    setTimeSpec(Qt::UTC);
    setDate(QDate::currentDate());
    d->reported = date();
    d->calendar = new DateCalendar(this);
    takeUsualFormat();
    setCalendarPopup(true);
    setCalendarWidget(d->calendar);
    connect(this, &QDateEdit::dateChanged, this, [this] { setEmpty(false); });
    // A date that is typed or pasted over the dashes, and is the one before.
    connect(lineEdit(), &QLineEdit::textChanged, this, [this](const QString& text) {
        if (d->isEmpty && !isDashes(text) && hasAcceptableInput())
            setEmpty(false);
    });
    connect(d->calendar, &DateCalendar::shown, this, [this] {
        d->wasEmpty = d->isEmpty;
        d->calendar->setToday(today());
    });
    for (const auto chosen : {&QCalendarWidget::clicked, &QCalendarWidget::activated})
        connect(d->calendar, chosen, this, [this](QDate date) {
            d->wasEmpty = false;
            setChosenDate(date);
        });
    connect(d->calendar, &DateCalendar::emptyChosen, this, [this] {
        d->wasEmpty = true;
        d->calendar->window()->close();
    });
    // Dates that were only looked at have been shown meanwhile.
    connect(d->calendar, &DateCalendar::hidden, this, [this] {
        if (std::exchange(d->wasEmpty, false))
            setEmpty(true);
    });
}

PDateEdit::~PDateEdit() = default;

bool PDateEdit::isEmptyAllowed() const
{
    return d->isEmptyAllowed;
}

void PDateEdit::setEmptyAllowed(bool allowed)
{
    if (allowed == d->isEmptyAllowed)
        return;
    d->isEmptyAllowed = allowed;
    if (d->calendar)
        d->calendar->setEmptyAllowed(allowed);
    const QPointer<PDateEdit> alive(this);
    if (!allowed && d->isEmpty)
        beginWithToday();
    if (alive)
        Q_EMIT emptyAllowedChanged(allowed);
}

QDate PDateEdit::chosenDate() const
{
    return d->isEmpty ? QDate() : date();
}

void PDateEdit::setChosenDate(QDate date)
{
    if (!date.isValid()) {
        if (d->isEmptyAllowed)
            setEmpty(true);
        return;
    }
    const QPointer<PDateEdit> alive(this);
    setDate(std::clamp(date, minimumDate(), maximumDate()));
    if (alive)
        setEmpty(false); // also when that was its date already
}

QTimeZone PDateEdit::todayZone() const
{
    return d->todayZone;
}

void PDateEdit::setTodayZone(const QTimeZone& zone)
{
    d->todayZone = zone;
}

void PDateEdit::stepBy(int steps)
{
    if (d->isEmpty)
        beginWithToday();
    else
        QDateEdit::stepBy(steps);
}

// There must be room for a date.
QSize PDateEdit::sizeHint() const
{
    const QScopedValueRollback filled(d->isEmpty, false);
    return QDateEdit::sizeHint();
}

QSize PDateEdit::minimumSizeHint() const
{
    const QScopedValueRollback filled(d->isEmpty, false);
    return QDateEdit::minimumSizeHint();
}

void PDateEdit::changeEvent(QEvent* event)
{
    QDateEdit::changeEvent(event);
    const bool isLanguage =
        event->type() == QEvent::LanguageChange || event->type() == QEvent::LocaleChange;
    if (isLanguage && displayFormat() == d->usualFormat)
        takeUsualFormat();
}

void PDateEdit::takeUsualFormat()
{
    d->usualFormat = shortDateFormat();
    setDisplayFormat(d->usualFormat);
}

void PDateEdit::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Down && event->modifiers().testFlag(Qt::AltModifier)) {
        openCalendar();
        return;
    }
    const bool isDelete = event->key() == Qt::Key_Delete || event->key() == Qt::Key_Backspace;
    const bool isAll = event->modifiers().testFlag(Qt::ControlModifier) ||
                       lineEdit()->selectedText() == lineEdit()->text();
    if (isDelete && d->isEmptyAllowed && !isReadOnly() && (d->isEmpty || isAll)) {
        setEmpty(true);
        return;
    }
    const bool isTyped = !event->text().isEmpty() && event->text()[0].isLetterOrNumber();
    if (d->isEmpty && isTyped && !isReadOnly()) {
        const Section section = currentSection();
        const QPointer<PDateEdit> alive(this);
        beginWithToday();
        if (!alive)
            return;
        setSelectedSection(section);
    }
    QDateEdit::keyPressEvent(event);
}

QValidator::State PDateEdit::validate(QString& input, int& position) const
{
    return isDashes(input) ? QValidator::Acceptable : QDateEdit::validate(input, position);
}

QDateTime PDateEdit::dateTimeFromText(const QString& text) const
{
    return isDashes(text) ? dateTime() : QDateEdit::dateTimeFromText(text);
}

// As long as a date, because the sections are found by their places.
QString PDateEdit::textFromDateTime(const QDateTime& dateTime) const
{
    QString text = QDateEdit::textFromDateTime(dateTime);
    if (d && d->isEmpty)
        std::ranges::replace_if(
            text, [](QChar character) { return character.isLetterOrNumber(); }, u'–');
    return text;
}

QAbstractSpinBox::StepEnabled PDateEdit::stepEnabled() const
{
    return d->isEmpty && !isReadOnly() ? StepUpEnabled | StepDownEnabled : QDateEdit::stepEnabled();
}

bool PDateEdit::isDashes(const QString& text) const
{
    return d && d->isEmpty && text == textFromDateTime(dateTime());
}

void PDateEdit::setEmpty(bool empty)
{
    if (d->isEmpty != empty) {
        d->isEmpty = empty;
        showText();
    }
    report();
}

void PDateEdit::showText()
{
    const Section section = currentSection();
    const QSignalBlocker blocked(lineEdit());
    lineEdit()->setText(textFromDateTime(dateTime()));
    if (hasFocus())
        setSelectedSection(section);
    update();
}

QDate PDateEdit::today() const
{
    return d->todayZone.isValid() ? QDateTime::currentDateTimeUtc().toTimeZone(d->todayZone).date()
                                  : QDate::currentDate();
}

void PDateEdit::beginWithToday()
{
    setChosenDate(today());
}

void PDateEdit::report()
{
    if (std::exchange(d->reported, chosenDate()) != d->reported)
        Q_EMIT chosenDateChanged(d->reported);
}

void PDateEdit::openCalendar()
{
    QStyleOptionComboBox option;
    option.initFrom(this);
    option.editable = true;
    option.subControls = QStyle::SC_All;
    const QRectF arrow =
        style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxArrow, this);
    QMouseEvent press(QEvent::MouseButtonPress, arrow.center(), mapToGlobal(arrow.center()),
                      Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    mousePressEvent(&press);
}

} // namespace CorvelGui
