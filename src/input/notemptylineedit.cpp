// SPDX-License-Identifier: MIT
#include "notemptylineedit.h"

namespace CorvelGui {

NotEmptyLineEdit::NotEmptyLineEdit(QWidget* parent) : ValidateBaseLineEdit(parent) {}

NotEmptyLineEdit::~NotEmptyLineEdit() = default;

void NotEmptyLineEdit::Validate()
{
    setError(text().isEmpty());
}

} // namespace CorvelGui
