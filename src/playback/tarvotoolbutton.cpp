#include "tarvotoolbutton.h"

#include <QCursor>
#include <QEnterEvent>

namespace CorvelGui {

namespace {

constexpr QSize hoverPixels(1000, 1000);

} // namespace

TarvoToolButton::TarvoToolButton(QWidget* parent) : QToolButton(parent)
{
    setProperty("TarvoPlayback", true);
    connect(this, &QToolButton::toggled, this, &TarvoToolButton::refreshHover);
}

void TarvoToolButton::setIcon(const QIcon& icon)
{
    if (m_normalIcon.isNull())
        m_normalIcon = icon;
    QToolButton::setIcon(icon);
}

void TarvoToolButton::enterEvent(QEnterEvent* event)
{
    QToolButton::enterEvent(event);
    if (m_normalIcon.isNull())
        m_normalIcon = icon();
    QToolButton::setIcon(getHoverIcon(icon()));
}

void TarvoToolButton::leaveEvent(QEvent* event)
{
    QToolButton::leaveEvent(event);
    QToolButton::setIcon(m_normalIcon);
}

QIcon TarvoToolButton::getHoverIcon(QIcon icon)
{
    const QIcon::Mode mode = isChecked() ? QIcon::Selected : QIcon::Active;
    for (const QIcon::State state : {QIcon::Off, QIcon::On}) {
        const QPixmap picture = icon.pixmap(hoverPixels, 1.0, mode, state);
        icon.addPixmap(picture, QIcon::Normal, state);
    }
    return icon;
}

void TarvoToolButton::refreshHover()
{
    if (isVisible() && rect().contains(mapFromGlobal(QCursor::pos())))
        QToolButton::setIcon(getHoverIcon(icon()));
}

} // namespace CorvelGui
