// SPDX-License-Identifier: MIT
#pragma once

#include <QLineEdit>

namespace CorvelGui {

/// The line edit in a tab. It refuses empty names, and keeps its keys from what is around it.
class TabNameEditor : public QLineEdit
{
    Q_OBJECT

public:
    TabNameEditor(const QString& name, QWidget* parent);

Q_SIGNALS:
    /// Emitted when the user has left the editor or pressed Enter, with a name that is not empty.
    /// Either this or cancelled() comes first; the other may follow.
    void nameEntered();
    /// Emitted when the user has pressed Escape, or left the editor empty.
    void cancelled();

protected:
    bool event(QEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};

} // namespace CorvelGui
