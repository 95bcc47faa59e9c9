// SPDX-License-Identifier: MIT
#include "filterlineedit.h"

#include <Hueloft/PIconHelper16x16>

#include <QIcon>
#include <QKeyEvent>
#include <QStyle>
#include <QStyleOptionFrame>

namespace CorvelGui {

namespace {

constexpr QSize clearIconSize(16, 16);

} // namespace

struct FilterLineEdit::Private
{
    bool clearOnEscape = true;
    QString lastFilterText;
    QString ownPlaceholder;
};

FilterLineEdit::FilterLineEdit(QWidget* parent)
    : FancyLineEdit(parent), d(std::make_unique<Private>())
{
    takeClearIcon();
    setButtonIcon(Right, Hueloft::PIconHelper16x16::GetTabCloseIcon());
    setButtonVisible(Right, true);
    retranslate();
    setAutoHideButton(Right, true);
    connect(this, &FancyLineEdit::rightButtonClicked, this, &QLineEdit::clear);
    connect(this, &QLineEdit::textChanged, this, &FilterLineEdit::slotTextChanged);
}

FilterLineEdit::~FilterLineEdit() = default;

void FilterLineEdit::setClearOnEscape(bool on)
{
    d->clearOnEscape = on;
}

bool FilterLineEdit::clearOnEscape() const
{
    return d->clearOnEscape;
}

bool FilterLineEdit::event(QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride && clearsOn(*static_cast<QKeyEvent*>(event))) {
        event->accept();
        return true;
    }
    return FancyLineEdit::event(event);
}

void FilterLineEdit::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    FancyLineEdit::changeEvent(event);
    if (event->type() == QEvent::StyleChange)
        takeClearIcon();
}

void FilterLineEdit::keyPressEvent(QKeyEvent* event)
{
    if (clearsOn(*event)) {
        event->accept();
        clear();
        return;
    }
    FancyLineEdit::keyPressEvent(event);
}

void FilterLineEdit::slotTextChanged()
{
    const QString current = text();
    if (current == d->lastFilterText)
        return;
    d->lastFilterText = current;
    Q_EMIT filterChanged(current);
}

bool FilterLineEdit::clearsOn(const QKeyEvent& event) const
{
    return event.key() == Qt::Key_Escape && d->clearOnEscape && hasFocus() &&
           !d->lastFilterText.isEmpty();
}

void FilterLineEdit::takeClearIcon()
{
    QStyleOptionFrame option;
    initStyleOption(&option);
    const QIcon icon = style()->standardIcon(QStyle::SP_LineEditClearButton, &option, this);
    setButtonPixmap(Right, icon.pixmap(clearIconSize, devicePixelRatioF()));
}

void FilterLineEdit::retranslate()
{
    // A placeholder of the client's own stays.
    if (placeholderText() == d->ownPlaceholder) {
        d->ownPlaceholder = tr("Filter");
        setPlaceholderText(d->ownPlaceholder);
    }
    setButtonToolTip(Right, tr("Clear text"));
}

} // namespace CorvelGui
