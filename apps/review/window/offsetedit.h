// SPDX-License-Identifier: MIT
#pragma once

#include "footage/timecorrection.h"

#include <CorvelGui/ValidateBaseLineEdit>

namespace Review {

/// A field for how much a clock was slow.
class OffsetEdit : public CorvelGui::ValidateBaseLineEdit
{
    Q_OBJECT

public:
    using ValidateBaseLineEdit::ValidateBaseLineEdit;

    void Validate() override { setError(!TimeCorrection::parseOffset(text())); }
};

} // namespace Review
