// SPDX-License-Identifier: MIT
#include "fancylineedit.h"

#include "base/whilealive.h"
#include "fancylineeditprivate.h"
#include "menuplacement.h"

#include <QEvent>
#include <QPropertyAnimation>
#include <QStyle>

namespace CorvelGui {

namespace {

constexpr int fadeMSecs = 160;
constexpr int buttonOffset = 4;
constexpr int oxygenSpace = 24;
constexpr FancyLineEdit::Side bothSides[] = {FancyLineEdit::Left, FancyLineEdit::Right};

void fade(IconButton* button, float opacity)
{
    auto* animation = new QPropertyAnimation(button, "iconOpacity", button);
    animation->setDuration(fadeMSecs);
    animation->setEndValue(opacity);
    animation->start(QAbstractAnimation::DeleteWhenStopped);
}

} // namespace

FancyLineEdit::FancyLineEdit(QWidget* parent) : QLineEdit(parent), d(new FancyLineEditPrivate(this))
{
    ensurePolished();
    updateMargins();
    connect(this, &QLineEdit::textChanged, this, &FancyLineEdit::checkButtons);
    for (const Side side : bothSides) {
        connect(d->sides[side].button, &QAbstractButton::clicked, this,
                [this, side] { iconClicked(side); });
    }
}

void FancyLineEdit::setButtonVisible(Side side, bool visible)
{
    d->sides[side].button->setVisible(visible);
    d->sides[side].buttonEnabled = visible;
    updateMargins();
}

bool FancyLineEdit::isButtonVisible(Side side) const
{
    return d->sides[side].buttonEnabled;
}

void FancyLineEdit::setButtonPixmap(Side side, const QPixmap& pixmap)
{
    d->sides[side].pixmap = pixmap;
    d->sides[side].button->setPixmap(pixmap);
    updateMargins();
    updateButtonPositions();
    update();
}

QPixmap FancyLineEdit::buttonPixmap(Side side) const
{
    return d->sides[side].pixmap;
}

void FancyLineEdit::setButtonIcon(Side side, const QIcon& icon)
{
    d->sides[side].button->setIcon(icon);
}

QIcon FancyLineEdit::buttonIcon(Side side) const
{
    return d->sides[side].button->icon();
}

void FancyLineEdit::setButtonMenu(Side side, QMenu* menu)
{
    d->sides[side].menu = menu;
    d->sides[side].button->setIconOpacity(1.0F);
}

QMenu* FancyLineEdit::buttonMenu(Side side) const
{
    return d->sides[side].menu;
}

void FancyLineEdit::setMenuTabFocusTrigger(Side side, bool on)
{
    if (d->sides[side].menuTabFocusTrigger == on)
        return;
    d->sides[side].menuTabFocusTrigger = on;
    setButtonFocusPolicy(side, on ? Qt::TabFocus : Qt::NoFocus);
}

bool FancyLineEdit::hasMenuTabFocusTrigger(Side side) const
{
    return d->sides[side].menuTabFocusTrigger;
}

void FancyLineEdit::setAutoHideButton(Side side, bool on)
{
    IconButton* button = d->sides[side].button;
    button->setAutoHide(on);
    button->setIconOpacity(on && text().isEmpty() ? 0.0F : 1.0F);
}

bool FancyLineEdit::hasAutoHideButton(Side side) const
{
    return d->sides[side].button->hasAutoHide();
}

void FancyLineEdit::setButtonToolTip(Side side, const QString& text)
{
    d->sides[side].button->setToolTip(text);
    d->sides[side].button->setAccessibleName(text);
}

QString FancyLineEdit::buttonToolTip(Side side) const
{
    return d->sides[side].button->toolTip();
}

void FancyLineEdit::setButtonFocusPolicy(Side side, Qt::FocusPolicy policy)
{
    d->sides[side].usualFocusPolicy.reset();
    d->sides[side].button->setFocusPolicy(policy);
}

Qt::FocusPolicy FancyLineEdit::buttonFocusPolicy(Side side) const
{
    return d->sides[side].usualFocusPolicy.value_or(d->sides[side].button->focusPolicy());
}

void FancyLineEdit::setSpecialCompleter(QCompleter* completer)
{
    setCompleter(completer);
}

void FancyLineEdit::changeEvent(QEvent* event)
{
    QLineEdit::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange || event->type() == QEvent::StyleChange) {
        updateMargins();
        updateButtonPositions();
    }
}

void FancyLineEdit::resizeEvent(QResizeEvent* event)
{
    QLineEdit::resizeEvent(event);
    // The height decides how much room the icons take.
    updateMargins();
    updateButtonPositions();
}

void FancyLineEdit::checkButtons(const QString& text)
{
    if (!d->previousText.isEmpty() && !text.isEmpty())
        return;
    for (const Side side : bothSides) {
        if (hasAutoHideButton(side))
            fade(d->sides[side].button, text.isEmpty() ? 0.0F : 1.0F);
    }
    d->previousText = text;
}

void FancyLineEdit::iconClicked(Side side)
{
    if (QMenu* menu = d->sides[side].menu) {
        execMenuAtWidget(menu, d->sides[side].button);
        return;
    }
    whileAlive(
        this, [this, side] { Q_EMIT buttonClicked(side); },
        [this, side] {
            if (side == Left)
                Q_EMIT leftButtonClicked();
            else
                Q_EMIT rightButtonClicked();
        });
}

void FancyLineEdit::updateMargins()
{
    // Before it gets its first size, a widget has one that is far from what it will be.
    const int height = testAttribute(Qt::WA_Resized) ? this->height() : sizeHint().height();
    const auto space = [this, height](Side side) {
        if (!d->sides[side].buttonEnabled)
            return 0;
        const int width = height * d->aspectFactor(side) + 2 * buttonOffset;
        return style()->inherits("OxygenStyle") ? qMax(width, oxygenSpace) : width;
    };
    const QMargins margins(space(sideAt(Left)), 0, space(sideAt(Right)), 0);
    if (margins != textMargins())
        setTextMargins(margins);
}

void FancyLineEdit::updateButtonPositions()
{
    for (const Side end : bothSides) {
        const Side side = sideAt(end);
        const int iconWidth = height() * d->aspectFactor(side);
        const int x = end == Left ? buttonOffset : width() - buttonOffset - iconWidth;
        d->sides[side].button->setGeometry(x, 0, iconWidth, height());
    }
}

/// The side whose button stands at that end of the field on the screen.
FancyLineEdit::Side FancyLineEdit::sideAt(Side end) const
{
    if (layoutDirection() == Qt::LeftToRight)
        return end;
    return end == Left ? Right : Left;
}

} // namespace CorvelGui
