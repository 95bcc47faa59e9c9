// SPDX-License-Identifier: MIT
#pragma once

#include "validatebaselineedit.h"

namespace CorvelGui {

/// A field for a path where something exists, a file or a directory. The file system is asked on
/// every judgement.
class CORVELGUI_EXPORT CheckFileNameLineEdit : public ValidateBaseLineEdit
{
    Q_OBJECT

public:
    explicit CheckFileNameLineEdit(QWidget* parent = nullptr);
    ~CheckFileNameLineEdit() override;

    void Validate() override;
};

} // namespace CorvelGui
