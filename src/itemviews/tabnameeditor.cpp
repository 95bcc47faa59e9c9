// SPDX-License-Identifier: MIT
#include "tabnameeditor.h"

#include <QKeyEvent>

namespace CorvelGui {

namespace {

constexpr int longestTabName = 100;

bool isEnter(int key)
{
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

} // namespace

TabNameEditor::TabNameEditor(const QString& name, QWidget* parent) : QLineEdit(parent)
{
    setMaxLength(std::max(longestTabName, int(name.size())));
    setText(name);
    // Seen when the editor is empty: the name that stays.
    setPlaceholderText(name);
    setAccessibleName(tr("Name of the tab"));
    selectAll();
}

bool TabNameEditor::event(QEvent* event)
{
    // Neither Escape nor Enter is for a shortcut of the window while a name is edited.
    if (event->type() == QEvent::ShortcutOverride) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Escape || isEnter(key)) {
            event->accept();
            return true;
        }
    }
    return QLineEdit::event(event);
}

void TabNameEditor::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape) {
        event->accept();
        Q_EMIT cancelled();
    } else if (isEnter(event->key())) {
        event->accept();
        if (!text().trimmed().isEmpty())
            Q_EMIT nameEntered();
    } else {
        QLineEdit::keyPressEvent(event);
    }
}

void TabNameEditor::focusOutEvent(QFocusEvent* event)
{
    QLineEdit::focusOutEvent(event);
    // Its own context menu, and another window, do not end the editing.
    if (event->reason() == Qt::PopupFocusReason || event->reason() == Qt::ActiveWindowFocusReason)
        return;
    if (text().trimmed().isEmpty())
        Q_EMIT cancelled();
    else
        Q_EMIT nameEntered();
}

} // namespace CorvelGui
