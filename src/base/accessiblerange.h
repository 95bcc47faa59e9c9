// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessible>
#include <QObject>

#include <functional>

class QWidget;

namespace CorvelGui {

/// Lets assistive technology read and move a widget that paints a range of its own. The widget owns
/// one as a member, so that nothing asks it any more once its state is gone.
class AccessibleRange : public QObject
{
    Q_OBJECT

public:
    struct Description
    {
        QAccessible::Role role;
        /// Used while the widget has no accessibleName() of its own.
        std::function<QString()> name;
        std::function<double()> minimum;
        std::function<double()> maximum;
        std::function<double()> value;
        /// The smallest move that makes sense.
        std::function<double()> step;
        /// The value as it is spoken.
        std::function<QString()> text;
        /// Moves as the user would, signals included. Called with values from minimum to maximum,
        /// and only while the widget is enabled; may delete the widget.
        std::function<void(double)> move;
    };

    AccessibleRange(QWidget* widget, Description description);

    const Description& description() const { return m_description; }

    /// Tells assistive technology that the value is another one now.
    void reportValueChange();

private:
    const Description m_description;
};

} // namespace CorvelGui
