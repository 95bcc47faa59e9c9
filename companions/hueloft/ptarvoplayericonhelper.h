// SPDX-License-Identifier: MIT
#pragma once

#include <Hueloft/PIconHelperBase>
#include <Hueloft/hueloft_export.h>

#include <QIcon>

namespace Hueloft {

/// Icons of the playback buttons. They stand on the player's own surface, which the style sheets
/// keep dark in both looks, so they are light in both. QIcon::Selected is the highlight of a button
/// that is checked.
class HUELOFT_EXPORT PTarvoPlayerIconHelper : public PIconHelperBase
{
public:
    static QIcon GetPlay_32x32();
    static QIcon GetPause_32x32();
    static QIcon GetPlayReverse_32x32();
    static QIcon GetFastForward_32x32();
    static QIcon GetFastRewind_32x32();

    /// One frame back, one frame on.
    static QIcon GetStartSingle_32x32();
    static QIcon GetEndSingle_32x32();

    /// To the begin of the track, to its end.
    static QIcon GetStartDouble_32x32();
    static QIcon GetEndDoubleIcon_32x32();
};

} // namespace Hueloft
