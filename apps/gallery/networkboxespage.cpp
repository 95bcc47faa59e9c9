// SPDX-License-Identifier: MIT
#include "networkboxespage.h"

#include <Corvel/NetworkInterfaceData>
#include <CorvelGui/NetworkInterfaceComboBox>
#include <CorvelGui/SubNetMaskComboBox>

#include <QFormLayout>
#include <QLabel>

using Corvel::NetworkInterfaceData;
using CorvelGui::NetworkInterfaceComboBox;
using CorvelGui::SubNetMaskComboBox;
using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

/// Shows interfaces that this machine need not have.
class SampleInterfaceBox : public NetworkInterfaceComboBox
{
public:
    explicit SampleInterfaceBox(const QList<NetworkInterfaceData>& interfaces)
    {
        showInterfaces(interfaces, u"10.20.0.7"_s);
    }
};

QString maskText(const SubNetMaskComboBox* box)
{
    return u"%1 = %2"_s.arg(box->getSubNetMaskAsPrefixLength(), box->getSubNetMaskAsDotDecimal());
}

} // namespace

NetworkBoxesPage::NetworkBoxesPage(QWidget* parent) : QWidget(parent)
{
    auto* form = new QFormLayout(this);
    form->setVerticalSpacing(16);

    auto* mask = new SubNetMaskComboBox;
    auto* chosen = new QLabel(maskText(mask));
    connect(mask, &QComboBox::currentIndexChanged, chosen,
            [mask, chosen] { chosen->setText(maskText(mask)); });
    form->addRow(tr("Subnet mask"), mask);
    form->addRow(tr("Chosen"), chosen);

    auto* machine = new NetworkInterfaceComboBox;
    machine->InitNetworkFilter(QString());
    form->addRow(tr("This machine"), machine);
    form->addRow(tr("Two interfaces"),
                 new SampleInterfaceBox(
                     {NetworkInterfaceData(QHostAddress(u"192.168.1.20"_s), u"192.168.1.255"_s,
                                           u"255.255.255.0"_s, u"Ethernet 1"_s),
                      NetworkInterfaceData(QHostAddress(u"10.20.0.7"_s), u"10.20.255.255"_s,
                                           u"255.255.0.0"_s, u"Camera network"_s)}));
    form->addRow(tr("None"), new SampleInterfaceBox({}));
}

} // namespace Gallery
