// SPDX-License-Identifier: MIT
#include "timepage.h"

#include "look/zonecombo.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QLabel>

using namespace Qt::StringLiterals;

namespace Review {

TimePage::TimePage(SettingsStore& store) : ClientPage(store, u"display"_s, u"time"_s)
{
    retranslate();
}

void TimePage::build(QFormLayout& form)
{
    m_zone = new ZoneCombo(QString());
    m_zoneLabel = addRow(form, m_zone);

    m_order = new QComboBox;
    // The formats explain themselves by a date that cannot be taken for another.
    const QDateTime example(QDate(2026, 3, 31), QTime(14, 5, 9));
    for (const TimeFormat::Order order :
         {TimeFormat::Order::DayFirst, TimeFormat::Order::YearFirst, TimeFormat::Order::MonthFirst})
        m_order->addItem(example.toString(TimeFormat{.order = order}.pattern()), int(order));
    m_orderLabel = addRow(form, m_order);

    m_milliseconds = new QCheckBox;
    form.addRow(QString(), m_milliseconds);
}

void TimePage::show(const ReviewSettings& settings)
{
    m_zone->setZone(settings.zone);
    m_order->setCurrentIndex(m_order->findData(int(settings.timeFormat.order)));
    m_milliseconds->setChecked(settings.timeFormat.milliseconds);
}

void TimePage::take(ReviewSettings& settings) const
{
    settings.zone = m_zone->zone();
    settings.timeFormat = {.order = TimeFormat::Order(m_order->currentData().toInt()),
                           .milliseconds = m_milliseconds->isChecked()};
}

QString TimePage::pageName() const
{
    return tr("Time");
}

QString TimePage::categoryName() const
{
    return tr("Display");
}

void TimePage::retranslateFields()
{
    m_zoneLabel->setText(tr("Time &zone:"));
    m_orderLabel->setText(tr("&Date and time:"));
    m_milliseconds->setText(tr("Show &milliseconds of single moments"));
}

} // namespace Review
