// SPDX-License-Identifier: MIT
#pragma once

#include "fancylineedit.h"

#include <memory>

namespace CorvelGui {

/// The usual filter field: a clear button that appears with the first letter, and Escape to clear.
class CORVELGUI_EXPORT FilterLineEdit : public FancyLineEdit
{
    Q_OBJECT
    Q_PROPERTY(bool clearOnEscape READ clearOnEscape WRITE setClearOnEscape)

public:
    explicit FilterLineEdit(QWidget* parent = nullptr);
    ~FilterLineEdit() override;

    /// Whether Escape clears a field that has text; on at first. Only an Escape that clears stays
    /// with the field: the next one closes the dialog around it.
    void setClearOnEscape(bool on);
    bool clearOnEscape() const;

Q_SIGNALS:
    /// Emitted when the text differs from the one last emitted, whoever changed it. The field must
    /// outlive the emission, as with every signal of a QLineEdit about its text.
    void filterChanged(const QString& text);

protected:
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void slotTextChanged();
    bool clearsOn(const QKeyEvent& event) const;
    void takeClearIcon();
    void retranslate();

    struct Private;
    const std::unique_ptr<Private> d;
};

} // namespace CorvelGui
