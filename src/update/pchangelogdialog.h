// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/PBaseDialog>

#include <memory>

namespace CorvelGui {

/// Shows a change log that came from anywhere. Nothing is loaded for it, neither from the network
/// nor from disk; pictures, styles and scripts are left out, and so is what goes beyond 200 000
/// characters. A link to an http or https address is opened in the desktop's browser when the user
/// follows it; other links are plain text.
class CORVELGUI_EXPORT PChangeLogDialog : public PBaseDialog
{
    Q_OBJECT

public:
    /// An empty change log.
    explicit PChangeLogDialog(QWidget* parent = nullptr);
    ~PChangeLogDialog() override;

    /// Replaces the change log and shows its begin. Text without any markup keeps its line breaks.
    void setHtml(const QString& html);
    /// What is shown, without its markup.
    QString toPlainText() const;

protected:
    void changeEvent(QEvent* event) override;

private:
    void retranslate();

    struct Private;
    const std::unique_ptr<Private> d;
};

} // namespace CorvelGui
