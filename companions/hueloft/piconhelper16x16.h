// SPDX-License-Identifier: MIT
#pragma once

#include <Hueloft/PIconHelperBase>
#include <Hueloft/hueloft_export.h>

#include <QIcon>

namespace Hueloft {

/// Small icons, drawn for 16 x 16 pixels. They follow the look: their colour is looked up whenever
/// they are painted.
class HUELOFT_EXPORT PIconHelper16x16 : public PIconHelperBase
{
public:
    static QIcon GetTabCloseIcon();
    static QIcon GetVisibleIcon();
    static QIcon GetInVisibleIcon();
};

} // namespace Hueloft
