// SPDX-License-Identifier: MIT
#pragma once

#include "validatebaselineedit.h"

namespace CorvelGui {

/// A field that must not be empty. Blanks are a text.
class CORVELGUI_EXPORT NotEmptyLineEdit : public ValidateBaseLineEdit
{
    Q_OBJECT

public:
    explicit NotEmptyLineEdit(QWidget* parent = nullptr);
    ~NotEmptyLineEdit() override;

    void Validate() override;
};

} // namespace CorvelGui
