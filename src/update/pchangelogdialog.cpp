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

struct PChangeLogDialog::Private
{
    QTextBrowser* const browser;
    QString log{};
    bool hasMarkup = false;
};

PChangeLogDialog::PChangeLogDialog(QWidget* parent)
    : PBaseDialog(parent), d(new Private{.browser = new OfflineBrowser(this)})
{
    setSizeGripEnabled(true);
    resize(640, 480);
    retranslate();
    d->browser->setOpenLinks(false);
    connect(d->browser, &QTextBrowser::anchorClicked, this, &openWebPage);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    buttons->button(QDialogButtonBox::Close)->setDefault(true);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(d->browser);
    layout->addWidget(buttons);
}

PChangeLogDialog::~PChangeLogDialog() = default;

void PChangeLogDialog::setHtml(const QString& html)
{
    d->hasMarkup = html.contains(u'<');
    d->log = harmlessHtml(html); // a plain text can be too long, too
    showLog();
    d->browser->moveCursor(QTextCursor::Start);
    d->browser->ensureCursorVisible();
}

void PChangeLogDialog::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    PBaseDialog::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        // A document keeps the colour of links that it was read with.
        const int position = d->browser->verticalScrollBar()->value();
        showLog();
        d->browser->verticalScrollBar()->setValue(position);
    }
}

void PChangeLogDialog::retranslate()
{
    setWindowTitle(tr("Change Log"));
    d->browser->setAccessibleName(tr("Change Log"));
}

void PChangeLogDialog::showLog()
{
    if (d->hasMarkup)
        d->browser->setHtml(d->log);
    else
        d->browser->setPlainText(d->log);
}

QString PChangeLogDialog::toPlainText() const
{
    return d->browser->toPlainText();
}

} // namespace CorvelGui
