// SPDX-License-Identifier: MIT
#include "scenes.h"
#include "sheet.h"
#include "testsupport.h"

#include <CorvelGui/PDeviceItem>
#include <CorvelGui/PFirmwareVersionItem>
#include <CorvelGui/PHeaderCheckMenu>
#include <CorvelGui/PIpItem>
#include <CorvelGui/PNetworkItemDelegate>
#include <CorvelGui/PPathItem>
#include <CorvelGui/PSerialNumberItem>
#include <CorvelGui/PStatusItem>
#include <CorvelGui/PTabWidget>
#include <CorvelGui/PTableWidget>
#include <CorvelGui/PTextWidgetItem>
#include <CorvelGui/PTreeWidget>
#include <CorvelGui/PTreeWidgetItem>

#include <QIntValidator>

using namespace CorvelGui;

namespace {

PTableWidget* devices()
{
    auto* table = new PTableWidget(3, 7);
    table->setHorizontalHeaderLabels({u"Device"_s, u"Address"_s, u"Serial"_s, u"Software"_s,
                                      u"Group"_s, u"Status"_s, u"Remark"_s});
    table->verticalHeader()->hide();
    table->setAlternatingRowColors(true);
    table->setFontForHeaderBold();
    for (int row = 0; row < 3; ++row) {
        auto* device = new PDeviceItem(u"Camera %1"_s.arg(row));
        device->setCheckState(row % 2 ? Qt::Unchecked : Qt::Checked);
        auto* status = new PStatusItem;
        if (row == 0)
            status->AddMaintenanceInfo(u"2027-01-31"_s, u"14"_s);
        if (row == 2)
            status->AddRedStatus(u"No connection"_s);
        else
            status->AddStatusSystemUpTime(u"4 days"_s);
        auto* remark = new PTextWidgetItem;
        if (row == 1)
            remark->SetRedText(u"Disk full"_s);
        else
            remark->SetNormalText(u"Checked"_s);
        QTableWidgetItem* const cells[] = {device,
                                           new PIpItem(u"10.0.0.%1"_s.arg(row)),
                                           new PSerialNumberItem(u"SN-%1"_s.arg(row)),
                                           new PFirmwareVersionItem(u"5.2.%1"_s.arg(row)),
                                           new PPathItem(u"Brussels/North"_s),
                                           status,
                                           remark};
        int column = 0;
        for (QTableWidgetItem* cell : cells)
            table->setItem(row, column++, cell);
    }
    return table;
}

PTreeWidget* sites()
{
    auto* tree = new PTreeWidget;
    tree->setHeaderLabels({u"Device"_s, u"State"_s});
    tree->setAlternatingRowColors(true);
    auto* site = new PTreeWidgetItem;
    site->setBoldText(0, u"Brussels"_s);
    tree->addTopLevelItem(site);
    using Mark = void (PTreeWidgetItem::*)(int, bool);
    for (const Mark mark : {&PTreeWidgetItem::setGreen, &PTreeWidgetItem::setRed,
                            &PTreeWidgetItem::setBlue, &PTreeWidgetItem::setOrange}) {
        auto* camera = new PTreeWidgetItem(site);
        camera->setText(0, u"Gate"_s);
        camera->setText(1, u"Recording"_s);
        camera->setCheckable();
        camera->setChecked(0, site->childCount() % 2);
        (camera->*mark)(1, site->childCount() > 2);
    }
    site->setExpanded(true);
    tree->resizeAllColumnToContentsWithOffset(20);
    return tree;
}

} // namespace

void Scenes::lists(Sheet& sheet)
{
    PTableWidget* table = devices();
    table->resizeAllColumnToContentsWithOffset(5);
    sheet.show(u"table"_s, table, {470, 110}, [](PTableWidget& shown) { shown.selectRow(1); });
    PTableWidget* last = devices();
    for (int column = 0; column < 5; ++column)
        last->setColumnHidden(column, true);
    last->resizeAllColumnToContentsWithOffset(5);
    sheet.show(u"status and remark"_s, last, {300, 130});
    PTableWidget* edited = devices();
    edited->setItemDelegateForColumn(1, new PNetworkItemDelegate(edited));
    auto* numbers = new PLineEditDelegate(edited);
    numbers->setValidator(new QIntValidator(1, 65535, numbers));
    edited->setItemDelegateForColumn(2, numbers);
    sheet.show(u"edited cells"_s, edited, {320, 110}, [](PTableWidget& shown) {
        for (const int column : {1, 2}) {
            shown.openPersistentEditor(shown.item(1, column));
            auto* editor = shown.viewport()->findChildren<QLineEdit*>().constLast();
            editor->setText(u"10"_s);
        }
        shown.horizontalHeader()->setFocus();
    });
    PTableWidget* filtered = devices();
    auto* columns = new PHeaderCheckMenu(filtered->horizontalHeader());
    sheet.show(u"filtered"_s, filtered, {200, 110}, [](PTableWidget& shown) {
        shown.setColumnHidden(1, true);
        shown.FilterTable(u"camera 1"_s);
    });
    Q_UNUSED(columns)
    sheet.show(u"tree"_s, sites(), {230, 140});
    sheet.show(u"tree with a centred header"_s, sites(), {230, 140}, [](PTreeWidget& tree) {
        tree.setHeaderTextAlignmentCenter();
        tree.setFontForHeaderBold();
        tree.ScrollToItemAndSelect(tree.topLevelItem(0)->child(2), true);
    });
    auto* owner = new QTableWidget(1, 3);
    owner->setHorizontalHeaderLabels({u"Device"_s, u"Address"_s, u"Port"_s});
    owner->setColumnHidden(1, true);
    auto* menu = new PHeaderCheckMenu(owner->horizontalHeader());
    menu->setWindowFlags(Qt::Widget);
    Q_EMIT menu->aboutToShow();
    sheet.show(u"menu of a header"_s, menu);
    delete owner;
}

void Scenes::tabs(Sheet& sheet)
{
    const auto show = [&sheet](const QString& name, bool isClosable, Qt::LayoutDirection direction,
                               const auto&... acts) {
        auto* tabs = new PTabWidget;
        tabs->setTabsClosable(isClosable);
        tabs->setLayoutDirection(direction);
        for (const QString& title : {u"Overview"_s, u"R&&D entrance"_s, u"Roof"_s})
            tabs->addTab(new QWidget, title);
        tabs->setCurrentIndex(1);
        sheet.show(name, tabs, {470, 60}, acts...);
    };
    show(u"tabs"_s, true, Qt::LeftToRight);
    show(u"focus"_s, true, Qt::LeftToRight, [](PTabWidget& tabs) { focus(*tabs.tabBar()); });
    show(u"renamed"_s, true, Qt::LeftToRight, [](PTabWidget& tabs) { tabs.editTabName(1); });
    show(u"fixed"_s, false, Qt::LeftToRight,
         [](PTabWidget& tabs) { tabs.setTabEnabled(0, false); });
    show(u"mirrored"_s, true, Qt::RightToLeft);
}
