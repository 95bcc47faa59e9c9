// SPDX-License-Identifier: MIT
#include "tarvotoolbutton.h"

#include <QCursor>
#include <QEnterEvent>

namespace CorvelGui {

namespace {

constexpr QSize hoverPixels(1000, 1000);

} // namespace

struct TarvoToolButton::Private
{
    QIcon normalIcon;
};

TarvoToolButton::TarvoToolButton(QWidget* parent)
    : QToolButton(parent), d(std::make_unique<Private>())
{
    setProperty("TarvoPlayback", true);
    connect(this, &QToolButton::toggled, this, &TarvoToolButton::refreshHover);
}

TarvoToolButton::~TarvoToolButton() = default;

void TarvoToolButton::setIcon(const QIcon& icon)
{
    if (d->normalIcon.isNull())
        d->normalIcon = icon;
    QToolButton::setIcon(icon);
}

void TarvoToolButton::enterEvent(QEnterEvent* event)
{
    QToolButton::enterEvent(event);
    if (d->normalIcon.isNull())
        d->normalIcon = icon();
    QToolButton::setIcon(getHoverIcon(icon()));
}

void TarvoToolButton::leaveEvent(QEvent* event)
{
    QToolButton::leaveEvent(event);
    QToolButton::setIcon(d->normalIcon);
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
