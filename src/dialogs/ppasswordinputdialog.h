// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/PBaseDialog>

#include <QString>

#include <memory>

namespace CorvelGui {

/// Asks for a password that the caller knows already, until it is right or the user gives up.
///
/// The dialog keeps and encrypts nothing: the caller reads what was typed after acceptance.
class CORVELGUI_EXPORT PPasswordInputDialog : public PBaseDialog
{
    Q_OBJECT

public:
    /// Only @p expectedPassword is accepted, letter for letter. If it is empty, so must be the
    /// field.
    explicit PPasswordInputDialog(const QString& expectedPassword, QWidget* parent = nullptr);
    ~PPasswordInputDialog() override;

    /// What the field holds, right or wrong.
    QString getEncryptPassword() const;
    /// Whether the user wants the password to be remembered; unchecked at first.
    bool useEncryptPasswordNextTime() const;

    /// The texts beside the field and the check box, in the user's language.
    static QString getLabelPasswordDescription();
    static QString getCheckBoxEncryptUsePasswordDescription();

protected:
    void changeEvent(QEvent* event) override;

private Q_SLOTS:
    void slotAccept();

private:
    void retranslate();

    struct Private;
    const std::unique_ptr<Private> d;
};

} // namespace CorvelGui
