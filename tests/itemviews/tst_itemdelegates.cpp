#include "testsupport.h"

#include <CorvelGui/PIpItem>
#include <CorvelGui/PIpLineEdit>
#include <CorvelGui/PNetworkItemDelegate>

#include <QIntValidator>

using namespace CorvelGui;

namespace {

/// Edits cells of a table by keys, as a user does.
class Table : public QTableWidget
{
public:
    explicit Table(PLineEditDelegate* delegate) : QTableWidget(2, 1)
    {
        delegate->setParent(this);
        setItemDelegate(delegate);
        show();
    }
    /// The editor in a row, also one that a refused entry has left open.
    QLineEdit* edit(int row)
    {
        if (auto* open = viewport()->findChild<QLineEdit*>())
            return open;
        setCurrentCell(row, 0);
        editItem(item(row, 0));
        return viewport()->findChild<QLineEdit*>();
    }
    void enter(int row, const QString& text, Qt::Key key = Qt::Key_Return)
    {
        QLineEdit* editor = edit(row);
        editor->clear();
        QTest::keyClicks(editor, text);
        QTest::keyClick(editor, key);
        QCoreApplication::processEvents(); // the delegate takes the entry a little later
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    QString text(int row) const { return item(row, 0)->text(); }
};

} // namespace

class TestItemDelegates : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void takesAValidator()
    {
        auto* delegate = new PLineEditDelegate;
        Table table(delegate);
        for (int row : {0, 1})
            table.setItem(row, 0, new QTableWidgetItem(u"80"_s));
        auto* validator = new QIntValidator(1, 65535, this);
        delegate->setValidator(validator);
        QCOMPARE(table.edit(0)->text(), u"80"_s);
        table.edit(0)->setText(u"0"_s);
        QVERIFY(!table.edit(0)->styleSheet().isEmpty());
        table.enter(0, u"0"_s);
        QCOMPARE(table.text(0), u"80"_s);
        table.enter(0, u"443"_s);
        QCOMPARE(table.text(0), u"443"_s);
        table.enter(0, u"22"_s, Qt::Key_Escape);
        QCOMPARE(table.text(0), u"443"_s);
        delete validator;
        table.enter(0, u"any text"_s);
        QCOMPARE(table.text(0), u"any text"_s);
    }

    void editsAddresses()
    {
        Table table(new PNetworkItemDelegate);
        table.setItem(0, 0, new PIpItem(u"10.0.0.1"_s));
        table.setItem(1, 0, new PIpItem(u"10.0.0.2"_s));
        QVERIFY(qobject_cast<PIpLineEdit*>(table.edit(0)));
        QCOMPARE(table.edit(0)->text(), u"10.0.0.1"_s);
        table.enter(0, u"10.0.0"_s);
        QCOMPARE(table.text(0), u"10.0.0.1"_s);
        table.enter(0, u"10.0.0.30"_s);
        table.enter(1, u"10.0.0.4"_s);
        table.sortItems(0);
        QCOMPARE(table.text(0), u"10.0.0.4"_s);
        QCOMPARE(table.text(1), u"10.0.0.30"_s);
    }
};

QTEST_MAIN(TestItemDelegates)
#include "tst_itemdelegates.moc"
