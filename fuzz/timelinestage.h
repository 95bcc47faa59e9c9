// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/Ruler>
#include <CorvelGui/ZoomTimeline>

#include <QEvent>
#include <QPointer>
#include <QWidget>

#include <functional>
#include <memory>
#include <optional>

/// A window with a ruler, alone or in a zoom timeline, as a client shows it. It checks what the
/// signals say, and on demand what must hold between two operations.
class TimelineStage
{
public:
    explicit TimelineStage(bool zoomTimeline);
    ~TimelineStage();

    QWidget* window() const { return m_window.get(); }
    /// Null once a reaction deleted it.
    CorvelGui::Ruler* ruler() const { return m_ruler; }
    /// Null where the ruler stands alone, too.
    CorvelGui::ZoomTimeline* timeline() const { return m_timeline; }
    /// The widget that the client made.
    QWidget* top() const;
    void deleteTop();

    /// Has @p reaction run inside a signal, after @p signalsBefore others.
    void react(int signalsBefore, std::function<void()> reaction);

    /// A mouse event as the window system reports it, at a place in the window.
    void mouse(QEvent::Type type, QPoint position, Qt::MouseButton button = Qt::NoButton,
               Qt::KeyboardModifiers modifiers = {});
    /// As if the window system had swallowed the releases.
    void forgetButtons() { m_buttons = {}; }
    /// Lets the running timers be due.
    void fireTimers();

    void setActive(bool active, bool blocked);

    void checkState() const;
    /// Releases what is held; then neither a mouse without buttons nor time may move anything.
    void checkIdle();

private:
    void watch();
    void watchChoices();
    void signalled();
    bool takesInput() const { return m_active && !m_blocked; }

    const std::unique_ptr<QWidget> m_window;
    QPointer<CorvelGui::Ruler> m_ruler;
    QPointer<CorvelGui::ZoomTimeline> m_timeline;

    std::function<void()> m_reaction;
    int m_signalsBefore = 0;

    Qt::MouseButtons m_buttons;
    bool m_active = false;
    bool m_blocked = false;
    bool m_viewMoving = false;    ///< as the ruler said last
    bool m_previewWanted = false; ///< likewise
    bool m_selecting = false;     ///< likewise
    int m_timestamp = 0;
};
