#include "systemaddress.h"
#include "testsupport.h"

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
};

void TestNetworkInterfaces::masks()
{
    const std::pair<uchar, QString> masks[] = {{0, u"0.0.0.0"_s},          {1, u"128.0.0.0"_s},
                                               {30, u"255.255.255.252"_s}, {33, QString()},
                                               {32, u"255.255.255.255"_s}, {15, u"255.254.0.0"_s}};
    for (const auto& [prefix, mask] : masks)
        QCOMPARE(SubNetMask::fromPrefixLength(prefix), mask);
}

void TestNetworkInterfaces::whatOthersReach()
{
    const auto up = QNetworkInterface::IsUp;
    const std::tuple<int, QNetworkInterface::InterfaceFlags, QString> all[] = {
        {1, up | QNetworkInterface::IsLoopBack, u"127.0.0.1"_s},
        {7, up, u"10.0.0.1"_s},
        {3, {}, u"10.1.0.1"_s},
        {2, up, u"192.168.1.100"_s},
        {2, up, u"fe80::1"_s},
        {2, up, u"192.168.1.20"_s}};
    QList<SystemAddress> addresses;
    for (const auto& [index, flags, host] : all)
        addresses.append({index, flags, {QHostAddress(host), {}, {}, {}}});
    QStringList hosts;
    for (const NetworkInterfaceData& data : reachableAddresses(addresses))
        hosts << data.getHostAddress().toString();
    QCOMPARE(hosts, (QStringList{u"192.168.1.20"_s, u"192.168.1.100"_s, u"10.0.0.1"_s}));
}

QTEST_GUILESS_MAIN(TestNetworkInterfaces)
#include "tst_networkinterfaces.moc"
