// SPDX-License-Identifier: MIT
#include "checkdirlineedit.h"

#include "typedfile.h"

namespace CorvelGui {

CheckDirLineEdit::CheckDirLineEdit(QWidget* parent) : ValidateBaseLineEdit(parent) {}

CheckDirLineEdit::~CheckDirLineEdit() = default;

void CheckDirLineEdit::Validate()
{
    setError(!typedFile(text()).isDir());
}

} // namespace CorvelGui
