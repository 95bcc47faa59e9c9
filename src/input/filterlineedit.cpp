#include "filterlineedit.h"

#include <QIcon>
#include <QKeyEvent>
#include <QStyle>
#include <QStyleOptionFrame>

namespace CorvelGui {

namespace {

constexpr QSize clearIconSize(16, 16);

} // namespace

FilterLineEdit::FilterLineEdit(QWidget* parent) : FancyLineEdit(parent), m_lastFilterText(text())
{
    takeClearIcon();
    setButtonVisible(Right, true);
    translateTexts();
    setAutoHideButton(Right, true);
    connect(this, &FancyLineEdit::rightButtonClicked, this, &QLineEdit::clear);
    connect(this, &QLineEdit::textChanged, this, &FilterLineEdit::slotTextChanged);
}

void FilterLineEdit::setClearOnEscape(bool on)
{
    m_clearOnEscape = on;
}

bool FilterLineEdit::clearOnEscape() const
{
    return m_clearOnEscape;
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
    FancyLineEdit::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        translateTexts();
    else if (event->type() == QEvent::StyleChange)
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
    if (current == m_lastFilterText)
        return;
    m_lastFilterText = current;
    Q_EMIT filterChanged(current);
}

bool FilterLineEdit::clearsOn(const QKeyEvent& event) const
{
    return event.key() == Qt::Key_Escape && m_clearOnEscape && hasFocus() &&
           !m_lastFilterText.isEmpty();
}

void FilterLineEdit::takeClearIcon()
{
    QStyleOptionFrame option;
    initStyleOption(&option);
    const QIcon icon = style()->standardIcon(QStyle::SP_LineEditClearButton, &option, this);
    // The button is larger than the icon, so take the finest that the style has.
    setButtonPixmap(Right, icon.pixmap(clearIconSize, qMax(2.0, devicePixelRatioF())));
}

void FilterLineEdit::translateTexts()
{
    // A placeholder of the client's own stays.
    if (placeholderText() == m_ownPlaceholder) {
        m_ownPlaceholder = tr("Filter");
        setPlaceholderText(m_ownPlaceholder);
    }
    setButtonToolTip(Right, tr("Clear text"));
}

} // namespace CorvelGui
