// SPDX-License-Identifier: MIT
#pragma once

#include <QTextBrowser>

namespace CorvelGui {

/// Opens a link of unknown origin in the desktop's browser if it leads to the web, else nothing.
void openWebPage(const QUrl& url);

/// Shows texts of unknown origin as harmlessHtml() leaves them, and has nowhere to load anything
/// from. A link that the user follows goes to openWebPage().
class HarmlessBrowser : public QTextBrowser
{
    Q_OBJECT

public:
    explicit HarmlessBrowser(QWidget* parent = nullptr);

    /// Shows the begin of @p text. Without any markup it keeps its line breaks.
    void showForeignText(const QString& text);

    QVariant loadResource(int, const QUrl&) override { return {}; }

protected:
    void doSetSource(const QUrl&, QTextDocument::ResourceType) override {}
    void changeEvent(QEvent* event) override;

private:
    void showReduced();

    QString m_reduced;
    bool m_hasMarkup = false;
};

} // namespace CorvelGui
