// SPDX-License-Identifier: MIT
#include "testsupport.h"

#include <CorvelGui/PHeaderCheckMenu>
#include <CorvelGui/PTableWidget>
#include <CorvelGui/PTableWidgetItem>

using namespace CorvelGui;

namespace {

/// Rows "d", "b", "a", "c" with "X" and their number; one cell is missing.
class Table : public PTableWidget
{
public:
    Table() : PTableWidget(4, 3)
    {
        setHorizontalHeaderLabels({u"Name"_s, u"R&D"_s, QString()});
        const QString names = u"dbac"_s;
        for (int row = 0; row < 4; ++row) {
            setItem(row, 0, new PTableWidgetItem(names.mid(row, 1)));
            if (row != 1)
                setItem(row, 1, new PTableWidgetItem(u"X"_s));
            setItem(row, 2, new PTableWidgetItem(QString::number(row)));
        }
        resize(500, 300);
        show();
    }
    /// What is shown in the first column.
    QString names() const
    {
        QString texts;
        for (int row = 0; row < rowCount(); ++row)
            texts += isRowHidden(row) ? QString() : item(row, 0)->text();
        return texts;
    }
    QString hiddenColumns() const
    {
        QString result;
        for (int column = 0; column < columnCount(); ++column)
            result += isColumnHidden(column) ? QString::number(column) : QString();
        return result;
    }
    using PTableWidget::slotCopy;
};

QStringList texts(const QMenu& menu)
{
    QStringList result;
    for (const QAction* action : menu.actions())
        result << (action->isChecked() ? u"+"_s : u"-"_s) + action->text() +
                      (action->isEnabled() ? u""_s : u"!"_s);
    return result;
}

} // namespace

class TestTableWidget : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void copies()
    {
        Table table;
        table.selectRow(3);
        table.selectionModel()->select(table.model()->index(1, 0),
                                       QItemSelectionModel::Select | QItemSelectionModel::Rows);
        table.CopyCellToClipBoard();
        QCOMPARE(QApplication::clipboard()->text(), u"b\nc"_s);
        table.slotCopy();
        QCOMPARE(QApplication::clipboard()->text(), u"b\t\t1\t\nc\tX\t3\t\n"_s);
    }

    void deletesWidgets()
    {
        Table table;
        const QPointer<QWidget> kept = new QWidget;
        const QPointer<QPushButton> button = new QPushButton;
        table.setCellWidget(1, 0, kept);
        table.setCellWidget(1, 1, button); // in the cell without an item
        // It asks for it itself.
        connect(button, &QPushButton::clicked, &table, [&table] { table.DeleteWidgets(1); });
        button->click();
        QCOMPARE(table.cellWidget(1, 1), nullptr);
        QVERIFY(button->isHidden());
        QTRY_VERIFY(!button && kept);
    }

    void filtersAndSelectsWhatIsShown()
    {
        Table table;
        table.FilterTable(u"x"_s);
        QCOMPARE(table.names(), u"dac"_s);
        table.sortItems(0);
        QCOMPARE(table.names(), u"acd"_s);
        table.FilterTable(u"X"_s);
        QCOMPARE(table.names(), QString());
        table.selectAll();
        QCOMPARE(table.GetSelectedRows(), QList<int>());
        table.FilterTable(QString());
        QCOMPARE(table.names(), u"abcd"_s);

        QVERIFY(table.verticalHeader()->updatesEnabled());
        table.setRowHidden(1, true);
        for (const auto mode :
             {QAbstractItemView::SingleSelection, QAbstractItemView::NoSelection}) {
            table.setSelectionMode(mode);
            table.selectAll();
            QCOMPARE(table.GetSelectedRows(), QList<int>());
        }
        table.setSelectionMode(QAbstractItemView::ExtendedSelection);
        table.selectAll();
        QCOMPARE(table.GetSelectedRows(), (QList<int>{0, 2, 3}));
        // From one row to another with the mouse, downwards and upwards.
        for (const auto& [first, last] : {std::pair(0, 2), {2, 0}}) {
            for (const int row : {first, last})
                QTest::mouseClick(table.viewport(), Qt::LeftButton,
                                  row == last ? Qt::ShiftModifier : Qt::NoModifier,
                                  table.visualItemRect(table.item(row, 0)).center());
            QCOMPARE(table.GetSelectedRows(), (QList<int>{0, 2}));
        }
    }

    void selects()
    {
        Table table;
        table.ScrollToItemAndSelect(table.item(2, 1), true);
        QCOMPARE(table.GetSingleSelection(), 2);
        QVERIFY(table.item(2, 0)->isSelected());
        table.SelectFirstItemIfPossible();
        QCOMPARE(table.GetSelectedRows(), (QList<int>{0, 2}));
        QCOMPARE(table.GetSingleSelection(), -1);
        const Table other;
        for (QTableWidgetItem* item : {other.item(0, 0), static_cast<QTableWidgetItem*>(nullptr)}) {
            table.SelectFirstItemIfPossible();
            table.ScrollToItemAndSelect(item, true);
            QCOMPARE(table.GetSelectedRows(), QList<int>());
        }
        for (const auto& [behavior, cells] : {std::pair(QAbstractItemView::SelectItems, 1),
                                              {QAbstractItemView::SelectColumns, 4},
                                              {QAbstractItemView::SelectRows, 3}}) {
            table.setSelectionBehavior(behavior);
            table.ScrollToItemAndSelect(table.item(2, 1), true);
            QCOMPARE(table.selectionModel()->selectedIndexes().size(), cells);
        }
        table.ScrollToItemAndSelect(table.item(2, 1), false);
        QCOMPARE(table.GetSelectedRows(), QList<int>());
        QCOMPARE(table.GetAllTableWidgetItems().size(), 11);
        QCOMPARE(table.GetAllTableWidgetItems()[3], table.item(1, 0));
        table.item(1, 0)->setCheckState(Qt::PartiallyChecked);
        QVERIFY(!table.IsAlLeastOneSelected(0));
        table.item(2, 0)->setCheckState(Qt::Checked);
        QVERIFY(table.IsAlLeastOneSelected(0) && !table.IsAlLeastOneSelected(1));
        // What cannot be selected is not, although the selection spans it.
        for (const int column : {0, 1, 2})
            table.item(2, column)->setFlags(Qt::ItemIsEnabled);
        table.selectAll();
        QCOMPARE(table.GetSelectedRows(), (QList<int>{0, 1, 3}));
    }

    void measures()
    {
        Table table;
        table.horizontalHeader()->setFixedHeight(25);
        table.setRowHeight(0, 50);
        table.setRowHidden(2, true);
        QCOMPARE(table.CalcNeededHeight(), 50 + 2 * table.rowHeight(3) + 25 + 16);
        table.item(0, 0)->setText(u"a long text that needs space"_s);
        const int last = table.columnWidth(2);
        const int width = table.GetMaxTextWidth({table.item(1, 0), nullptr, table.item(0, 0)});
        table.resizeAllColumnToContentsWithOffset(20);
        QVERIFY(table.columnWidth(0) > width + 20);
        QCOMPARE(table.columnWidth(2), last);
        const int fitted = table.columnWidth(0);
        table.setColumnHidden(1, true);
        for (const int column : {-1, 1, 3})
            table.resizeColumnToContentsWithOffset(column, 30);
        table.setColumnHidden(1, false);
        QCOMPARE(table.columnWidth(1), table.horizontalHeader()->sectionSizeHint(1) + 20);
        table.resizeColumnToContentsWithOffset(0, -fitted);
        QCOMPARE(table.columnWidth(0), 0);
        table.setFontForHeaderBold();
        table.setHeaderTextAlignmentCenter();
        QVERIFY(table.horizontalHeader()->font().bold());
        QCOMPARE(table.horizontalHeader()->defaultAlignment(), Qt::AlignCenter);
    }

    void headerMenu()
    {
        Table table;
        auto* menu = new PHeaderCheckMenu(table.horizontalHeader());
        QSignalSpy toggled(menu, &PHeaderCheckMenu::columnToggled);
        table.horizontalHeader()->moveSection(0, 2);
        table.setColumnHidden(2, true);
        const auto open = [&] {
            Q_EMIT table.horizontalHeader()->customContextMenuRequested({5, 5});
            return menu->isVisible();
        };
        const auto choose = [&](int place) {
            menu->setActiveAction(menu->actions().at(place));
            QTest::keyClick(menu, Qt::Key_Return);
        };
        QVERIFY(open());
        QCOMPARE(texts(*menu), (QStringList{u"+R&&D"_s, u"-Column 3"_s, u"+Name"_s}));
        choose(2);
        QVERIFY(table.isColumnHidden(0));
        QCOMPARE(toggled.takeFirst(), (QVariantList{0, false}));
        QVERIFY(open());
        QCOMPARE(texts(*menu), (QStringList{u"+R&&D!"_s, u"-Column 3"_s, u"-Name"_s}));
        choose(1);
        QVERIFY(!table.isColumnHidden(2));
        menu->setColumnVisible(2, false);
        menu->setColumnVisible(1, false);
        menu->setColumnVisible(7, false);
        QVERIFY(!table.isColumnHidden(1));
        QCOMPARE(toggled.count(), 1);

        // Outlives its header, also while it is open.
        auto gone = std::make_unique<Table>();
        PHeaderCheckMenu orphan(gone->horizontalHeader(), &table);
        Q_EMIT gone->horizontalHeader()->customContextMenuRequested({5, 5});
        gone.reset();
        orphan.actions().constFirst()->trigger();
        orphan.popup({});
        QVERIFY(orphan.isEmpty());
        QSettings nothing;
        orphan.setColumnVisible(0, true);
        orphan.writeUserSettings(nothing);
        orphan.readUserSettings(nothing);
    }

    void headerMenuState()
    {
        const QTemporaryDir folder;
        // Of a table whose second column is hidden.
        const auto hiddenAfterReading = [](QSettings& settings) {
            Table table;
            table.setColumnHidden(1, true);
            PHeaderCheckMenu(table.horizontalHeader()).readUserSettings(settings);
            return table.hiddenColumns();
        };
        QSettings settings(folder.filePath(u"state.ini"_s), QSettings::IniFormat);
        QCOMPARE(hiddenAfterReading(settings), u"1"_s);
        for (const QString& columns : {u"02"_s, u""_s}) {
            Table written;
            for (const QChar column : columns)
                written.setColumnHidden(column.digitValue(), true);
            PHeaderCheckMenu(written.horizontalHeader()).writeUserSettings(settings);
            settings.sync();
            QSettings read(settings.fileName(), QSettings::IniFormat);
            QCOMPARE(hiddenAfterReading(read), columns);
        }
        const std::pair<QVariant, QString> damaged[] = {
            {u"2,9,-1,x"_s, u"2"_s}, {u"2,1,0"_s, u"12"_s}, {QByteArray(9, '\xff'), QString()}};
        for (const auto& [value, expected] : damaged) {
            settings.setValue(u"HiddenColumns"_s, value);
            QCOMPARE(hiddenAfterReading(settings), expected);
        }
    }
};

QTEST_MAIN(TestTableWidget)
#include "tst_tablewidget.moc"
