// SPDX-License-Identifier: MIT
#include "subnetmaskcombobox.h"

#include <Corvel/SubNetMask>

#include <QHostAddress>

using namespace Qt::StringLiterals;

namespace CorvelGui {

namespace {

constexpr int shortestPrefix = 1;
constexpr int longestPrefix = 30;
constexpr int initialPrefix = 15;
// Deliberately not the initial one.
constexpr int fallbackIndex = 15;

} // namespace

SubNetMaskComboBox::SubNetMaskComboBox(QWidget* parent) : QComboBox(parent)
{
    for (int prefix = shortestPrefix; prefix <= longestPrefix; ++prefix)
        addItem(getMaskAsString(prefix), prefix);
    setCurrentIndex(findData(initialPrefix));
    connect(this, &QComboBox::currentIndexChanged, this,
            [this] { Q_EMIT subNetMaskChanged(getSubNetMask()); });
}

int SubNetMaskComboBox::getSubNetMask() const
{
    return currentData().toInt();
}

QString SubNetMaskComboBox::getSubNetMaskAsPrefixLength() const
{
    return QString::number(getSubNetMask());
}

QString SubNetMaskComboBox::getSubNetMaskAsDotDecimal() const
{
    return Corvel::SubNetMask::fromPrefixLength(static_cast<unsigned char>(getSubNetMask()));
}

void SubNetMaskComboBox::setSubNetMask(unsigned int prefixLength)
{
    const int index = findData(prefixLength);
    setCurrentIndex(index < 0 ? fallbackIndex : index);
}

QString SubNetMaskComboBox::getMaskAsString(int prefixLength)
{
    if (prefixLength < shortestPrefix || prefixLength > longestPrefix)
        return tr("Error: Network Mask Value Invalid (1 to 30)");
    const QHostAddress mask(~quint32(0) << (32 - prefixLength));
    return u"%1 /%2"_s.arg(mask.toString()).arg(prefixLength);
}

} // namespace CorvelGui
