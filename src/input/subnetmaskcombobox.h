// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/corvelgui_export.h>

#include <QComboBox>

namespace CorvelGui {

/// Picks an IPv4 subnet mask by its prefix length, from 1 to 30. A new one shows 15.
class CORVELGUI_EXPORT SubNetMaskComboBox : public QComboBox
{
    Q_OBJECT
    Q_PROPERTY(int subNetMask READ getSubNetMask WRITE setSubNetMask NOTIFY subNetMaskChanged)

public:
    explicit SubNetMaskComboBox(QWidget* parent = nullptr);

    /// The prefix length.
    int getSubNetMask() const;
    /// The prefix length in decimal, such as "24".
    QString getSubNetMaskAsPrefixLength() const;
    /// The mask, such as "255.255.255.0".
    QString getSubNetMaskAsDotDecimal() const;

    /// A length outside 1 to 30 selects 16.
    void setSubNetMask(unsigned int prefixLength);

    /// What the box shows for a prefix length, such as "255.255.255.0 /24"; a text that says so for
    /// one outside 1 to 30.
    static QString getMaskAsString(int prefixLength);

Q_SIGNALS:
    /// Emitted when getSubNetMask() changes, whoever changed it. A receiver that wants to remove
    /// the box calls deleteLater(): QComboBox still works on itself after its own signals.
    void subNetMaskChanged(int prefixLength);
};

} // namespace CorvelGui
