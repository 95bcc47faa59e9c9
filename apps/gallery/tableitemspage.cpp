// SPDX-License-Identifier: MIT
#include "tableitemspage.h"

#include <CorvelGui/PDeviceItem>
#include <CorvelGui/PFirmwareVersionItem>
#include <CorvelGui/PIpItem>
#include <CorvelGui/PPathItem>
#include <CorvelGui/PSerialNumberItem>
#include <CorvelGui/PStatusItem>
#include <CorvelGui/PTextWidgetItem>

#include <QEvent>
#include <QHeaderView>
#include <QTableWidget>
#include <QVBoxLayout>

using namespace CorvelGui;
using namespace Qt::StringLiterals;

namespace Gallery {

TableItemsPage::TableItemsPage(QWidget* parent) : QWidget(parent), m_table(new QTableWidget)
{
    m_table->setAlternatingRowColors(true);
    m_table->verticalHeader()->hide();
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_table);
    fill();
}

// The colours are stored with the texts, so the cells are made anew for another look.
void TableItemsPage::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::StyleChange)
        fill();
}

void TableItemsPage::fill()
{
    m_table->setSortingEnabled(false);
    m_table->clear();
    m_table->setColumnCount(7);
    m_table->setHorizontalHeaderLabels({u"Device"_s, u"Address"_s, u"Serial number"_s,
                                        u"Software"_s, u"Group"_s, u"Status"_s, u"Remark"_s});
    const QString addresses[] = {u"10.0.0.2"_s, u"10.0.0.10"_s, u"9.255.255.255"_s,
                                 u"not known yet"_s, u"192.168.1.20"_s};
    m_table->setRowCount(int(std::size(addresses)));
    int row = 0;
    for (const QString& address : addresses) {
        auto* status = new PStatusItem;
        if (row % 2 == 0)
            status->AddMaintenanceInfo(u"2027-01-31"_s, u"14"_s);
        if (row == 3)
            status->AddRedStatus(u"No connection"_s);
        else
            status->AddStatusSystemUpTime(u"%1 days"_s.arg(3 + row));
        auto* remark = new PTextWidgetItem;
        if (row == 1)
            remark->SetRedText(u"<b>Disk nearly full</b>"_s);
        else
            remark->SetNormalText(u"Checked"_s);
        QTableWidgetItem* const cells[] = {new PDeviceItem(u"Camera %1"_s.arg(row + 1)),
                                           new PIpItem(address),
                                           new PSerialNumberItem(u"SN-%1"_s.arg(4711 + row)),
                                           new PFirmwareVersionItem(u"5.2.%1"_s.arg(row)),
                                           new PPathItem(u"Brussels/North"_s),
                                           status,
                                           remark};
        int column = 0;
        for (QTableWidgetItem* cell : cells)
            m_table->setItem(row, column++, cell);
        ++row;
    }
    m_table->sortByColumn(1, Qt::AscendingOrder);
    m_table->setSortingEnabled(true);
    m_table->resizeColumnsToContents();
}

} // namespace Gallery
