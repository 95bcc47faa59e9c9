// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/IUserSettings>
#include <CorvelGui/corvelgui_export.h>

#include <QMenu>

#include <memory>

class QHeaderView;

namespace CorvelGui {

/// The context menu of a header: a check mark per column, in the order in which they stand, that
/// shows and hides the column. The last visible column cannot be hidden.
///
/// It is an ordinary menu, so that a client can also offer it in a menu bar or at a button, where
/// the keyboard reaches it.
class CORVELGUI_EXPORT PHeaderCheckMenu : public QMenu, public IUserSettings
{
    Q_OBJECT

public:
    /// Makes this the context menu of @p header, which is also its parent unless @p parent is
    /// given. A menu without header is empty.
    explicit PHeaderCheckMenu(QHeaderView* header, QWidget* parent = nullptr);
    ~PHeaderCheckMenu() override;

    /// Shows or hides a column; hiding the last visible one does nothing. Silent.
    void setColumnVisible(int column, bool visible);

    /// Writes which columns are hidden, by their numbers, under the key "HiddenColumns" of the
    /// store's current group. Give each menu a group of its own.
    void writeUserSettings(QSettings& settings) const override;
    /// Shows and hides the columns as they were written; silent. Without the key nothing changes.
    /// Columns that do not exist and entries that are no numbers count for nothing, and the
    /// first column stays if all would go.
    void readUserSettings(QSettings& settings) override;

Q_SIGNALS:
    /// Emitted after the user has shown or hidden a column by this menu.
    void columnToggled(int column, bool visible);

private:
    void fill();
    void toggle(int column, bool visible);
    QString columnTitle(int column) const;

    struct Private;
    const std::unique_ptr<Private> d;
};

} // namespace CorvelGui
