// SPDX-License-Identifier: MIT
#include "pcolorbutton.h"

#include "base/whilealive.h"
#include "colorchoice.h"

#include <QEvent>

namespace CorvelGui {

PColorButton::PColorButton(QWidget* parent) : QPushButton(parent)
{
    setAutoDefault(false);
    connect(this, &QPushButton::clicked, this, &PColorButton::choose);
    showColor();
}

void PColorButton::setAlphaEnabled(bool enabled)
{
    if (enabled == m_alphaEnabled)
        return;
    m_alphaEnabled = enabled;
    if (whileAlive(this, [&] { Q_EMIT alphaEnabledChanged(enabled); }))
        setColor(m_color);
}

void PColorButton::setColor(const QColor& color)
{
    QColor taken = color.toRgb();
    if (!m_alphaEnabled)
        taken.setAlpha(255);
    if (!color.isValid() || taken.rgba() == m_color.rgba())
        return;
    m_color = taken;
    showColor();
    Q_EMIT colorChanged(m_color);
}

void PColorButton::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        showColor();
    QPushButton::changeEvent(event);
}

void PColorButton::choose()
{
    openColorDialog(this, tr("Choose a colour"), m_color, m_alphaEnabled,
                    [this](const QColor& color) { setColor(color); });
}

void PColorButton::showColor()
{
    setIcon(colorSwatch(m_color));
    setText(colorCode(m_color));
    setAccessibleDescription(tr("Colour %1").arg(colorCode(m_color)));
}

} // namespace CorvelGui
