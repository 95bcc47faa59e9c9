// SPDX-License-Identifier: MIT
#include "datespage.h"

#include <CorvelGui/PDateEdit>
#include <CorvelGui/PDateTimeSelectionDialog>
#include <CorvelGui/PInputDateTimeWithRange>

#include <QCheckBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QTimeEdit>
#include <QVBoxLayout>

using CorvelGui::PDateEdit;
using CorvelGui::PDateTimeSelectionDialog;
using CorvelGui::PInputDateTimeWithRange;
using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

QTimeZone newYork()
{
    return QTimeZone("America/New_York");
}

QDateTime inNewYork(const QString& utc)
{
    return QDateTime::fromString(utc, Qt::ISODate).toTimeZone(newYork());
}

QFormLayout* createDateGroup(const QString& title, QLayout* page)
{
    auto* group = new QGroupBox(title);
    auto* form = new QFormLayout(group);
    form->setVerticalSpacing(10);
    page->addWidget(group);
    return form;
}

QWidget* addDates(QLayout* page)
{
    QFormLayout* form = createDateGroup(DatesPage::tr("Date"), page);
    form->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
    auto* date = new PDateEdit;
    auto* optional = new PDateEdit;
    optional->setEmptyAllowed(true);
    optional->setChosenDate({});
    auto* isAllowed = new QCheckBox(DatesPage::tr("May be empty"));
    isAllowed->setChecked(true);
    QObject::connect(isAllowed, &QCheckBox::toggled, optional, &PDateEdit::setEmptyAllowed);
    auto* chosen = new QLabel(DatesPage::tr("none"));
    QObject::connect(optional, &PDateEdit::chosenDateChanged, chosen, [chosen](QDate day) {
        chosen->setText(day.isValid() ? QLocale().toString(day) : DatesPage::tr("none"));
    });
    auto* limited = new PDateEdit;
    limited->setDateRange(QDate::currentDate().addDays(-7), QDate::currentDate());
    auto* disabled = new PDateEdit;
    disabled->setEnabled(false);
    form->addRow(DatesPage::tr("Plain"), date);
    form->addRow(DatesPage::tr("None yet"), optional);
    form->addRow(QString(), isAllowed);
    form->addRow(DatesPage::tr("Chosen"), chosen);
    form->addRow(DatesPage::tr("Of the last week"), limited);
    form->addRow(DatesPage::tr("Disabled"), disabled);
    return date;
}

// As clients show it, but on the page, without the buttons taking it off.
PDateTimeSelectionDialog* addDialog(const QString& title, QWidget* parent, QLayout* page)
{
    auto* group = new QGroupBox(title);
    auto* dialog = new PDateTimeSelectionDialog(parent);
    dialog->setWindowFlags(Qt::Widget);
    QObject::connect(dialog, &QDialog::finished, dialog, &QWidget::show);
    (new QVBoxLayout(group))->addWidget(dialog);
    page->addWidget(group);
    return dialog;
}

void addRanges(QLayout* page)
{
    QFormLayout* form = createDateGroup(DatesPage::tr("Range"), page);
    auto* range = new PInputDateTimeWithRange(nullptr);
    auto* length = new QLabel;
    const auto showLength = [=] {
        length->setText(DatesPage::tr("%1 minutes").arg(range->from().secsTo(range->to()) / 60));
    };
    QObject::connect(range, &PInputDateTimeWithRange::rangeChanged, length, showLength);
    showLength();
    // The second end is in the hour that comes twice.
    auto* twice = new PInputDateTimeWithRange(nullptr);
    twice->setTimeZone(newYork());
    twice->setRange(inNewYork(u"2026-10-31T12:00:00Z"_s), inNewYork(u"2026-11-01T06:30:00Z"_s));
    auto* disabled = new PInputDateTimeWithRange(nullptr);
    disabled->setEnabled(false);
    form->addRow(DatesPage::tr("Here"), range);
    form->addRow(DatesPage::tr("Length"), length);
    form->addRow(DatesPage::tr("In New York"), twice);
    form->addRow(DatesPage::tr("Disabled"), disabled);
}

} // namespace

DatesPage::DatesPage(QWidget* parent) : QWidget(parent)
{
    auto* layout = new QVBoxLayout(this);
    auto* columns = new QHBoxLayout;
    layout->addLayout(columns);
    m_focused = addDates(columns);

    auto* skipped = addDialog(tr("A time that is skipped"), this, columns);
    skipped->setDateTime(inNewYork(u"2026-03-08T12:30:00Z"_s));
    skipped->findChild<QTimeEdit*>()->setTime(QTime(2, 30));

    auto* limited = addDialog(tr("With limits"), this, columns);
    limited->setDateTime(inNewYork(u"2026-08-18T12:30:00Z"_s));
    limited->setLimits(inNewYork(u"2026-08-01T04:00:00Z"_s), inNewYork(u"2026-08-15T04:00:00Z"_s));

    auto* open = new QPushButton(tr("&Choose a moment…"));
    connect(open, &QPushButton::clicked, this, [this] {
        auto* dialog = new PDateTimeSelectionDialog(this);
        dialog->setAttribute(Qt::WA_DeleteOnClose);
        dialog->open();
    });
    layout->addWidget(open, 0, Qt::AlignLeft);
    addRanges(layout);
    layout->addStretch();
}

void DatesPage::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    m_focused->setFocus(Qt::TabFocusReason);
}

} // namespace Gallery
