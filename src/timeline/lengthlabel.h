// SPDX-License-Identifier: MIT
#pragma once

#include "base/internalexport.h"

#include <QFocusFrame>
#include <QFont>

namespace CorvelGui {

/// Says how long something is while it is dragged on a ruler. A focus frame, because those take no
/// mouse events, and assistive technology, which has the handles, does not come upon them.
class CORVELGUI_INTERNAL_EXPORT LengthLabel : public QFocusFrame
{
    Q_OBJECT

public:
    explicit LengthLabel(QWidget* ruler);

    /// Shows @p text with its middle above @p x, or as near as the ruler's ends allow.
    void say(const QString& text, double x, int top, int pointSize);
    QString text() const { return m_text; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_text;
    QFont m_font;
};

} // namespace CorvelGui
