#include "systemaddress.h"
#include "testsupport.h"

#include <Corvel/Host>
#include <Corvel/SubNetMask>

#include <QTest>

using namespace Corvel;
using namespace Qt::StringLiterals;

class TestNetworkInterfaces : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void masks();
    void whatOthersReach();
    void thisMachine();
};

void TestNetworkInterfaces::masks()
{
    const std::pair<int, QString> masks[] = {{0, u"0.0.0.0"_s},          {1, u"128.0.0.0"_s},
                                             {15, u"255.254.0.0"_s},     {16, u"255.255.0.0"_s},
                                             {24, u"255.255.255.0"_s},   {30, u"255.255.255.252"_s},
                                             {32, u"255.255.255.255"_s}, {33, QString()}};
    for (const auto& [prefix, mask] : masks)
        QCOMPARE(SubNetMask::fromPrefixLength(static_cast<unsigned char>(prefix)), mask);
}

void TestNetworkInterfaces::whatOthersReach()
{
    constexpr auto up = QNetworkInterface::IsUp;
    const auto address = [](int index, QNetworkInterface::InterfaceFlags flags,
                            const QString& host) {
        return SystemAddress{index, flags, {QHostAddress(host), {}, {}, {}}};
    };
    const QList<SystemAddress> all{
        address(1, up | QNetworkInterface::IsLoopBack, u"127.0.0.1"_s),
        address(7, up, u"10.0.0.1"_s),
        address(3, {}, u"10.1.0.1"_s),
        address(2, up, u"192.168.1.100"_s),
        address(2, up, u"fe80::1"_s),
        address(2, up, u"192.168.1.20"_s),
    };
    QStringList hosts;
    for (const NetworkInterfaceData& data : reachableAddresses(all))
        hosts << data.getHostAddress().toString();
    QCOMPARE(hosts, (QStringList{u"192.168.1.20"_s, u"192.168.1.100"_s, u"10.0.0.1"_s}));
}

void TestNetworkInterfaces::thisMachine()
{
    const QList<NetworkInterfaceData> list = Host().getNetworkInterfaceList().getList();
    for (const NetworkInterfaceData& data : list) {
        const QHostAddress host = data.getHostAddress();
        QVERIFY2(QNetworkInterface::allAddresses().contains(host), qPrintable(host.toString()));
        QVERIFY(!QHostAddress(data.getNetmask()).isNull());
        if (!data.getBroadcast().isEmpty()) {
            const quint32 mask = QHostAddress(data.getNetmask()).toIPv4Address();
            QCOMPARE(QHostAddress(data.getBroadcast()).toIPv4Address(),
                     host.toIPv4Address() | ~mask);
        }
    }
}

QTEST_GUILESS_MAIN(TestNetworkInterfaces)
#include "tst_networkinterfaces.moc"
