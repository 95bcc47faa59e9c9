#include "testsupport.h"

#include <Corvel/NetworkInterfaceData>
#include <Corvel/SubNetMask>
#include <CorvelGui/NetworkInterfaceComboBox>
#include <CorvelGui/SubNetMaskComboBox>

#include <QSignalSpy>
#include <QTest>

using Corvel::NetworkInterfaceData;
using namespace CorvelGui;
using namespace Qt::StringLiterals;

namespace {

class InterfaceBox : public NetworkInterfaceComboBox
{
public:
    using NetworkInterfaceComboBox::showInterfaces;
};

const QList<NetworkInterfaceData>& interfaces()
{
    static const QList<NetworkInterfaceData> list{
        {QHostAddress(u"192.168.1.20"_s), u"192.168.1.255"_s, u"255.255.255.0"_s, u"Hall %2"_s},
        {QHostAddress(u"10.8.0.6"_s), QString(), u"255.255.255.255"_s, u"Tunnel"_s}};
    return list;
}

} // namespace

class TestNetworkBoxes : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void masks();
    void maskSelection();
    void listsInterfaces();
    void withoutInterfaces();
};

void TestNetworkBoxes::masks()
{
    const SubNetMaskComboBox box;
    QCOMPARE(box.count(), 30);
    for (int prefix = 1; prefix <= 30; ++prefix) {
        const QString mask = Corvel::SubNetMask::fromPrefixLength(static_cast<uchar>(prefix));
        QCOMPARE(box.itemText(prefix - 1), u"%1 /%2"_s.arg(mask).arg(prefix));
        QCOMPARE(box.itemData(prefix - 1), QVariant(prefix));
        QCOMPARE(SubNetMaskComboBox::getMaskAsString(prefix), box.itemText(prefix - 1));
    }
    for (const int wrong : {-1, 0, 31, 32}) {
        QCOMPARE(SubNetMaskComboBox::getMaskAsString(wrong),
                 u"Error: Network Mask Value Invalid (1 to 30)"_s);
    }
}

void TestNetworkBoxes::maskSelection()
{
    SubNetMaskComboBox box;
    QCOMPARE(box.getSubNetMask(), 15);
    QCOMPARE(box.currentText(), u"255.254.0.0 /15"_s);
    box.setSubNetMask(24);
    QCOMPARE(box.getSubNetMaskAsPrefixLength(), u"24"_s);
    QCOMPARE(box.getSubNetMaskAsDotDecimal(), u"255.255.255.0"_s);
    for (const unsigned int unknown : {0U, 31U, 32U, 0xFFFFFFFFU}) {
        box.setSubNetMask(24);
        box.setSubNetMask(unknown);
        QCOMPARE(box.currentText(), u"255.255.0.0 /16"_s);
    }
}

void TestNetworkBoxes::listsInterfaces()
{
    InterfaceBox box;
    QCOMPARE(box.count(), 0);
    QSignalSpy changed(&box, &QComboBox::currentIndexChanged);
    QVERIFY(box.showInterfaces(interfaces(), u"172.16.0.1"_s));
    QCOMPARE(changed.count(), 0);
    QCOMPARE(box.count(), 2);
    QCOMPARE(box.currentText(), u"Hall %2 (192.168.1.20)"_s);
    QCOMPARE(box.getCurrentHostAddress(), QHostAddress(u"192.168.1.20"_s));
    QCOMPARE(box.getCurrentBroadCastAddress(), QHostAddress(u"192.168.1.255"_s));
    const QStringList data{u"192.168.1.20"_s, u"Hall %2"_s, u"192.168.1.255"_s, u"255.255.255.0"_s};
    for (int role = 0; role < data.size(); ++role)
        QCOMPARE(box.itemData(0, Qt::UserRole + role).toString(), data[role]);

    QVERIFY(box.showInterfaces(interfaces(), u"10.8.0.6"_s));
    QCOMPARE(changed, (QList<QVariantList>{{1}}));
    QCOMPARE(box.getCurrentHostAddress(), QHostAddress(u"10.8.0.6"_s));
    QVERIFY(box.getCurrentBroadCastAddress().isNull());
}

void TestNetworkBoxes::withoutInterfaces()
{
    InterfaceBox box;
    QVERIFY(!box.showInterfaces({}, QString()));
    QCOMPARE(box.count(), 1);
    QCOMPARE(box.currentText(), u"No Network Connection"_s);
    QVERIFY(box.getCurrentHostAddress().isNull());
    QCOMPARE(box.styleSheet(), u"QComboBox{color: red;font: bold;}"_s);

    QVERIFY(box.showInterfaces(interfaces(), QString()));
    QCOMPARE(box.styleSheet(), QString());
    QCOMPARE(box.currentIndex(), 0);

    // Whatever this machine has, the answer and the item agree.
    const bool found = box.InitNetworkFilter(QString());
    QCOMPARE(box.getCurrentHostAddress().isNull(), !found);
}

QTEST_MAIN(TestNetworkBoxes)
#include "tst_networkboxes.moc"
