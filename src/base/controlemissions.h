// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QPointer>
#include <QWidget>

#include <memory>
#include <utility>

namespace CorvelGui {

/// For a composite widget that emits while a control in it handles an event. A receiver may delete
/// the widget, also within an event loop of its own, but Qt's buttons and sliders touch themselves
/// after their signals: the controls then stay until the outermost emission has ended.
class ControlEmissions
{
public:
    template <typename Emission>
    void run(Emission&& emission)
    {
        const std::shared_ptr<State> state = m_state;
        ++state->running;
        std::forward<Emission>(emission)();
        if (--state->running > 0)
            return;
        // Not earlier: deleteLater() within the event loop of a receiver would not wait for us.
        for (const QPointer<QWidget>& control : std::exchange(state->leftOver, {}))
            if (control)
                control->deleteLater();
    }

    /// To be called by the destructor of the widget.
    void release(const QList<QWidget*>& controls)
    {
        if (m_state->running == 0)
            return;
        for (QWidget* control : controls) {
            control->setParent(nullptr);
            m_state->leftOver.append(control);
        }
    }

private:
    struct State
    {
        int running = 0;
        QList<QPointer<QWidget>> leftOver;
    };
    const std::shared_ptr<State> m_state = std::make_shared<State>();
};

} // namespace CorvelGui
