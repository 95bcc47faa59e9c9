// SPDX-License-Identifier: MIT
#include "pplayericonhelper.h"

#include "iconshapes.h"
#include "vectoricon.h"

namespace Hueloft {

QIcon PPlayerIconHelper::GetDateTimeIcon_32x32(bool followLook)
{
    return vectorIcon({IconShapes::dateTime, followLook ? IconInk::Look : IconInk::Neutral, 32});
}

} // namespace Hueloft
