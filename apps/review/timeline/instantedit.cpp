// SPDX-License-Identifier: MIT
#include "instantedit.h"

#include "look/typedtime.h"
#include "session/clock.h"

#include <Hueloft/PPlayerIconHelper>

#include <QAction>
#include <QCalendarWidget>
#include <QKeyEvent>
#include <QToolButton>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Review {

InstantEdit::InstantEdit(const Clock& clock, QWidget* parent)
    : Translated(parent)
    , m_clock(clock)
    , m_open(addAction(Hueloft::PPlayerIconHelper::GetDateTimeIcon_32x32(true), TrailingPosition))
    , m_calendar(new QCalendarWidget(this))
{
    m_calendar->setWindowFlag(Qt::Popup);
    // It would show what is typed in a format of its own.
    m_calendar->setDateEditEnabled(false);
    m_calendar->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    for (auto* button : m_calendar->findChildren<QToolButton*>()) {
        // Instead of icons that do not follow the look.
        if (button->objectName() == "qt_calendar_prevmonth"_L1)
            button->setArrowType(Qt::LeftArrow);
        else if (button->objectName() == "qt_calendar_nextmonth"_L1)
            button->setArrowType(Qt::RightArrow);
    }
    auto* close = new QAction(m_calendar);
    close->setShortcut(Qt::Key_Escape);
    m_calendar->addAction(close);

    connect(m_open, &QAction::triggered, this, &InstantEdit::openCalendar);
    connect(close, &QAction::triggered, m_calendar, &QWidget::hide);
    for (const auto chosen : {&QCalendarWidget::clicked, &QCalendarWidget::activated})
        connect(m_calendar, chosen, this, [this](QDate date) {
            m_calendar->hide();
            const TimeTexts& times = m_clock.times();
            const QTime time = times.wallClock(m_instant).time();
            setInstant(times.fromWallClock(QDateTime(date, time, Qt::UTC)));
            Q_EMIT edited();
        });
    connect(this, &QLineEdit::textEdited, this, &InstantEdit::readText);
    connect(this, &QLineEdit::editingFinished, this, [this] {
        if (m_fault == Fault::None)
            showInstant();
    });
    connect(&clock, &Clock::changed, this, &InstantEdit::followClock);
    retranslate();
}

void InstantEdit::setInstant(qint64 msecs)
{
    m_instant = msecs;
    showInstant();
}

QString InstantEdit::fault() const
{
    switch (m_fault) {
    case Fault::Unreadable:
        return tr("“%1” is not a date and time such as %2.")
            .arg(text(), m_clock.times().dateTime(m_instant));
    case Fault::Skipped:
        return tr("The clocks are put forward past %1.").arg(text());
    case Fault::None:
        break;
    }
    return {};
}

QSize InstantEdit::sizeHint() const
{
    constexpr int iconAndMargins = 40;
    const QString widest = QDateTime(QDate(2000, 12, 28), QTime(20, 58, 58))
                               .toString(m_clock.times().format().pattern());
    return {fontMetrics().horizontalAdvance(widest) + iconAndMargins,
            QLineEdit::sizeHint().height()};
}

void InstantEdit::retranslate()
{
    m_open->setText(tr("Calendar"));
    m_open->setToolTip(tr("Choose a day in a calendar"));
}

void InstantEdit::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Down && event->modifiers() == Qt::AltModifier)
        openCalendar();
    else if (event->key() == Qt::Key_Up)
        step(1);
    else if (event->key() == Qt::Key_Down)
        step(-1);
    else
        QLineEdit::keyPressEvent(event);
}

void InstantEdit::followClock()
{
    updateGeometry();
    showInstant();
}

void InstantEdit::showInstant()
{
    m_fault = Fault::None;
    setText(m_clock.times().dateTime(m_instant));
}

void InstantEdit::readText()
{
    const TimeTexts& times = m_clock.times();
    m_fault = Fault::None;
    if (text() != times.dateTime(m_instant)) {
        const auto typed = readTypedTime(text(), times.format(), times.wallClock(m_instant));
        const qint64 instant = typed ? times.fromWallClock(*typed) : 0;
        if (!typed)
            m_fault = Fault::Unreadable;
        else if (times.wallClock(instant) != *typed)
            m_fault = Fault::Skipped;
        else
            m_instant = instant;
    }
    Q_EMIT edited();
}

// What is stepped is what the cursor stands in or behind.
void InstantEdit::step(int by)
{
    if (m_fault != Fault::None)
        return;
    const TimeTexts& times = m_clock.times();
    const QString pattern = times.format().pattern();
    const int place = std::min(cursorPosition(), int(pattern.size()));
    const bool isBehind = place == pattern.size() || !pattern[place].isLetter();
    const QDateTime shown = times.wallClock(m_instant);
    constexpr qint64 second = 1'000;
    switch (pattern[isBehind ? place - 1 : place].unicode()) {
    case u'y':
        m_instant = times.fromWallClock(shown.addYears(by));
        break;
    case u'M':
        m_instant = times.fromWallClock(shown.addMonths(by));
        break;
    case u'd':
        m_instant = times.fromWallClock(shown.addDays(by));
        break;
    case u'H':
        m_instant += by * 60 * 60 * second;
        break;
    case u'm':
        m_instant += by * 60 * second;
        break;
    default:
        m_instant += by * second;
    }
    showInstant();
    setCursorPosition(place);
    Q_EMIT edited();
}

void InstantEdit::openCalendar()
{
    const QDate date = m_clock.times().wallClock(m_instant).date();
    m_calendar->setSelectedDate(date);
    m_calendar->adjustSize();
    m_calendar->move(mapToGlobal(QPoint(0, height())));
    m_calendar->show();
    m_calendar->setFocus();
}

} // namespace Review
