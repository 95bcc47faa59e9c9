// SPDX-License-Identifier: MIT
#include "tablepage.h"

#include <CorvelGui/FilterLineEdit>
#include <CorvelGui/PDeviceItem>
#include <CorvelGui/PHeaderCheckMenu>
#include <CorvelGui/PIpItem>
#include <CorvelGui/PNetworkItemDelegate>
#include <CorvelGui/PSerialNumberItem>
#include <CorvelGui/PStatusItem>
#include <CorvelGui/PTableWidget>

#include <QEvent>
#include <QGridLayout>
#include <QHeaderView>
#include <QIntValidator>
#include <QLabel>
#include <QPushButton>

#include <iterator>

using namespace CorvelGui;
using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

enum Column { Device, Address, Port, SerialNumber, Status, ColumnCount };

/// The editor in a cell stays open for the picture, with an entry that is not complete.
void editCell(PTableWidget* table, int row, int column, const QString& text)
{
    table->openPersistentEditor(table->item(row, column));
    for (auto* editor : table->viewport()->findChildren<QLineEdit*>()) {
        if (table->indexAt(editor->geometry().center()) == table->model()->index(row, column))
            editor->setText(text);
    }
}

} // namespace

TablePage::TablePage(QWidget* parent) : QWidget(parent)
{
    m_devices = new PTableWidget(0, ColumnCount);
    m_devices->setAccessibleName(tr("Devices"));
    m_devices->setHorizontalHeaderLabels(
        {tr("Device"), tr("IP address"), tr("Port"), tr("Serial number"), tr("Status")});
    m_devices->setAlternatingRowColors(true);
    m_devices->verticalHeader()->hide();
    m_devices->horizontalHeader()->setStretchLastSection(true);
    m_devices->InitCopyMenus(true);
    m_devices->setFontForHeaderBold();
    m_devices->setMinimumWidth(720);

    auto* portDelegate = new PLineEditDelegate(m_devices);
    portDelegate->setValidator(new QIntValidator(1, 65535, portDelegate));
    m_devices->setItemDelegateForColumn(Port, portDelegate);
    m_devices->setItemDelegateForColumn(Address, new PNetworkItemDelegate(m_devices));
    auto* columnMenu = new PHeaderCheckMenu(m_devices->horizontalHeader());

    auto* filter = new FilterLineEdit;
    filter->setAccessibleName(tr("Filter"));
    connect(filter, &QLineEdit::textChanged, m_devices,
            [this](const QString& text) { m_devices->FilterTable(text.toLower()); });
    auto* columns = new QPushButton(tr("Columns"));
    columns->setMenu(columnMenu);
    auto* exporting = new QPushButton(tr("Export…"));
    connect(exporting, &QPushButton::clicked, m_devices, &PTableWidget::CsvExport);

    // A menu is a window of its own; here one stands still to be looked at.
    auto* openMenu = new PHeaderCheckMenu(m_devices->horizontalHeader(), this);
    openMenu->setWindowFlags(Qt::Widget);
    Q_EMIT openMenu->aboutToShow();

    auto* grid = new QGridLayout(this);
    grid->addWidget(filter, 0, 0);
    grid->addWidget(columns, 0, 1);
    grid->addWidget(exporting, 0, 2);
    grid->addWidget(m_devices, 1, 0, 1, 3);
    grid->addWidget(new QLabel(tr("The menu of the header:")), 2, 0);
    grid->addWidget(openMenu, 3, 0, Qt::AlignLeft);
    grid->setColumnStretch(0, 1);
    grid->setRowStretch(4, 1);
    fill();
    m_devices->setColumnHidden(SerialNumber, true);
    Q_EMIT openMenu->aboutToShow();
}

void TablePage::fill()
{
    const struct
    {
        QString name;
        QString address;
        QString serialNumber;
        QString failure;
    } devices[] = {
        {u"Entrance north"_s, u"10.0.0.10"_s, u"CX-1041"_s, {}},
        {u"Entrance south"_s, u"10.0.0.2"_s, u"CX-1042"_s, {}},
        {u"Car park"_s, u"9.255.255.255"_s, u"CX-0007"_s, tr("No connection")},
        {u"Loading bay"_s, u"10.0.0.11"_s, u"CX-1107"_s, {}},
        {u"Roof"_s, u"10.0.0.12"_s, u"CX-1108"_s, {}},
    };
    m_devices->setRowCount(0);
    m_devices->setRowCount(int(std::size(devices)));
    int row = 0;
    for (const auto& device : devices) {
        auto* name = new PDeviceItem(device.name);
        name->setCheckState(row % 2 ? Qt::Unchecked : Qt::Checked);
        m_devices->setItem(row, Device, name);
        m_devices->setItem(row, Address, new PIpItem(device.address));
        m_devices->setItem(row, Port, new PTableWidgetItem(u"443"_s));
        m_devices->setItem(row, SerialNumber, new PSerialNumberItem(device.serialNumber));
        auto* status = new PStatusItem;
        status->AddStatusSystemUpTime(u"12:04:31"_s);
        if (!device.failure.isEmpty())
            status->AddRedStatus(device.failure);
        m_devices->setItem(row, Status, status);
        ++row;
    }
    m_devices->sortItems(Address);
    m_devices->resizeAllColumnToContentsWithOffset(20);
    m_devices->ScrollToItemAndSelect(m_devices->item(1, Device), true);
    editCell(m_devices, 3, Address, u"10.0."_s);
    editCell(m_devices, 3, Port, u"8443"_s);
    m_devices->setFixedHeight(m_devices->CalcNeededHeight());
}

void TablePage::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    // The colours of the look are stored with the cells.
    if (event->type() == QEvent::StyleChange)
        fill();
}

} // namespace Gallery
