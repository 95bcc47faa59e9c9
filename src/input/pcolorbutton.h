// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/corvelgui_export.h>

#include <QColor>
#include <QPushButton>

namespace CorvelGui {

/// A button that shows a colour, as a swatch and by its code, and asks for another one when it is
/// clicked. The text, the icon and the accessible description belong to the class.
class CORVELGUI_EXPORT PColorButton : public QPushButton
{
    Q_OBJECT
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged USER true)
    Q_PROPERTY(
        bool alphaEnabled READ isAlphaEnabled WRITE setAlphaEnabled NOTIFY alphaEnabledChanged)

public:
    /// Black at first.
    explicit PColorButton(QWidget* parent = nullptr);

    /// Always valid, and opaque unless alpha is enabled.
    QColor color() const { return m_color; }
    /// Whether colours may be transparent; off at first. Switching it off makes the colour opaque.
    bool isAlphaEnabled() const { return m_alphaEnabled; }
    void setAlphaEnabled(bool enabled);

public Q_SLOTS:
    /// An invalid colour changes nothing; without alpha, how transparent @p color is does not
    /// count.
    void setColor(const QColor& color);

Q_SIGNALS:
    /// Emitted when the colour is another one, whoever chose it.
    void colorChanged(const QColor& color);
    void alphaEnabledChanged(bool enabled);

protected:
    void changeEvent(QEvent* event) override;

private:
    void choose();
    void showColor();

    QColor m_color = Qt::black;
    bool m_alphaEnabled = false;
};

} // namespace CorvelGui
