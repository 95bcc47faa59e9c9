// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/corvelgui_export.h>

#include <QTabWidget>

#include <memory>

/// Tabs that the user closes, moves and renames. Stands outside the namespace of the library.
///
/// A double click on a tab or F2 opens an editor in the tab; Enter and a click elsewhere take the
/// name, Escape keeps the old one. An empty name is refused. Names may contain any character: an
/// ampersand is shown, not taken for a mnemonic.
class CORVELGUI_EXPORT PTabWidget : public QTabWidget
{
    Q_OBJECT
    Q_PROPERTY(bool tabsRenamable READ tabsRenamable WRITE setTabsRenamable)

public:
    explicit PTabWidget(QWidget* parent = nullptr);
    ~PTabWidget() override;

    /// Whether the user may rename tabs; true in a new widget. Closing and moving are switched by
    /// setTabsClosable() and setMovable().
    void setTabsRenamable(bool renamable);
    bool tabsRenamable() const;

    /// The text of a tab as the user reads it; empty for a tab that does not exist.
    QString tabName(int index) const;
    /// Spaces around @p name go; an empty name is refused. Silent.
    void setTabName(int index, const QString& name);

public Q_SLOTS:
    /// Opens the editor in a tab, whether or not the user may rename it.
    void editTabName(int index);
    /// Asks the page by QWidget::close() whether it may go, as the close button of its tab does. If
    /// so, removes the tab and deletes the page. Do not remove the page in a slot of
    /// tabCloseRequested().
    void closeTab(int index);

Q_SIGNALS:
    /// Emitted after the user has given a tab another name.
    void tabRenamed(int index, const QString& name);
    /// Emitted after closeTab() has removed the tab that was at @p index. Its page is deleted when
    /// the current event is over.
    void tabClosed(int index);

protected:
    bool eventFilter(QObject* object, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void tabInserted(int index) override;
    void tabRemoved(int index) override;

private:
    void takeName();
    void placeEditor();
    void endEditing();

    struct Private;
    const std::unique_ptr<Private> d;
};
