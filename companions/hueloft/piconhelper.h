// SPDX-License-Identifier: MIT
#pragma once

#include <Hueloft/PIconHelperBase>
#include <Hueloft/hueloft_export.h>

#include <QIcon>
#include <QImage>

namespace Hueloft {

/// Icons of commands and of timeline markers. The number in a name is the nominal size, the first
/// of the icon's available sizes; the icons are drawn from outlines and are crisp at every size.
///
/// With `followLook` an icon looks up its colour whenever it is painted: light strokes in the dark
/// look, dark strokes in the light one. Icons that exist already change with the look; a pixmap
/// taken from them does not. Without it the icon is drawn in a mid tone that shows on any surface
/// in either look.
class HUELOFT_EXPORT PIconHelper : public PIconHelperBase
{
public:
    /// A marker on the timeline. The timeline is dark in both looks: with @p onTimeline the marker
    /// is light with a dark rim in both, without it in the mid tone.
    static QIcon GetMarkerOutlined_48x48(bool onTimeline);
    /// Several markers that stand too close together to be told apart; @p onTimeline as above.
    static QIcon GetMergerd_48x48(bool onTimeline);

    static QIcon GetPlusIcon_32x32(bool followLook);
    static QIcon GetMinusIcon_32x32(bool followLook);
    static QIcon GetCopyIcon_32x32(bool followLook);
    static QIcon GetCopyRowsIcon_32x32(bool followLook);
    static QIcon GetOpenIcon_32x32(bool followLook);
    static QIcon GetRefreshIcon_256x256(bool followLook);
    static QIcon GetSettingsIconOriginal_32x32(bool followLook);

    /// A closed lock, 32 x 32 pixels, in the look that is active at the time of the call.
    static QImage GetLockImage_32x32();
};

} // namespace Hueloft
