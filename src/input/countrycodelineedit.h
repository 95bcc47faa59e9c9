// SPDX-License-Identifier: MIT
#pragma once

#include "validatebaselineedit.h"

namespace CorvelGui {

/// A field for a country code of two capital letters A to Z, such as DE.
class CORVELGUI_EXPORT CountryCodeLineEdit : public ValidateBaseLineEdit
{
    Q_OBJECT

public:
    explicit CountryCodeLineEdit(QWidget* parent = nullptr);
    ~CountryCodeLineEdit() override;

    void Validate() override;
};

} // namespace CorvelGui
