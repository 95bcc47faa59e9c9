// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <optional>
#include <utility>

namespace CorvelGui {

/// Lets one seek pass at a time. Of the places that are wanted while one is under way the newest
/// comes next.
class SeekGate
{
public:
    bool isBusy() const { return m_asked.has_value(); }

    /// @p place is wanted. Returns whether it is to be asked for now.
    bool want(qint64 place)
    {
        if (!m_asked) {
            m_asked = place;
            return true;
        }
        if (place == *m_asked)
            m_next.reset(); // is on its way already
        else
            m_next = place;
        return false;
    }

    /// What was asked for is done. Returns what is to be asked for next.
    std::optional<qint64> done()
    {
        m_asked = m_asked ? std::exchange(m_next, {}) : std::nullopt;
        return m_asked;
    }

    void forget()
    {
        m_asked.reset();
        m_next.reset();
    }

private:
    std::optional<qint64> m_asked;
    std::optional<qint64> m_next;
};

} // namespace CorvelGui
