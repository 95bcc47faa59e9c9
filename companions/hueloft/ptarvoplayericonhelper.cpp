// SPDX-License-Identifier: MIT
#include "ptarvoplayericonhelper.h"

#include "iconshapes.h"
#include "vectoricon.h"

namespace Hueloft {

namespace {

QIcon playerIcon(IconShape shape)
{
    return vectorIcon({shape, IconInk::Bright, 32});
}

} // namespace

QIcon PTarvoPlayerIconHelper::GetPlay_32x32()
{
    return playerIcon(IconShapes::play);
}

QIcon PTarvoPlayerIconHelper::GetPause_32x32()
{
    return playerIcon(IconShapes::pause);
}

QIcon PTarvoPlayerIconHelper::GetPlayReverse_32x32()
{
    return playerIcon(IconShapes::playReverse);
}

QIcon PTarvoPlayerIconHelper::GetFastForward_32x32()
{
    return playerIcon(IconShapes::fastForward);
}

QIcon PTarvoPlayerIconHelper::GetFastRewind_32x32()
{
    return playerIcon(IconShapes::fastRewind);
}

QIcon PTarvoPlayerIconHelper::GetStartSingle_32x32()
{
    return playerIcon(IconShapes::startSingle);
}

QIcon PTarvoPlayerIconHelper::GetEndSingle_32x32()
{
    return playerIcon(IconShapes::endSingle);
}

QIcon PTarvoPlayerIconHelper::GetStartDouble_32x32()
{
    return playerIcon(IconShapes::startDouble);
}

QIcon PTarvoPlayerIconHelper::GetEndDoubleIcon_32x32()
{
    return playerIcon(IconShapes::endDouble);
}

} // namespace Hueloft
