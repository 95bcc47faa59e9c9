// SPDX-License-Identifier: MIT
#include "plastactiontoolbutton.h"

#include <QAction>
#include <QActionEvent>
#include <QMenu>
#include <QPointer>
#include <QSettings>

#include <algorithm>

namespace CorvelGui {

namespace {

constexpr QLatin1StringView lastActionKey("LastAction");

/// What can be chosen in @p menu and its submenus, in order.
QList<QAction*> choicesOf(const QMenu& menu)
{
    QList<QAction*> choices;
    for (QAction* action : menu.actions()) {
        if (action->menu())
            choices += choicesOf(*action->menu());
        else if (action->isVisible() && !action->isSeparator())
            choices.append(action);
    }
    return choices;
}

} // namespace

struct PLastActionToolButton::Private
{
    QMenu* choices = nullptr;
    QPointer<QAction> chosen;
    QPointer<QAction> shown;
    QString name; ///< of what was chosen, also while the menu has no such action
};

PLastActionToolButton::PLastActionToolButton(QWidget* parent)
    : QToolButton(parent), d(std::make_unique<Private>())
{
    d->choices = new QMenu(this);
    d->choices->installEventFilter(this);
    setMenu(d->choices);
    setPopupMode(MenuButtonPopup);
    setFocusPolicy(Qt::StrongFocus);
    connect(d->choices, &QMenu::triggered, this, &PLastActionToolButton::setLastAction);
    connect(this, &QToolButton::clicked, this, &PLastActionToolButton::repeat);
    refresh();
}

PLastActionToolButton::~PLastActionToolButton() = default;

QAction* PLastActionToolButton::lastAction() const
{
    return d->shown;
}

void PLastActionToolButton::writeUserSettings(QSettings& settings) const
{
    if (!d->name.isEmpty())
        settings.setValue(lastActionKey, d->name);
}

void PLastActionToolButton::readUserSettings(QSettings& settings)
{
    const QString name = settings.value(lastActionKey).toString();
    if (name.isEmpty())
        return;
    d->name = name;
    d->chosen.clear();
    refresh();
}

void PLastActionToolButton::setLastAction(QAction* action)
{
    if (!action || !choicesOf(*d->choices).contains(action))
        return;
    d->chosen = action;
    d->name = action->objectName();
    refresh();
}

bool PLastActionToolButton::eventFilter(QObject* watched, QEvent* event)
{
    const bool handled = QToolButton::eventFilter(watched, event);
    switch (event->type()) {
    case QEvent::ActionAdded:
    case QEvent::ActionRemoved:
    case QEvent::ActionChanged:
        // The menu hears of it only after this.
        QMetaObject::invokeMethod(this, &PLastActionToolButton::refresh, Qt::QueuedConnection);
        break;
    default:
        break;
    }
    return handled;
}

void PLastActionToolButton::repeat()
{
    if (d->shown && d->shown->isEnabled())
        d->shown->trigger();
    else
        showMenu();
}

void PLastActionToolButton::refresh()
{
    const QList<QAction*> choices = choicesOf(*d->choices);
    if (!choices.contains(d->chosen.data())) {
        const auto named = std::ranges::find_if(choices, [this](const QAction* action) {
            return !d->name.isEmpty() && action->objectName() == d->name;
        });
        d->chosen = named != choices.end() ? *named : nullptr;
    }
    QAction* action = d->chosen;
    if (!action) {
        const auto enabled = std::ranges::find_if(choices, &QAction::isEnabled);
        action = enabled != choices.end() ? *enabled : choices.value(0);
    }
    setIcon(action ? action->icon() : QIcon());
    setText(action ? action->iconText() : QString());
    setToolTip(action ? action->toolTip() : QString());
    if (action == d->shown)
        return;
    if (d->shown)
        d->shown->disconnect(this);
    d->shown = action;
    if (action) {
        connect(action, &QAction::changed, this, &PLastActionToolButton::refresh);
        connect(action, &QObject::destroyed, this, &PLastActionToolButton::refresh,
                Qt::QueuedConnection);
    }
    Q_EMIT lastActionChanged(action);
}

} // namespace CorvelGui
