// SPDX-License-Identifier: MIT
#include "ptabwidget.h"

#include "base/whilealive.h"
#include "frame/stringhelper.h"
#include "tabnameeditor.h"

#include <QEvent>
#include <QKeyEvent>
#include <QPointer>
#include <QTabBar>

#include <utility>

using CorvelGui::StringHelper;
using CorvelGui::TabNameEditor;
using namespace Qt::StringLiterals;

namespace {

QString withoutMnemonic(const QString& text)
{
    QString plain;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] == u'&' && ++i == text.size())
            break;
        plain += text[i];
    }
    return plain;
}

} // namespace

struct PTabWidget::Private
{
    bool renamable = true;
    QPointer<TabNameEditor> editor;
    QPointer<QWidget> editedPage;
};

PTabWidget::PTabWidget(QWidget* parent) : QTabWidget(parent), d(std::make_unique<Private>())
{
    setTabsClosable(true);
    setMovable(true);
    // Long names must not make the window wider than the screen.
    setUsesScrollButtons(true);
    tabBar()->installEventFilter(this);
    connect(this, &QTabWidget::tabCloseRequested, this, &PTabWidget::closeTab);
    connect(this, &QTabWidget::tabBarDoubleClicked, this, [this](int index) {
        if (d->renamable)
            editTabName(index);
    });
    connect(this, &QTabWidget::currentChanged, this, [this] {
        // The number of the current tab also changes when others come or move.
        if (currentWidget() != d->editedPage)
            takeName();
    });
    connect(tabBar(), &QTabBar::tabMoved, this, &PTabWidget::placeEditor);
}

PTabWidget::~PTabWidget() = default;

void PTabWidget::setTabsRenamable(bool renamable)
{
    d->renamable = renamable;
}

bool PTabWidget::tabsRenamable() const
{
    return d->renamable;
}

QString PTabWidget::tabName(int index) const
{
    return withoutMnemonic(tabText(index));
}

void PTabWidget::setTabName(int index, const QString& name)
{
    const QString text = name.trimmed();
    if (!text.isEmpty())
        setTabText(index, StringHelper::plainLabel(text));
}

void PTabWidget::editTabName(int index)
{
    if (!widget(index) || !isTabEnabled(index))
        return;
    if (!CorvelGui::whileAlive(this, [this] { takeName(); }))
        return;
    d->editedPage = widget(index);
    d->editor = new TabNameEditor(tabName(index), tabBar());
    connect(d->editor, &TabNameEditor::nameEntered, this, &PTabWidget::takeName);
    connect(d->editor, &TabNameEditor::cancelled, this, &PTabWidget::endEditing);
    placeEditor();
    d->editor->show();
    d->editor->setFocus(Qt::OtherFocusReason);
}

void PTabWidget::placeEditor()
{
    if (!d->editor)
        return;
    const int index = indexOf(d->editedPage);
    if (index < 0)
        endEditing();
    else
        d->editor->setGeometry(tabBar()->tabRect(index));
}

void PTabWidget::takeName()
{
    if (!d->editor)
        return;
    const QString name = d->editor->text().trimmed();
    const int index = indexOf(d->editedPage);
    endEditing();
    if (index < 0 || name.isEmpty() || name == tabName(index))
        return;
    setTabName(index, name);
    Q_EMIT tabRenamed(index, name);
}

void PTabWidget::endEditing()
{
    // Forgotten first, because hiding it takes the focus from it.
    TabNameEditor* editor = std::exchange(d->editor, nullptr);
    if (!editor)
        return;
    const bool hadFocus = editor->hasFocus();
    editor->hide();
    editor->deleteLater();
    if (hadFocus)
        tabBar()->setFocus(Qt::OtherFocusReason);
}

void PTabWidget::closeTab(int index)
{
    const QPointer<QWidget> page = widget(index);
    if (!page)
        return;
    const QPointer<PTabWidget> alive(this);
    const bool mayGo = page->close();
    // The page may have asked the user, and anything may have happened meanwhile.
    if (!mayGo || !alive)
        return;
    const int place = page ? indexOf(page) : -1;
    if (place < 0)
        return;
    removeTab(place);
    if (page)
        page->deleteLater();
    if (alive)
        Q_EMIT tabClosed(place);
}

bool PTabWidget::eventFilter(QObject* object, QEvent* event)
{
    // Tabs change their places with the size of the bar and with their texts and icons.
    if (object == tabBar() && (event->type() == QEvent::Resize || event->type() == QEvent::Paint))
        placeEditor();
    return QTabWidget::eventFilter(object, event);
}

void PTabWidget::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_F2 && event->modifiers() == Qt::NoModifier && d->renamable)
        editTabName(currentIndex());
    else
        QTabWidget::keyPressEvent(event);
}

void PTabWidget::tabInserted(int index)
{
    QTabWidget::tabInserted(index);
    placeEditor();
}

void PTabWidget::tabRemoved(int index)
{
    QTabWidget::tabRemoved(index);
    placeEditor();
}
