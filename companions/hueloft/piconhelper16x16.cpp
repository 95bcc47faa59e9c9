// SPDX-License-Identifier: MIT
#include "piconhelper16x16.h"

#include "iconshapes.h"
#include "vectoricon.h"

namespace Hueloft {

QIcon PIconHelper16x16::GetTabCloseIcon()
{
    return vectorIcon({IconShapes::tabClose, IconInk::Look, 16});
}

QIcon PIconHelper16x16::GetVisibleIcon()
{
    return vectorIcon({IconShapes::visible, IconInk::Look, 16});
}

QIcon PIconHelper16x16::GetInVisibleIcon()
{
    return vectorIcon({IconShapes::invisible, IconInk::Look, 16});
}

} // namespace Hueloft
