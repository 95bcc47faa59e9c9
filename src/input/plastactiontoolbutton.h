// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/IUserSettings>
#include <CorvelGui/corvelgui_export.h>

#include <QToolButton>

#include <memory>

namespace CorvelGui {

/// A button with a menu that repeats what was chosen there last, and shows it: icon, text and tool
/// tip are those of that action. Before the first choice it is the first action of the menu that is
/// enabled. While the action is disabled a click opens the menu.
///
/// The choice is known by the object name of its action, which lets it be kept in the user's
/// settings. Actions in submenus count as well. A receiver that wants to remove the button while
/// its menu is open calls deleteLater().
class CORVELGUI_EXPORT PLastActionToolButton : public QToolButton, public IUserSettings
{
    Q_OBJECT
    Q_PROPERTY(QAction* lastAction READ lastAction WRITE setLastAction NOTIFY lastActionChanged
                   DESIGNABLE false)

public:
    /// With an empty menu of its own, which menu() returns for the client to fill.
    explicit PLastActionToolButton(QWidget* parent = nullptr);
    ~PLastActionToolButton() override;

    /// What a click triggers; null if there is nothing to choose. Its owner may delete it.
    QAction* lastAction() const;

    /// Writes the object name of what was chosen under the key "LastAction" of the store's current
    /// group, if it was and has one. Give each button a group of its own.
    void writeUserSettings(QSettings& settings) const override;
    /// Takes the choice from there, now or once the menu has an action of that name. Without the
    /// key nothing changes.
    void readUserSettings(QSettings& settings) override;

public Q_SLOTS:
    /// Chooses @p action without triggering it. One that is not in the menu changes nothing.
    void setLastAction(QAction* action);

Q_SIGNALS:
    /// Emitted when a click triggers another action from now on, whatever the reason.
    void lastActionChanged(QAction* action);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void repeat();
    void refresh();

    struct Private;
    const std::unique_ptr<Private> d;
};

} // namespace CorvelGui
