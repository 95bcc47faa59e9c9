// SPDX-License-Identifier: MIT
#include "iplineedit.h"

#include <QHostAddress>

namespace CorvelGui {

IpLineEdit::IpLineEdit(QWidget* parent) : ValidateBaseLineEdit(parent) {}

IpLineEdit::~IpLineEdit() = default;

void IpLineEdit::Validate()
{
    QHostAddress address;
    if (!address.setAddress(text())) {
        setError(false);
        return;
    }
    setError(QHostAddress(address.toIPv4Address()).toString() != text());
}

} // namespace CorvelGui
