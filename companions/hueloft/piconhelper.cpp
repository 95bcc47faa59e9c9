// SPDX-License-Identifier: MIT
#include "piconhelper.h"

#include "iconshapes.h"
#include "vectoricon.h"

namespace Hueloft {

namespace {

QIcon commandIcon(IconShape shape, bool followLook, int nominalSize = 32)
{
    return vectorIcon({shape, followLook ? IconInk::Look : IconInk::Neutral, nominalSize});
}

QIcon markerIcon(IconShape shape, bool onTimeline)
{
    return vectorIcon({.shape = shape,
                       .ink = onTimeline ? IconInk::Bright : IconInk::Neutral,
                       .nominalSize = 48,
                       .outlined = onTimeline});
}

} // namespace

QIcon PIconHelper::GetMarkerOutlined_48x48(bool onTimeline)
{
    return markerIcon(IconShapes::marker, onTimeline);
}

QIcon PIconHelper::GetMergerd_48x48(bool onTimeline)
{
    return markerIcon(IconShapes::mergedMarkers, onTimeline);
}

QIcon PIconHelper::GetPlusIcon_32x32(bool followLook)
{
    return commandIcon(IconShapes::plus, followLook);
}

QIcon PIconHelper::GetMinusIcon_32x32(bool followLook)
{
    return commandIcon(IconShapes::minus, followLook);
}

QIcon PIconHelper::GetCopyIcon_32x32(bool followLook)
{
    return commandIcon(IconShapes::copy, followLook);
}

QIcon PIconHelper::GetCopyRowsIcon_32x32(bool followLook)
{
    return commandIcon(IconShapes::copyRows, followLook);
}

QIcon PIconHelper::GetOpenIcon_32x32(bool followLook)
{
    return commandIcon(IconShapes::open, followLook);
}

QIcon PIconHelper::GetRefreshIcon_256x256(bool followLook)
{
    return commandIcon(IconShapes::refresh, followLook, 256);
}

QIcon PIconHelper::GetSettingsIconOriginal_32x32(bool followLook)
{
    return commandIcon(IconShapes::settings, followLook);
}

QImage PIconHelper::GetLockImage_32x32()
{
    // By the scale of 1, or it would be larger on high-density screens.
    return vectorIcon({IconShapes::lock, IconInk::Look, 32}).pixmap(QSize(32, 32), 1.0).toImage();
}

} // namespace Hueloft
