// SPDX-License-Identifier: MIT
#pragma once

#include "pplaybar.h"

#include <QCoreApplication>

#include <array>

namespace CorvelGui {

/// What is possible in a state, and the button that stands for it. Indexed by PlaybackState.
struct StateRule
{
    PPlaybar::PlaybackSpeed slowest;
    PPlaybar::PlaybackSpeed fastest;
    PPlaybar::PlaybackSpeed onEntry;
    PPlaybar::PlaybackButton button;
};

inline constexpr std::array stateRules{
    StateRule{PPlaybar::Speed2, PPlaybar::Speed1024, PPlaybar::Speed2,
              PPlaybar::FastBackwardButton},
    StateRule{PPlaybar::Speed1, PPlaybar::Speed1, PPlaybar::Speed1, PPlaybar::ReverseButton},
    StateRule{PPlaybar::Speed1_8, PPlaybar::Speed1_2, PPlaybar::Speed1_2,
              PPlaybar::SlowReverseButton},
    StateRule{PPlaybar::SpeedZero, PPlaybar::SpeedZero, PPlaybar::SpeedZero, PPlaybar::PauseButton},
    StateRule{PPlaybar::Speed1_8, PPlaybar::Speed1_2, PPlaybar::Speed1_2,
              PPlaybar::SlowForwardButton},
    StateRule{PPlaybar::Speed1, PPlaybar::Speed1, PPlaybar::Speed1, PPlaybar::PlayButton},
    StateRule{PPlaybar::Speed2, PPlaybar::Speed1024, PPlaybar::Speed2, PPlaybar::FastForwardButton},
};

/// Indexed by PlaybackSpeed.
struct SpeedRule
{
    float factor;
    const char* text;
    PPlaybar::PlaybackSpeed next;
    PPlaybar::PlaybackSpeed previous;
};

// The fast speeds go round in both directions, the slow ones end at 1x.
inline constexpr std::array speedRules{
    SpeedRule{0.0F, QT_TRANSLATE_NOOP("QObject", "0"), PPlaybar::SpeedZero, PPlaybar::SpeedZero},
    SpeedRule{0.125F, QT_TRANSLATE_NOOP("QObject", "1/8"), PPlaybar::Speed1_4, PPlaybar::SpeedZero},
    SpeedRule{0.25F, QT_TRANSLATE_NOOP("QObject", "1/4"), PPlaybar::Speed1_2, PPlaybar::Speed1_8},
    SpeedRule{0.5F, QT_TRANSLATE_NOOP("QObject", "1/2"), PPlaybar::Speed1, PPlaybar::Speed1_4},
    SpeedRule{1.0F, QT_TRANSLATE_NOOP("QObject", "1"), PPlaybar::Speed1, PPlaybar::Speed1_2},
    SpeedRule{2.0F, QT_TRANSLATE_NOOP("QObject", "2"), PPlaybar::Speed4, PPlaybar::Speed1024},
    SpeedRule{4.0F, QT_TRANSLATE_NOOP("QObject", "4"), PPlaybar::Speed8, PPlaybar::Speed2},
    SpeedRule{8.0F, QT_TRANSLATE_NOOP("QObject", "8"), PPlaybar::Speed16, PPlaybar::Speed4},
    SpeedRule{16.0F, QT_TRANSLATE_NOOP("QObject", "16"), PPlaybar::Speed32, PPlaybar::Speed8},
    SpeedRule{32.0F, QT_TRANSLATE_NOOP("QObject", "32"), PPlaybar::Speed64, PPlaybar::Speed16},
    SpeedRule{64.0F, QT_TRANSLATE_NOOP("QObject", "64"), PPlaybar::Speed128, PPlaybar::Speed32},
    SpeedRule{128.0F, QT_TRANSLATE_NOOP("QObject", "128"), PPlaybar::Speed256, PPlaybar::Speed64},
    SpeedRule{256.0F, QT_TRANSLATE_NOOP("QObject", "256"), PPlaybar::Speed512, PPlaybar::Speed128},
    SpeedRule{512.0F, QT_TRANSLATE_NOOP("QObject", "512"), PPlaybar::Speed1024, PPlaybar::Speed256},
    SpeedRule{1024.0F, QT_TRANSLATE_NOOP("QObject", "1024"), PPlaybar::Speed2, PPlaybar::Speed512},
};

/// Null for a value outside the table: clients hand in what their player says.
template <typename Rules>
const typename Rules::value_type* entryAt(const Rules& rules, int value)
{
    return value >= 0 && size_t(value) < rules.size() ? &rules[size_t(value)] : nullptr;
}

} // namespace CorvelGui
