// SPDX-License-Identifier: MIT
#include "testsupport.h"

#include <CorvelGui/PCsvDialog>
#include <CorvelGui/PTreeWidget>
#include <CorvelGui/PTreeWidgetItem>
#include <Hueloft/POrvGuiTheme>

#include <QAction>
#include <QMenu>

using namespace CorvelGui;
using Hueloft::POrvGuiTheme;

namespace {

class ToolTipItem : public PTreeWidgetItem
{
protected:
    QVariant ToolTipRequested() const override { return u"the row"_s; }
};

/// A with A1 (with A11) and A2; B with B1; C without children. Second column: the name twice.
class Tree : public PTreeWidget
{
public:
    Tree()
    {
        setHeaderLabels({u"Name"_s, u"Twice"_s, u"Last"_s});
        setSelectionMode(ExtendedSelection);
        for (const auto& name : {u"A"_s, u"B"_s, u"C"_s, u"A1"_s, u"A2"_s, u"A11"_s, u"B1"_s}) {
            auto* item = new PTreeWidgetItem;
            const QStringList texts{name, name + name, u"last"_s};
            for (int column = 0; column < 3; ++column)
                item->setText(column, texts[column]);
            if (name.size() == 1)
                addTopLevelItem(item);
            else
                find(name.chopped(1))->addChild(item);
        }
        resize(400, 300);
        show();
    }

    PTreeWidgetItem* find(const QString& name) const
    {
        const auto items = findItems(name, Qt::MatchExactly | Qt::MatchRecursive);
        return static_cast<PTreeWidgetItem*>(items.value(0));
    }
    template <typename Predicate>
    QString names(Predicate&& predicate) const
    {
        QStringList result;
        for (const QTreeWidgetItem* item : GetAllTreeWidgetItems())
            if (std::invoke(predicate, item))
                result << item->text(0);
        return result.join(u' ');
    }
    QString selected() const { return names(&QTreeWidgetItem::isSelected); }
    QString open() const { return names(&QTreeWidgetItem::isExpanded); }
    using PTreeWidget::CanCollapseChild;
    using PTreeWidget::CanExpandChild;
    using PTreeWidget::deleteAllTopLevelItems;
    using PTreeWidget::ExpandCollapseChild;
    using PTreeWidget::slotContextMenuHeader;
    using PTreeWidget::slotCopy;

    int drags = 0;

protected:
    void CreateDragData() override { ++drags; }
};

} // namespace

class TestTreeWidget : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void copies()
    {
        Tree tree;
        for (const QString& name : {u"C"_s, u"A11"_s, u"B"_s})
            tree.find(name)->setSelected(true);
        tree.find(u"B"_s)->setHidden(true);
        tree.setColumnHidden(2, true);
        const auto copied = [&tree](bool rows) {
            rows ? tree.slotCopy() : tree.CopyCellToClipBoard();
            return QApplication::clipboard()->text();
        };
        QCOMPARE(copied(true), u"A11\tA11A11\tlast\t\nB\tBB\tlast\t\nC\tCC\tlast\t\n"_s);
        QCOMPARE(copied(false), u"A11\nB\nC"_s);
        tree.setCurrentItem(tree.find(u"A"_s), 1, QItemSelectionModel::NoUpdate);
        QCOMPARE(copied(false), u"A11A11\nBB\nCC"_s);
        tree.clearSelection();
        QCOMPARE(copied(true), QString());

        whenShown<PCsvDialog>(&tree, [](PCsvDialog& dialog) {
            QCOMPARE(dialog.findChild<QListWidget*>()->item(1)->text(), u"Twice"_s);
            dialog.reject();
        });
        tree.CsvExport();
        QCOMPARE(tree.findChild<PCsvDialog*>(), nullptr);
    }

    void contextMenu()
    {
        Tree unconnected;
        unconnected.InitCopyMenus(false);
        QCOMPARE(unconnected.contextMenuPolicy(), Qt::DefaultContextMenu);
        Tree tree;
        tree.slotContextMenuHeader({}); // nothing yet
        tree.InitCopyMenus(true);
        tree.find(u"A"_s)->setSelected(true);
        for (const auto& [place, copied] : {std::pair(1, u"A"_s), {0, u"A\tAA\tlast\t\n"_s}}) {
            QStringList seen;
            QTimer::singleShot(0, &tree, [&seen, chosen = place] {
                auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
                for (const QAction* action : menu->actions())
                    seen << action->text() + u' ' + action->shortcut().toString() +
                                (action->statusTip().isEmpty() || action->icon().isNull() ? u"?"_s
                                                                                          : u""_s);
                menu->setActiveAction(menu->actions().at(chosen));
                QTest::keyClick(menu, Qt::Key_Return);
            });
            if (place == 1)
                Q_EMIT tree.customContextMenuRequested({5, 5});
            else
                tree.slotContextMenuHeader({5, 5});
            QCOMPARE(seen, (QStringList{u"Copy Ctrl+Shift+C"_s, u"Copy (Cell) Ctrl+C"_s}));
            QCOMPARE(QApplication::clipboard()->text(), copied);
        }
        QVERIFY(tree.findChildren<QMenu*>().isEmpty() && tree.actions().isEmpty());
    }

    void selects()
    {
        Tree tree;
        tree.ScrollToItemAndSelect(tree.find(u"A11"_s), true);
        QCOMPARE(tree.GetSingleSelection(), tree.find(u"A11"_s));
        tree.SelectFirstItemIfPossible();
        QCOMPARE(tree.selected(), u"A A11"_s);
        QCOMPARE(tree.GetSingleSelection(), nullptr);
        tree.ScrollToItemAndSelect(tree.find(u"B"_s), false);
        QCOMPARE(tree.selected(), QString());

        // All that is shown.
        tree.collapseAll();
        tree.find(u"A"_s)->setExpanded(true);
        tree.find(u"A1"_s)->setHidden(true);
        tree.selectAll();
        QCOMPARE(tree.selected(), u"A A2 B C"_s);

        tree.find(u"A11"_s)->setCheckState(1, Qt::PartiallyChecked);
        QVERIFY(!tree.find(u"A11"_s)->isChecked(1) && !tree.IsAlLeastOneSelected(1));
        tree.find(u"A11"_s)->setChecked(1, true);
        QVERIFY(tree.IsAlLeastOneSelected(1) && !tree.IsAlLeastOneSelected(0));

        Tree other;
        for (QTreeWidgetItem* foreign : {static_cast<QTreeWidgetItem*>(other.find(u"A"_s)),
                                         static_cast<QTreeWidgetItem*>(nullptr)}) {
            QVERIFY(!tree.GetModelIndexFromItem(foreign, 0).isValid());
            tree.ScrollToItemAndSelect(foreign, true);
            QCOMPARE(tree.selected(), QString());
            if (foreign) {
                foreign->setExpanded(true);
                QVERIFY(!tree.CanExpand(foreign) && !tree.CanExpandChild(foreign));
                QVERIFY(!tree.CanCollapse(foreign) && !tree.CanCollapseChild(foreign));
                tree.ExpandCollapseChild(foreign, true);
                tree.ExpandCollapseAll(foreign, true);
                QCOMPARE(other.open(), u"A"_s);
            }
        }
        for (const auto mode :
             {QAbstractItemView::SingleSelection, QAbstractItemView::NoSelection}) {
            tree.setSelectionMode(mode);
            tree.selectAll();
            QCOMPARE(tree.selected(), QString());
        }
        QCOMPARE(tree.GetTotalNumberOfRows(), 7);
        tree.deleteAllTopLevelItems();
        QCOMPARE(tree.GetTotalNumberOfRows(), 0);
        tree.SelectFirstItemIfPossible();
    }

    void expandsAndCollapses()
    {
        Tree tree;
        QSignalSpy expanded(&tree, &QTreeWidget::itemExpanded);
        QSignalSpy collapsed(&tree, &QTreeWidget::itemCollapsed);
        QVERIFY(tree.CanExpand(nullptr) && !tree.CanCollapse(nullptr));
        QVERIFY(!tree.CanExpand(tree.find(u"C"_s)));

        for (const char* name : {"A", "B", "C"})
            QTest::ignoreMessage(QtDebugMsg, name);
        tree.ExpandCollapseAll(nullptr, true);
        QCOMPARE(tree.open(), u"A A1 B"_s);
        QCOMPARE(expanded.count() + collapsed.count(), 0);
        QVERIFY(!tree.signalsBlocked());
        QVERIFY(!tree.CanExpand(nullptr) && tree.CanCollapse(nullptr));
        QVERIFY(!tree.CanCollapse(Tree().find(u"A"_s)));
        QVERIFY(tree.visualItemRect(tree.find(u"A11"_s)).isValid());

        PTreeWidgetItem* a = tree.find(u"A"_s);
        tree.ExpandCollapseAll(a, false);
        QCOMPARE(tree.open(), u"B"_s);
        QCOMPARE(collapsed.count(), 2);
        a->setExpanded(true);
        QVERIFY(tree.CanExpand(a) && tree.CanExpandChild(a));
        QVERIFY(tree.CanCollapse(a) && !tree.CanCollapseChild(a));
        tree.ExpandCollapseChild(a, true);
        QCOMPARE(tree.open(), u"A A1 B"_s);
    }

    void survivesItsReceivers()
    {
        Tree tree;
        connect(&tree, &QTreeWidget::itemExpanded, &tree, [&] { delete tree.find(u"A1"_s); });
        tree.ExpandCollapseAll(tree.find(u"A"_s), true);
        QCOMPARE(tree.open(), u"A"_s);
        tree.selectAll();
        connect(&tree, &QTreeWidget::itemSelectionChanged, &tree,
                [&] { delete tree.find(u"C"_s); });
        tree.ScrollToItemAndSelect(tree.find(u"C"_s), true);
        QCOMPARE(tree.selected(), QString());

        for (const int way : {0, 1, 2, 3}) {
            const QPointer<Tree> dying = new Tree;
            const auto end = [&dying] {
                delete dying.data();
            };
            if (way != 2) // there it is the expanding that ends it
                dying->selectAll();
            dying->InitCopyMenus(true);
            connect(dying, &QTreeWidget::itemExpanded, this, end);
            connect(dying, &QTreeWidget::itemSelectionChanged, this, end);
            if (way == 3) {
                QTimer::singleShot(0, this, end);
                Q_EMIT dying->customContextMenuRequested({5, 5});
            } else if (way == 0) {
                dying->ExpandCollapseAll(dying->find(u"A"_s), true);
            } else {
                dying->ScrollToItemAndSelect(dying->find(way == 1 ? u"A"_s : u"A11"_s), true);
            }
            QVERIFY(!dying);
        }
    }

    void filters()
    {
        Tree tree;
        auto* plain = new QTreeWidgetItem(&tree, {u"plain"_s});
        const auto shown = [&tree] {
            return tree.names(std::not_fn(&QTreeWidgetItem::isHidden));
        };
        for (const auto& [text, names] : {std::pair(u"bb"_s, u"A1 A11 A2 B B1 plain"_s),
                                          {u"B"_s, u"A1 A11 A2 B1 plain"_s},
                                          {{}, u"A A1 A11 A2 B B1 C plain"_s}}) {
            tree.FilterTree(text);
            QCOMPARE(shown(), names);
        }

        plain->setHidden(true);
        tree.FilterTree(u"las"_s);
        QCOMPARE(shown(), u"A A1 A11 A2 B B1 C"_s);
        QVERIFY(!PTreeWidgetItem().isTextFound(QString()));
        tree.FilterItems([](const QTreeWidgetItem& item) { return item.text(0) == u"A11"_s; });
        QCOMPARE(shown(), u"A A1 A11"_s);
    }

    void neededHeight()
    {
        Tree tree;
        tree.header()->setFixedHeight(25);
        tree.find(u"A"_s)->setExpanded(true);
        tree.find(u"C"_s)->setHidden(true);
        // A, A1, A2 and B
        const int row = tree.visualItemRect(tree.find(u"A"_s)).height();
        QVERIFY(row > 0);
        QCOMPARE(tree.CalcNeededHeight(), 4 * row + 25 + 16);
        tree.setUniformRowHeights(false);
        tree.find(u"A2"_s)->setSizeHint(0, QSize(10, 3 * row));
        QCOMPARE(tree.CalcNeededHeight(), 6 * row + 25 + 16);
        tree.clear();
        QCOMPARE(tree.CalcNeededHeight(), 16 + 25 + 16);
        tree.setHeaderHidden(true);
        QCOMPARE(tree.CalcNeededHeight(), 16 + 16);
    }

    void widths()
    {
        Tree tree;
        for (const int column : {0, 1})
            tree.setColumnWidth(column, 170);
        tree.resizeAllColumnToContentsWithOffset(0);
        QVERIFY(tree.columnWidth(1) < 170);
        for (const int column : {-1, 3})
            tree.resizeColumnToContentsWithOffset(column, 20);
        tree.setFontForHeaderBold();
        QVERIFY(tree.header()->font().bold());
        tree.resizeAllColumnToContentsWithOffset(0);
        const int fitted = tree.columnWidth(0);
        tree.setColumnHidden(1, true);
        tree.resizeAllColumnToContentsWithOffset(20);
        QCOMPARE(tree.columnWidth(0), fitted + 20);
        tree.setColumnHidden(1, false);
        QVERIFY(tree.columnWidth(1) > 20);

        QList<QTreeWidgetItem*> items{nullptr, tree.find(u"A11"_s)};
        const int plain = tree.GetMaxTextWidth(items, 0);
        QCOMPARE(plain, QFontMetrics(tree.font()).boundingRect(u"A11"_s).width());
        items[1]->setFont(0, QFont(tree.font().family(), 40));
        QVERIFY(tree.GetMaxTextWidth(items, 0) > 2 * plain);
    }

    void movesOfTheMouse()
    {
        Tree tree;
        // The base class tells of entered items when a move reaches it.
        const QSignalSpy entered(&tree, &QTreeWidget::itemEntered);
        const QPoint start = tree.visualItemRect(tree.find(u"A"_s)).center();
        const int far = QApplication::startDragDistance();
        const auto countsAfter = [&](QPoint way, Qt::MouseButtons held) {
            moveMouse(*tree.viewport(), start + way, held);
            return std::pair(tree.drags, entered.count());
        };
        QCOMPARE(countsAfter({}, Qt::NoButton), std::pair(0, qsizetype(0)));
        QTest::mousePress(tree.viewport(), Qt::LeftButton, {}, start);
        QCOMPARE(countsAfter({far - 1, 0}, Qt::LeftButton), std::pair(0, qsizetype(0)));
        QCOMPARE(countsAfter({far - 3, -3}, Qt::LeftButton), std::pair(1, qsizetype(1)));
        QTest::mouseRelease(tree.viewport(), Qt::LeftButton);
        QCOMPARE(countsAfter({0, 3 * far}, Qt::NoButton), std::pair(1, qsizetype(1)));
    }

    void deletesWidgets()
    {
        Tree tree;
        const QPointer<QPushButton> kept = new QPushButton;
        const QPointer<QPushButton> button = new QPushButton;
        tree.setItemWidget(tree.find(u"A11"_s), 0, kept);
        tree.setItemWidget(tree.find(u"A11"_s), 1, button);
        // It asks for it itself.
        connect(button, &QPushButton::clicked, &tree, [&tree] { tree.DeleteWidgets(1); });
        button->click();
        QCOMPARE(tree.itemWidget(tree.find(u"A11"_s), 1), nullptr);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!button && kept);
    }

    void items()
    {
        using Item = PTreeWidgetItem;
        Item item;
        const Qt::ItemFlags plain = Qt::ItemIsSelectable | Qt::ItemIsEnabled;
        const std::tuple<void (Item::*)(), void (Item::*)(), Qt::ItemFlag> flags[] = {
            {&Item::setCheckable, &Item::setNotCheckable, Qt::ItemIsUserCheckable},
            {&Item::setDragable, &Item::setNotDragable, Qt::ItemIsDragEnabled},
            {&Item::setDropable, &Item::setNotDropable, Qt::ItemIsDropEnabled},
            {&Item::setEditable, &Item::setNotEditable, Qt::ItemIsEditable}};
        for (const auto& [set, unset, flag] : flags) {
            QCOMPARE(item.flags(), plain);
            (item.*set)();
            QCOMPARE(item.flags(), plain | flag);
            (item.*unset)();
        }
        const std::pair<void (Item::*)(int, bool), QColor> marks[] = {
            {&Item::setRed, POrvGuiTheme::statusRed()},
            {&Item::setGreen, POrvGuiTheme::colorGreen},
            {&Item::setBlue, POrvGuiTheme::colorBlue},
            {&Item::setOrange, POrvGuiTheme::colorOrange}};
        for (const auto& [mark, color] : marks) {
            for (const bool bold : {true, false, true}) {
                (item.*mark)(1, bold);
                QCOMPARE(item.foreground(1).color(), color);
                QCOMPARE(item.font(1).bold(), bold);
            }
        }
        item.setStandardColor(1);
        QCOMPARE(item.foreground(1).color(), QApplication::palette().color(QPalette::Text));
        QVERIFY(item.font(1).bold() && !item.font(0).bold());
        item.addChildren({new Item, new QTreeWidgetItem});
        item.DeleteAllChildren();
        QCOMPARE(item.childCount(), 0);

        ToolTipItem row;
        row.setToolTip(1, u"the cell"_s);
        QCOMPARE(row.toolTip(1), u"the row"_s);
        row.setOneTooltipForAllColumns(false);
        QCOMPARE(row.toolTip(1), u"the cell"_s);
        QCOMPARE(ToolTipItem(row).toolTip(1), u"the cell"_s);
        QVERIFY(!item.data(0, Qt::ToolTipRole).isValid());
    }
};

QTEST_MAIN(TestTreeWidget)
#include "tst_treewidget.moc"
