#include "pchangelogdialog.h"

#include "harmlesshtml.h"
#include "weblink.h"

#include <QDesktopServices>
#include <QDialogButtonBox>
#include <QEvent>
#include <QPushButton>
#include <QScrollBar>
#include <QTextBrowser>
#include <QVBoxLayout>

namespace CorvelGui {

namespace {

/// A browser that has nowhere to load anything from.
class OfflineBrowser : public QTextBrowser
{
public:
    using QTextBrowser::QTextBrowser;

    QVariant loadResource(int, const QUrl&) override { return {}; }

protected:
    void doSetSource(const QUrl&, QTextDocument::ResourceType) override {}
};

void openWebPage(const QUrl& url)
{
    if (leadsToTheWeb(url))
        QDesktopServices::openUrl(url);
}

} // namespace

PChangeLogDialog::PChangeLogDialog(QWidget* parent)
    : PBaseDialog(parent), m_browser(new OfflineBrowser(this))
{
    setSizeGripEnabled(true);
    resize(640, 480);
    retranslate();
    m_browser->setOpenLinks(false);
    connect(m_browser, &QTextBrowser::anchorClicked, this, &openWebPage);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    buttons->button(QDialogButtonBox::Close)->setDefault(true);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_browser);
    layout->addWidget(buttons);
}

void PChangeLogDialog::setHtml(const QString& html)
{
    m_hasMarkup = html.contains(u'<');
    m_log = harmlessHtml(html); // a plain text can be too long, too
    showLog();
    m_browser->moveCursor(QTextCursor::Start);
    m_browser->ensureCursorVisible();
}

void PChangeLogDialog::changeEvent(QEvent* event)
{
    PBaseDialog::changeEvent(event);
    switch (event->type()) {
    case QEvent::PaletteChange: {
        // A document keeps the colour of links that it was read with.
        const int position = m_browser->verticalScrollBar()->value();
        showLog();
        m_browser->verticalScrollBar()->setValue(position);
        break;
    }
    case QEvent::LanguageChange:
        retranslate();
        break;
    default:
        break;
    }
}

void PChangeLogDialog::retranslate()
{
    setWindowTitle(tr("Change Log"));
    m_browser->setAccessibleName(tr("Change Log"));
}

void PChangeLogDialog::showLog()
{
    if (m_hasMarkup)
        m_browser->setHtml(m_log);
    else
        m_browser->setPlainText(m_log);
}

QString PChangeLogDialog::toPlainText() const
{
    return m_browser->toPlainText();
}

} // namespace CorvelGui
