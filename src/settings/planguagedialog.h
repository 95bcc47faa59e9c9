// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/corvelgui_export.h>

#include <QDialog>

#include <memory>

namespace CorvelGui {

/// Lets the user choose among the languages that have translation files, as far as the application
/// supports them.
class CORVELGUI_EXPORT PLanguageDialog : public QDialog
{
    Q_OBJECT

public:
    /// Looks for files named @p prefix, "_", key, ".qm" in @p directory. With @p applyOnAccept, OK
    /// switches the application to the chosen language.
    PLanguageDialog(QWidget* parent, const QString& prefix, const QString& directory,
                    const QString& currentKey, bool applyOnAccept);
    ~PLanguageDialog() override;

    /// Files of other languages are passed over. To be called before the dialog is shown.
    void addSupportedLanguageKey(const QString& key);
    /// The key of the chosen language; empty when there is none.
    QString getCurrentKey() const;

protected:
    /// The languages appear a moment later.
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

private Q_SLOTS:
    void slotInitLanguages();
    void slotAccept();

private:
    void addLanguage(const QString& fileName);
    void showThatThereAreNone();
    void retranslate();

    struct Private;
    const std::unique_ptr<Private> d;
};

} // namespace CorvelGui
