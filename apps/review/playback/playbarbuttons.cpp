#include "playbarbuttons.h"

using CorvelGui::PPlaybar;

namespace Review {

QList<PlaybarButtons::Button> PlaybarButtons::inOrder()
{
    return {
        PPlaybar::TrackStartButton,    PPlaybar::FastBackwardButton, PPlaybar::ReverseButton,
        PPlaybar::FrameBackwardButton, PPlaybar::PauseButton,        PPlaybar::FrameForwardButton,
        PPlaybar::PlayButton,          PPlaybar::FastForwardButton,  PPlaybar::TrackEndButton};
}

QString PlaybarButtons::nameOf(Button button)
{
    switch (button) {
    case PPlaybar::TrackStartButton:
        return tr("To the begin");
    case PPlaybar::FastBackwardButton:
        return tr("Fast backward");
    case PPlaybar::ReverseButton:
    case PPlaybar::SlowReverseButton:
        return tr("Play backward");
    case PPlaybar::FrameBackwardButton:
        return tr("Previous frame");
    case PPlaybar::PauseButton:
        return tr("Pause");
    case PPlaybar::FrameForwardButton:
        return tr("Next frame");
    case PPlaybar::SlowForwardButton:
    case PPlaybar::PlayButton:
        return tr("Play");
    case PPlaybar::FastForwardButton:
        return tr("Fast forward");
    case PPlaybar::TrackEndButton:
        return tr("To the end");
    }
    return {};
}

} // namespace Review
