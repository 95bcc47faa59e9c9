// SPDX-License-Identifier: MIT
#include "precentcombobox.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QSettings>
#include <QSignalBlocker>

namespace CorvelGui {

namespace {

constexpr int rememberedAtFirst = 10;
constexpr QLatin1StringView recentTextsKey("RecentTexts");

} // namespace

PRecentComboBox::PRecentComboBox(QWidget* parent) : QComboBox(parent)
{
    setEditable(true);
    setInsertPolicy(NoInsert);
    setMaxCount(rememberedAtFirst);
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
    view()->installEventFilter(this);
    adoptField();
    connect(this, &QComboBox::activated, this, &PRecentComboBox::rememberText,
            Qt::QueuedConnection);
    retranslate();
}

QStringList PRecentComboBox::recentTexts() const
{
    QStringList texts;
    for (int i = 0; i < count(); ++i)
        texts.append(itemText(i));
    return texts;
}

void PRecentComboBox::setRecentTexts(const QStringList& texts)
{
    QStringList taken;
    for (const QString& text : texts) {
        const bool isUsable = !text.trimmed().isEmpty() && text.size() <= longestText;
        if (isUsable && !taken.contains(text) && taken.size() < maxCount())
            taken.append(text);
    }
    if (taken == recentTexts())
        return;
    {
        const QSignalBlocker quiet(this);
        const QSignalBlocker quietField(lineEdit());
        const QString typed = currentText();
        const int cursor = lineEdit()->cursorPosition();
        clear();
        addItems(taken);
        setCurrentIndex(int(taken.indexOf(typed)));
        setEditText(typed);
        lineEdit()->setCursorPosition(cursor);
    }
    Q_EMIT recentTextsChanged(taken);
}

void PRecentComboBox::writeUserSettings(QSettings& settings) const
{
    settings.setValue(recentTextsKey, recentTexts());
}

void PRecentComboBox::readUserSettings(QSettings& settings)
{
    if (settings.contains(recentTextsKey))
        setRecentTexts(settings.value(recentTextsKey).toStringList());
}

void PRecentComboBox::rememberText()
{
    const QString text = currentText().trimmed();
    QStringList texts = recentTexts();
    texts.removeAll(text);
    texts.prepend(text);
    setRecentTexts(texts);
}

bool PRecentComboBox::event(QEvent* event)
{
    // A field that was set is there once it is about to be shown, and nothing is typed before.
    if (event->type() == QEvent::ChildPolished &&
        static_cast<QChildEvent*>(event)->child() == lineEdit())
        adoptField();
    return QComboBox::event(event);
}

void PRecentComboBox::adoptField()
{
    lineEdit()->installEventFilter(this);
    connect(lineEdit(), &QLineEdit::returnPressed, this, &PRecentComboBox::rememberText,
            Qt::UniqueConnection);
    // Texts that begin alike must not be completed to one that the user did not mean.
    if (QCompleter* texts = completer()) {
        texts->setCompletionMode(QCompleter::PopupCompletion);
        texts->setFilterMode(Qt::MatchContains);
    }
}

bool PRecentComboBox::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == view() && event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent*>(event)->matches(QKeySequence::Delete)) {
        forgetHighlighted();
        return true;
    }
    if (watched == lineEdit() && event->type() == QEvent::ContextMenu) {
        showFieldMenu(static_cast<QContextMenuEvent*>(event)->globalPos());
        return true;
    }
    return QComboBox::eventFilter(watched, event);
}

void PRecentComboBox::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QComboBox::changeEvent(event);
}

void PRecentComboBox::forgetHighlighted()
{
    const int row = view()->currentIndex().row();
    QStringList texts = recentTexts();
    if (row < 0 || row >= texts.size())
        return;
    texts.removeAt(row);
    setRecentTexts(texts);
    if (texts.isEmpty())
        hidePopup();
    else
        view()->setCurrentIndex(model()->index(qMin(row, count() - 1), modelColumn()));
}

void PRecentComboBox::showFieldMenu(QPoint position)
{
    QMenu* menu = lineEdit()->createStandardContextMenu();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addSeparator();
    QAction* forget = menu->addAction(tr("Forget recent entries"));
    forget->setEnabled(count() > 0);
    connect(forget, &QAction::triggered, this, &PRecentComboBox::forgetTexts);
    menu->popup(position);
}

void PRecentComboBox::retranslate()
{
    view()->setToolTip(tr("Delete forgets an entry"));
    view()->setAccessibleDescription(view()->toolTip());
}

} // namespace CorvelGui
