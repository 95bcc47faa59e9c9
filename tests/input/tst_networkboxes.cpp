#include "testsupport.h"

#include <Corvel/Host>
#include <CorvelGui/NetworkInterfaceComboBox>
#include <CorvelGui/SubNetMaskComboBox>

#include <QStyleOptionComboBox>

using namespace CorvelGui;

namespace {

class InterfaceBox : public NetworkInterfaceComboBox
{
public:
    using NetworkInterfaceComboBox::initStyleOption;
    using NetworkInterfaceComboBox::showInterfaces;
};

} // namespace

class TestNetworkBoxes : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void masks()
    {
        SubNetMaskComboBox box;
        QCOMPARE(box.count(), 30);
        QCOMPARE(box.getSubNetMaskAsPrefixLength(), u"15"_s);
        QCOMPARE(box.itemText(0), u"128.0.0.0 /1"_s);
        QCOMPARE(box.itemText(29), u"255.255.255.252 /30"_s);
        for (const unsigned int unknown : {0U, 31U, 32U, 0xFFFFFFFFU}) {
            box.setSubNetMask(24);
            QCOMPARE(box.currentText(), u"255.255.255.0 /24"_s);
            QCOMPARE(box.getSubNetMaskAsDotDecimal(), u"255.255.255.0"_s);
            box.setSubNetMask(unknown);
            QCOMPARE(box.currentText(), u"255.255.0.0 /16"_s);
            QVERIFY(SubNetMaskComboBox::getMaskAsString(int(unknown)).startsWith(u"Error: "_s));
        }
    }

    void interfaces()
    {
        const QList<Corvel::NetworkInterfaceData> two{
            {QHostAddress(u"192.168.1.20"_s), u"192.168.1.255"_s, u"255.255.255.0"_s, u"Hall %2"_s},
            {QHostAddress(u"10.8.0.6"_s), QString(), u"255.255.255.255"_s, u"Tunnel"_s}};
        InterfaceBox box;
        const auto isOnBase = [&box] {
            QStyleOptionComboBox drawn;
            box.initStyleOption(&drawn);
            return drawn.palette.color(QPalette::Button) == drawn.palette.color(QPalette::Base);
        };
        QVERIFY(!isOnBase());
        QSignalSpy changed(&box, &QComboBox::currentIndexChanged);
        QVERIFY(!box.showInterfaces({}, QString()));
        QCOMPARE(box.currentText(), u"No Network Connection"_s);
        QVERIFY(box.getCurrentHostAddress().isNull());
        QCOMPARE(box.styleSheet(), u"QComboBox{color: red;font: bold;}"_s);
        QVERIFY(isOnBase());

        QVERIFY(box.showInterfaces(two, u"172.16.0.1"_s));
        QVERIFY(box.styleSheet().isEmpty() && !isOnBase());
        QCOMPARE(box.count(), 2);
        QCOMPARE(box.currentText(), u"Hall %2 (192.168.1.20)"_s);
        QCOMPARE(box.getCurrentBroadCastAddress(), QHostAddress(u"192.168.1.255"_s));
        const QStringList data{u"192.168.1.20"_s, u"Hall %2"_s, u"192.168.1.255"_s,
                               u"255.255.255.0"_s};
        for (int role = 0; role < data.size(); ++role)
            QCOMPARE(box.itemData(0, Qt::UserRole + role).toString(), data[role]);
        QCOMPARE(changed.count(), 0);

        QVERIFY(box.showInterfaces(two, u"10.8.0.6"_s));
        QCOMPARE(changed, (QList<QVariantList>{{1}}));
        QCOMPARE(box.getCurrentHostAddress(), QHostAddress(u"10.8.0.6"_s));
        QVERIFY(box.getCurrentBroadCastAddress().isNull());

        // Whatever this machine has, the answer and the items agree.
        const auto machine = Corvel::Host().getNetworkInterfaceList().getList();
        QCOMPARE(box.InitNetworkFilter(QString()), !machine.isEmpty());
        QCOMPARE(box.count(), qMax(machine.size(), 1));
    }
};

QTEST_MAIN(TestNetworkBoxes)
#include "tst_networkboxes.moc"
