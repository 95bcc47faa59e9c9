#pragma once

#include "base/internalexport.h"

#include <QFont>
#include <QWidget>

namespace CorvelGui {

/// Says how long something is while it is dragged on a ruler; the mouse goes through it.
class CORVELGUI_INTERNAL_EXPORT LengthLabel : public QWidget
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
