// SPDX-License-Identifier: MIT
#include "shortcuts.h"

using CorvelGui::PPlaybar;

namespace Review {

Shortcuts defaultShortcuts()
{
    return {{PPlaybar::TrackStartButton, Qt::ALT | Qt::Key_Home},
            {PPlaybar::FastBackwardButton, Qt::CTRL | Qt::SHIFT | Qt::Key_Left},
            {PPlaybar::ReverseButton, Qt::SHIFT | Qt::Key_Space},
            {PPlaybar::FrameBackwardButton, Qt::CTRL | Qt::Key_Left},
            {PPlaybar::PauseButton, Qt::Key_Space},
            {PPlaybar::FrameForwardButton, Qt::CTRL | Qt::Key_Right},
            {PPlaybar::PlayButton, Qt::Key_Space},
            {PPlaybar::FastForwardButton, Qt::CTRL | Qt::SHIFT | Qt::Key_Right},
            {PPlaybar::TrackEndButton, Qt::ALT | Qt::Key_End}};
}

} // namespace Review
