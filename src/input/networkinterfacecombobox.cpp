// SPDX-License-Identifier: MIT
#include "networkinterfacecombobox.h"

#include <Corvel/Host>

#include <QSignalBlocker>
#include <QStyleOptionComboBox>

using namespace Qt::StringLiterals;

namespace CorvelGui {

NetworkInterfaceComboBox::NetworkInterfaceComboBox(QWidget* parent) : QComboBox(parent) {}

bool NetworkInterfaceComboBox::InitNetworkFilter(const QString& preferredAddress)
{
    return showInterfaces(Corvel::Host().getNetworkInterfaceList().getList(), preferredAddress);
}

bool NetworkInterfaceComboBox::showInterfaces(const QList<Corvel::NetworkInterfaceData>& interfaces,
                                              const QString& preferredAddress)
{
    const bool connected = !interfaces.isEmpty();
    {
        const QSignalBlocker blocker(this);
        clear();
        for (const Corvel::NetworkInterfaceData& networkInterface : interfaces) {
            const QString address = networkInterface.getHostAddress().toString();
            const int index = count();
            addItem(u"%1 (%2)"_s.arg(networkInterface.getReadableName(), address), address);
            setItemData(index, networkInterface.getReadableName(), NameRole);
            setItemData(index, networkInterface.getBroadcast(), BroadcastRole);
            setItemData(index, networkInterface.getNetmask(), NetmaskRole);
        }
        if (connected) {
            setStyleSheet(QString());
        } else {
            setStyleSheet(u"QComboBox{color: red;font: bold;}"_s);
            addItem(tr("No Network Connection"));
        }
    }
    // Not silent any more; the selection is the last that is touched, as a slot may delete the box.
    const int preferred = findData(preferredAddress, AddressRole);
    setCurrentIndex(qMax(preferred, 0));
    return connected;
}

QHostAddress NetworkInterfaceComboBox::getCurrentHostAddress() const
{
    return QHostAddress(currentData(AddressRole).toString());
}

QHostAddress NetworkInterfaceComboBox::getCurrentBroadCastAddress() const
{
    return QHostAddress(currentData(BroadcastRole).toString());
}

void NetworkInterfaceComboBox::initStyleOption(QStyleOptionComboBox* option) const
{
    QComboBox::initStyleOption(option);
    // Red is hard to read on the grey of a button in the dark look.
    if (count() > 0 && !currentData(AddressRole).isValid())
        option->palette.setColor(QPalette::Button, option->palette.color(QPalette::Base));
}

} // namespace CorvelGui
