// SPDX-License-Identifier: MIT
#include "momententry.h"

#include "base/entrywidth.h"
#include "localmoments.h"
#include "pdateedit.h"

#include <QAccessible>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QScopedValueRollback>

#include <initializer_list>

namespace CorvelGui {

namespace {

/// A part that is full moves on to the next by itself: the separator behind it has been passed
/// then.
bool isPassedSeparator(const QDateTimeEdit& edit, const QKeyEvent& event)
{
    const auto* line = edit.findChild<QLineEdit*>();
    const int place = line->hasSelectedText() ? line->selectionStart() : line->cursorPosition();
    return event.text().size() == 1 && !event.text()[0].isLetterOrNumber() && place > 0 &&
           line->text()[place - 1] == event.text()[0];
}

} // namespace

MomentLimits MomentLimits::between(const QDateTime& one, const QDateTime& other)
{
    const bool isReversed = one.isValid() && other.isValid() && other < one;
    return isReversed ? MomentLimits{other, one} : MomentLimits{one, other};
}

QDateTime MomentLimits::nearest(const QDateTime& moment) const
{
    if (earliest.isValid() && moment < earliest)
        return earliest;
    return latest.isValid() && moment > latest ? latest : moment;
}

MomentEntry::MomentEntry(const Controls& controls, QObject* parent)
    : QObject(parent), m_controls(controls)
{
    for (QDateTimeEdit* edit :
         std::initializer_list<QDateTimeEdit*>{controls.date, controls.time}) {
        edit->installEventFilter(this);
        connect(edit, &QDateTimeEdit::dateTimeChanged, this, &MomentEntry::takeEntry);
    }
    keepRoomForEntries(*controls.occurrence);
    connect(controls.occurrence, &QComboBox::activated, this, &MomentEntry::edited);
}

void MomentEntry::setMoment(const QDateTime& moment)
{
    {
        // Between the two, they show a moment that nobody means.
        const QScopedValueRollback setting(m_isSetting, true);
        m_controls.date->setTodayZone(moment.timeZone());
        // The edits count in UTC, where every date and time exists.
        m_controls.date->setDate(moment.date());
        m_controls.time->setTime(moment.time());
    }
    m_zone = moment;
    m_moments.clear();
    findMoments();
}

QDateTime MomentEntry::moment() const
{
    if (!isWithinLimits())
        return {};
    if (m_moments.size() < 2)
        return m_moments.value(0);
    return m_moments.value(m_controls.occurrence->currentIndex());
}

void MomentEntry::setLimits(const MomentLimits& limits)
{
    m_limits = limits;
    findMoments();
}

void MomentEntry::explain()
{
    const bool isTwice = m_moments.size() == 2 && isWithinLimits();
    const QString text = explanation();
    QLabel* note = m_controls.note;
    note->setText(text);
    note->setVisible(!text.isEmpty());

    QComboBox* occurrence = m_controls.occurrence;
    const int chosen = occurrence->currentIndex();
    occurrence->clear();
    if (isTwice) {
        occurrence->addItem(tr("The first (%1)").arg(clockOffset(m_moments.at(0))));
        occurrence->addItem(tr("The second (%1)").arg(clockOffset(m_moments.at(1))));
        occurrence->setCurrentIndex(chosen);
    }
    occurrence->setVisible(isTwice);
    if (!text.isEmpty() && note->isVisible()) {
        QAccessibleEvent alert(note, QAccessible::Alert);
        QAccessible::updateAccessibility(&alert);
    }
}

bool MomentEntry::eventFilter(QObject* watched, QEvent* event)
{
    return event->type() == QEvent::KeyPress &&
           isPassedSeparator(*static_cast<QDateTimeEdit*>(watched),
                             *static_cast<QKeyEvent*>(event));
}

void MomentEntry::takeEntry()
{
    if (m_isSetting)
        return;
    findMoments();
    Q_EMIT edited();
}

void MomentEntry::findMoments()
{
    const bool chosenBefore = m_moments.size() == 2;
    m_moments = localMoments(m_controls.date->date(), m_controls.time->time(), m_zone);
    const int chosen = chosenBefore ? m_controls.occurrence->currentIndex()
                                    : int(m_moments.size() == 2 && m_moments.at(1) == m_zone);
    explain();
    m_controls.occurrence->setCurrentIndex(chosen);
}

bool MomentEntry::isWithinLimits() const
{
    const auto& [earliest, latest] = m_limits;
    return m_moments.isEmpty() || ((!earliest.isValid() || m_moments.last() >= earliest) &&
                                   (!latest.isValid() || m_moments.first() <= latest));
}

// Empty for what needs no explanation.
QString MomentEntry::explanation() const
{
    if (!isWithinLimits()) {
        const QString format =
            m_controls.date->displayFormat() + u' ' + m_controls.time->displayFormat();
        const auto text = [&](const QDateTime& moment) {
            QDateTime onClock = m_zone;
            onClock.setMSecsSinceEpoch(moment.toMSecsSinceEpoch());
            return moment.isValid() ? onClock.toString(format) : QString();
        };
        return tr("There is nothing at this time. Choose one from %1 to %2.")
            .arg(text(m_limits.earliest), text(m_limits.latest));
    }
    if (m_moments.isEmpty())
        return tr("The clocks are put forward here, so this time does not exist.");
    if (m_moments.size() == 2)
        return tr("The clocks are put back here, so this time comes twice. Choose one:");
    return {};
}

} // namespace CorvelGui
