// SPDX-License-Identifier: MIT
#pragma once

#include "validatebaselineedit.h"

namespace CorvelGui {

/// A field for an IPv4 address that may also hold another text, such as a host name.
///
/// Red only while the text is an address, but not an IPv4 address in its usual form: ::1 is wrong,
/// and so is any other spelling of 192.168.1.1. What is no address at all is not judged, the empty
/// text included.
class CORVELGUI_EXPORT IpLineEdit : public ValidateBaseLineEdit
{
    Q_OBJECT

public:
    explicit IpLineEdit(QWidget* parent = nullptr);
    ~IpLineEdit() override;

    void Validate() override;
};

} // namespace CorvelGui
