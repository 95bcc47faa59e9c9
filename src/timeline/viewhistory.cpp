// SPDX-License-Identifier: MIT
#include "viewhistory.h"

using namespace std::chrono_literals;

namespace CorvelGui {

namespace {

constexpr auto longestPause = 600ms; // between two turns that count as one
constexpr std::size_t mostViews = 100;

} // namespace

void ViewHistory::zoomed(const View& left, Zoom zoom, Clock::time_point now)
{
    const bool goesOn = zoom == m_last && zoom != Zoom::Whole &&
                        (zoom == Zoom::Gesture || now - m_lastTime < longestPause);
    m_last = zoom;
    m_lastTime = now;
    m_forward.clear();
    if (goesOn)
        return;
    m_back.push_back(left);
    if (m_back.size() > mostViews)
        m_back.erase(m_back.begin());
}

std::optional<ViewHistory::View> ViewHistory::back(const View& shown)
{
    return go(m_back, m_forward, shown);
}

std::optional<ViewHistory::View> ViewHistory::forward(const View& shown)
{
    return go(m_forward, m_back, shown);
}

std::optional<ViewHistory::View> ViewHistory::go(std::vector<View>& from, std::vector<View>& to,
                                                 const View& shown)
{
    endGesture();
    if (from.empty())
        return {};
    const View view = from.back();
    from.pop_back();
    to.push_back(shown);
    return view;
}

void ViewHistory::clear()
{
    m_back.clear();
    m_forward.clear();
    endGesture();
}

} // namespace CorvelGui
