// SPDX-License-Identifier: MIT
#pragma once

#include "validatebaselineedit.h"

namespace CorvelGui {

/// A field for the path of an existing directory. The file system is asked on every judgement.
class CORVELGUI_EXPORT CheckDirLineEdit : public ValidateBaseLineEdit
{
    Q_OBJECT

public:
    explicit CheckDirLineEdit(QWidget* parent = nullptr);
    ~CheckDirLineEdit() override;

    void Validate() override;
};

} // namespace CorvelGui
