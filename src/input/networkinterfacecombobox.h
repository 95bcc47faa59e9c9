// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/corvelgui_export.h>

#include <QComboBox>
#include <QHostAddress>
#include <QList>

namespace Corvel {
class NetworkInterfaceData;
}

namespace CorvelGui {

/// Picks one of the machine's network interfaces by its address.
///
/// It is empty until InitNetworkFilter() lists the interfaces, and does not follow later changes of
/// the network by itself: call it again, with the address that shall stay selected.
class CORVELGUI_EXPORT NetworkInterfaceComboBox : public QComboBox
{
    Q_OBJECT

public:
    /// What an item carries.
    enum ItemRole {
        AddressRole = Qt::UserRole,
        NameRole,
        BroadcastRole,
        NetmaskRole,
    };

    explicit NetworkInterfaceComboBox(QWidget* parent = nullptr);

    /// Lists the interfaces anew and selects that of @p preferredAddress, or else the first one.
    /// Without any interface, the box says so in red.
    ///
    /// Returns whether there is an interface. Listing is silent and leaves the first interface
    /// selected; the box's own signals tell when another one is selected then.
    bool InitNetworkFilter(const QString& preferredAddress);

    /// Null without an interface.
    QHostAddress getCurrentHostAddress() const;
    /// Null without an interface, or on a network without broadcast.
    QHostAddress getCurrentBroadCastAddress() const;

protected:
    /// As InitNetworkFilter(), with interfaces that the caller has found.
    bool showInterfaces(const QList<Corvel::NetworkInterfaceData>& interfaces,
                        const QString& preferredAddress);
    void initStyleOption(QStyleOptionComboBox* option) const override;
};

} // namespace CorvelGui
