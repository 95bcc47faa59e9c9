// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractButton>
#include <QObject>
#include <QPointer>

namespace CorvelGui {

/// The two buttons at the ends of the ruler. A direction is -1 (earlier) or +1 (later).
class RulerArrows : public QObject
{
    Q_OBJECT

public:
    explicit RulerArrows(QWidget* ruler);

    void setEnabled(bool enabled);
    /// Shows the button held down until its release, which is then told.
    void hold(int direction);
    /// Lets go of a button whose release may never come.
    void letGo();
    QWidget* lowestButton() const { return m_left; }
    /// Puts the buttons to the ends of the ruler, below @p top.
    void layOut(int top);

Q_SIGNALS:
    /// The left mouse button went down on an arrow.
    void pressed(int direction);
    /// It came up again, or turned out to be up.
    void released();
    /// An arrow was activated in another way, such as by assistive technology.
    void activated(int direction);
    /// The mouse came onto an arrow.
    void entered();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QAbstractButton* createButton(const QString& iconPath, int direction);
    bool mouseEvent(QAbstractButton* button, const QMouseEvent* event);
    void retranslate();

    QWidget* const m_ruler;
    const QPointer<QAbstractButton> m_left;
    const QPointer<QAbstractButton> m_right;
};

} // namespace CorvelGui
