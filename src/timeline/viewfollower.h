// SPDX-License-Identifier: MIT
#pragma once

#include "base/internalexport.h"
#include "ruler.h"

namespace CorvelGui {

class TimeScale;

/// Moves a view after the play position, and knows when to leave that to the user.
///
/// It yields to any other move that leaves a view in which it would not have shown the position:
/// without the position in it, or with it beside the middle. It goes on once the view shows the
/// position as the mode wants it, or on request.
class CORVELGUI_INTERNAL_EXPORT ViewFollower
{
public:
    using Mode = Ruler::FollowMode;

    Mode mode() const { return m_mode; }
    void setMode(Mode mode);
    bool isFollowing() const { return m_mode != Mode::Off && !m_yielded; }

    /// Moves the view of @p scale after the position @p now, unless it has yielded. Returns whether
    /// the view moved.
    bool follow(TimeScale& scale, qint64 now) const;
    /// To be called when somebody else moved the view or, while it has yielded, the position.
    void notice(const TimeScale& scale, qint64 now);
    void resume() { m_yielded = false; }

private:
    qint64 startFor(const TimeScale& scale, qint64 now) const;

    Mode m_mode = Mode::Off;
    bool m_yielded = false;
};

} // namespace CorvelGui
