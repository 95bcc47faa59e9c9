// SPDX-License-Identifier: MIT
#pragma once

#include "base/internalexport.h"

#include <QWidget>

namespace CorvelGui {

class KeyboardFocus;

/// The handle at one end of the range that is selected on a ruler: a line on the column of the end,
/// and a grip outside of the range. It only looks like that; RulerRange does the rest.
class CORVELGUI_INTERNAL_EXPORT RangeHandle : public QWidget
{
    Q_OBJECT

public:
    enum class End { Begin, End };

    RangeHandle(End end, QWidget* ruler);

    End end() const { return m_end; }
    /// Puts the line on a column of the ruler, from @p top to the foot of the ruler.
    void standAt(int column, int top, int gripHeight);
    /// The column of the line.
    int column() const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QRect line() const;
    QRect grip() const;

    const End m_end;
    const KeyboardFocus* const m_focus;
    int m_gripHeight = 0;
};

} // namespace CorvelGui
