#pragma once

#include <CorvelGui/PBaseDialog>

class QTextBrowser;

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

    /// Replaces the change log and shows its begin. Text without any markup keeps its line breaks.
    void setHtml(const QString& html);
    /// What is shown, without its markup.
    QString toPlainText() const;

protected:
    void changeEvent(QEvent* event) override;

private:
    void retranslate();
    void showLog();

    QTextBrowser* m_browser;
    QString m_log;
    bool m_hasMarkup = false;
};

} // namespace CorvelGui
