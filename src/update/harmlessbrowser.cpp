// SPDX-License-Identifier: MIT
#include "harmlessbrowser.h"

#include "harmlesshtml.h"
#include "weblink.h"

#include <QDesktopServices>
#include <QEvent>
#include <QScrollBar>

namespace CorvelGui {

void openWebPage(const QUrl& url)
{
    if (leadsToTheWeb(url))
        QDesktopServices::openUrl(url);
}

HarmlessBrowser::HarmlessBrowser(QWidget* parent) : QTextBrowser(parent)
{
    setOpenLinks(false);
    // The cursor shows where the focus is.
    setTextInteractionFlags(Qt::TextBrowserInteraction | Qt::TextSelectableByKeyboard);
    connect(this, &QTextBrowser::anchorClicked, this, &openWebPage);
}

void HarmlessBrowser::showForeignText(const QString& text)
{
    m_hasMarkup = text.contains(u'<');
    m_reduced = harmlessHtml(text); // a plain text can be too long, too
    showReduced();
    moveCursor(QTextCursor::Start);
    ensureCursorVisible();
}

void HarmlessBrowser::changeEvent(QEvent* event)
{
    QTextBrowser::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        // A document keeps the colour of links that it was read with.
        const int position = verticalScrollBar()->value();
        showReduced();
        verticalScrollBar()->setValue(position);
    }
}

void HarmlessBrowser::showReduced()
{
    if (m_hasMarkup)
        setHtml(m_reduced);
    else
        setPlainText(m_reduced);
}

} // namespace CorvelGui
