#pragma once

#include <QAbstractButton>
#include <QObject>
#include <QPointer>
#include <QTimer>

#include <functional>

namespace CorvelGui {

/// The two buttons at the ends of the ruler: one step on a press, and another every 200 ms while a
/// button is held.
class RulerArrows : public QObject
{
    Q_OBJECT

public:
    /// @p canStep says whether there is still something in a direction (-1 earlier, +1 later).
    RulerArrows(QWidget* ruler, std::function<bool(int direction)> canStep);

    void setEnabled(bool enabled);
    /// Ends the repetition of a held button.
    void stop() { m_timer.stop(); }
    QWidget* lowestButton() const { return m_left; }
    /// Puts the buttons to the ends of the ruler, below @p top.
    void layOut(int top);

Q_SIGNALS:
    void step(int direction);
    void released();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void press(int direction);
    void repeat();

    QWidget* const m_ruler;
    const std::function<bool(int)> m_canStep;
    const QPointer<QAbstractButton> m_left;
    const QPointer<QAbstractButton> m_right;
    QTimer m_timer;
    int m_direction = 0;
};

} // namespace CorvelGui
