// SPDX-License-Identifier: MIT
#include "testsupport.h"

#include <CorvelGui/PDeviceItem>
#include <CorvelGui/PFirmwareVersionItem>
#include <CorvelGui/PIpItem>
#include <CorvelGui/PIpLineEdit>
#include <CorvelGui/PNetworkItemDelegate>
#include <CorvelGui/PPathItem>
#include <CorvelGui/PSerialNumberItem>
#include <CorvelGui/PStatusItem>
#include <CorvelGui/PTextWidgetItem>
#include <CorvelGui/ToolTipHelper>
#include <Hueloft/POrvGuiTheme>

#include <QHostAddress>
#include <QIntValidator>
#include <QTextDocument>

using namespace CorvelGui;
using Hueloft::POrvGuiTheme;

namespace {

/// The tooltip with these rows of label and value.
QString table(std::initializer_list<std::pair<QString, QString>> rows)
{
    ToolTipHelper tip;
    for (const auto& [label, value] : rows)
        tip.AddRow(label, value);
    return tip.GetToolTip();
}

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

class TestTableItems : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void labelsToolTips()
    {
        const auto row = [](const QString& label, const QString& value) {
            return table({{label, value}});
        };
        QCOMPARE(PIpItem(u"10.0.0.2"_s).toolTip(), row(u"IP"_s, u"10.0.0.2"_s));
        QCOMPARE(PSerialNumberItem().toolTip(), row(u"Serial Number"_s, {}));
        QCOMPARE(PDeviceItem(u"a"_s).toolTip(), row(u"Device"_s, u"a"_s));
        QCOMPARE(PFirmwareVersionItem(u"1"_s).toolTip(), row(u"Software"_s, u"1"_s));
        QCOMPARE(PPathItem(u"A/B"_s).toolTip(), row(u"Group Path"_s, u"A/B"_s));
        QVERIFY(!PTableWidgetItem(u"a"_s).data(Qt::ToolTipRole).isValid());
        QVERIFY(!PStatusItem(u"a"_s).data(Qt::ToolTipRole).isValid());
        QCOMPARE(PTextWidgetItem(u"a\nb"_s).toolTip(), u"a\nb"_s);
        const QString markup = u"<img src=\"/etc/passwd\"> & <b>"_s;
        QTextDocument document;
        document.setHtml(PTextWidgetItem(markup).toolTip());
        QCOMPARE(document.toPlainText(), markup);
    }

    void redKeepsTheStyleOfTheBrush()
    {
        PTableWidgetItem item;
        item.setForeground(QBrush(Qt::blue, Qt::Dense4Pattern));
        item.SetRedText(u"a"_s);
        QCOMPARE(item.foreground(), QBrush(POrvGuiTheme::statusRed(), Qt::Dense4Pattern));
    }

    void sortsAddressesByValue()
    {
        const QStringList notAddresses{u""_s, u"camera"_s, u"1.2.3.256"_s, u"fe80::1"_s};
        QList<quint32> values(notAddresses.size(), 0);
        QTableWidget table(1000, 1);
        QRandomGenerator random(1);
        for (int row = 0; row < table.rowCount(); ++row) {
            auto* item = new PIpItem(u"9.9.9.9"_s);
            if (row < notAddresses.size()) {
                item->setIp(notAddresses[row]);
                QCOMPARE(item->getIp(), 0u);
            } else {
                values.append(random.generate());
                item->setIp(QHostAddress(values.last()).toString());
            }
            table.setItem((row * 7) % 1000, 0, item);
        }
        table.sortItems(0);
        std::ranges::sort(values);
        for (int row = 0; row < table.rowCount(); ++row)
            QCOMPARE(static_cast<PIpItem*>(table.item(row, 0))->getIp(), values[row]);
        // The other cell is judged by its text, of whatever class it is.
        QVERIFY(PIpItem(u"9.255.255.255"_s) < QTableWidgetItem(u"10.0.0.2"_s));
        for (const auto& address : {u"10.0.0.10"_s, u"10.0.0.2"_s})
            QVERIFY(!(PIpItem(address) < QTableWidgetItem(u"10.0.0.2"_s)));
    }

    void copiesKeepTheirFields()
    {
        PIpItem ip(u"10.0.0.2"_s);
        ip.setIconResource(u":/a.png"_s);
        PStatusItem status;
        status.AddRedStatus(u"a"_s);
        PIpItem otherIp;
        otherIp = ip;
        const PStatusItem otherStatus = std::move(status);
        QCOMPARE(otherIp.getIp(), 0x0a000002u);
        QCOMPARE(otherIp.getIconResource(), u":/a.png"_s);
        QCOMPARE(otherIp.text(), u"10.0.0.2"_s);
        QCOMPARE(otherStatus.toolTip(), table({{u"1"_s, u"a"_s}}));
    }

    void collectsStatus()
    {
        PStatusItem item;
        item.AddRedStatus(u"No %2 <b>"_s);
        QCOMPARE(item.foreground().color(), POrvGuiTheme::statusRed());
        item.AddApplicationSystemUpTime(u"%2 h"_s);
        item.AddStatusSystemUpTime(u"3 d"_s);
        QCOMPARE(item.text(), u"3 d System uptime"_s);
        QCOMPARE(item.foreground().color(), QApplication::palette().color(QPalette::Text));
        QCOMPARE(item.toolTip(), table({{u"1"_s, u"No %2 <b>"_s},
                                        {u"2"_s, u"%2 h Application uptime"_s},
                                        {u"3"_s, u"3 d System uptime"_s}}));
        const QStringList months[] = {{QString(), QString()},
                                      {u"0"_s, QString()},
                                      {u"14"_s, u" (14 Month(s))"_s},
                                      {u"abc"_s, u" (abc Month(s))"_s}};
        for (const QStringList& row : months) {
            item.AddMaintenanceInfo(u"%1-31"_s, row[0]);
            QCOMPARE(item.text(), u"End of Software Maintenance %1-31"_s + row[1]);
        }
    }

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
        table.enter(0, u"10.0.0.5"_s);
        table.setItem(1, 0, new QTableWidgetItem);
        table.enter(1, u"10.0.0.6"_s);
        QCOMPARE(table.text(1), u"10.0.0.6"_s);
    }
};

QTEST_MAIN(TestTableItems)
#include "tst_tableitems.moc"
