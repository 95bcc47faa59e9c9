#include "pchangelogdialog.h"

#include "harmlesshtml.h"
#include "weblink.h"

#include <QDesktopServices>
#include <QDialogButtonBox>
#include <QPushButton>
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
    setWindowTitle(tr("Change Log"));
    setSizeGripEnabled(true);
    resize(640, 480);
    m_browser->setAccessibleName(tr("Change Log"));
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
    if (html.contains(u'<'))
        m_browser->setHtml(harmlessHtml(html));
    else
        m_browser->setPlainText(html);
    m_browser->moveCursor(QTextCursor::Start);
    m_browser->ensureCursorVisible();
}

QString PChangeLogDialog::toPlainText() const
{
    return m_browser->toPlainText();
}

} // namespace CorvelGui
