// SPDX-License-Identifier: MIT
#pragma once

#include "base/internalexport.h"
#include "timescale.h"

#include <chrono>
#include <optional>
#include <vector>

namespace CorvelGui {

/// The views that were left by zooming, to go back to and forward again. It reads no clock: whoever
/// owns one passes the time in.
class CORVELGUI_INTERNAL_EXPORT ViewHistory
{
public:
    using Clock = std::chrono::steady_clock;
    using View = TimeScale::View;

    /// How a zoom came about.
    enum class Zoom {
        Whole,  ///< at once
        Turn,   ///< by one of several turns of a wheel or strokes of a key
        Gesture ///< by one of the moves of a gesture, until endGesture()
    };

    /// The zoom is another than in @p left. Turns that follow each other closely count as one, and
    /// so do the moves of a gesture.
    void zoomed(const View& left, Zoom zoom, Clock::time_point now);
    void endGesture() { m_last = Zoom::Whole; }

    /// Leaves @p shown and returns what to show instead.
    std::optional<View> back(const View& shown);
    std::optional<View> forward(const View& shown);
    bool canGoBack() const { return !m_back.empty(); }
    bool canGoForward() const { return !m_forward.empty(); }
    void clear();

private:
    std::optional<View> go(std::vector<View>& from, std::vector<View>& to, const View& shown);

    std::vector<View> m_back;
    std::vector<View> m_forward;
    Zoom m_last = Zoom::Whole;
    Clock::time_point m_lastTime;
};

} // namespace CorvelGui
