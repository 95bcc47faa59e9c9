// SPDX-License-Identifier: MIT
#include "checkfilenamelineedit.h"

#include "typedfile.h"

namespace CorvelGui {

CheckFileNameLineEdit::CheckFileNameLineEdit(QWidget* parent) : ValidateBaseLineEdit(parent) {}

CheckFileNameLineEdit::~CheckFileNameLineEdit() = default;

void CheckFileNameLineEdit::Validate()
{
    setError(!typedFile(text()).exists());
}

} // namespace CorvelGui
