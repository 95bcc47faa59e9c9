// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace CorvelGui {
class CheckDirLineEdit;
} // namespace CorvelGui

namespace Review {

/// Lets the user name a folder, or choose it in a dialog.
class FolderChoice : public QWidget
{
    Q_OBJECT

public:
    /// @p title is that of the dialog.
    FolderChoice(const QString& title, const QString& folder, QWidget* parent = nullptr);

    QString folder() const;
    void setFolder(const QString& folder);
    /// Why nothing can be put there; empty if there is such a folder.
    QString fault() const;

Q_SIGNALS:
    void changed();

private:
    void choose();

    const QString m_title;
    CorvelGui::CheckDirLineEdit* m_edit;
};

} // namespace Review
