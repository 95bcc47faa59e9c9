// SPDX-License-Identifier: MIT
#pragma once

#include <Hueloft/PIconHelperBase>
#include <Hueloft/hueloft_export.h>

#include <QIcon>

namespace Hueloft {

/// Icons of what belongs to a player but stands outside its dark surface.
class HUELOFT_EXPORT PPlayerIconHelper : public PIconHelperBase
{
public:
    /// A calendar sheet with a clock. With @p followLook light in the dark look and dark in the
    /// light one, looked up whenever it is painted; without it in a mid tone that shows on any
    /// surface in either look.
    static QIcon GetDateTimeIcon_32x32(bool followLook);
};

} // namespace Hueloft
