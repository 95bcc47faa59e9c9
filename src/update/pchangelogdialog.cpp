// SPDX-License-Identifier: MIT
#include "pchangelogdialog.h"

#include "harmlessbrowser.h"

#include <QDialogButtonBox>
#include <QEvent>
#include <QPushButton>
#include <QVBoxLayout>

namespace CorvelGui {

struct PChangeLogDialog::Private
{
    HarmlessBrowser* const browser;
};

PChangeLogDialog::PChangeLogDialog(QWidget* parent)
    : PBaseDialog(parent), d(new Private{.browser = new HarmlessBrowser(this)})
{
    setSizeGripEnabled(true);
    resize(640, 480);
    retranslate();

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
    d->browser->showForeignText(html);
}

void PChangeLogDialog::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    PBaseDialog::changeEvent(event);
}

void PChangeLogDialog::retranslate()
{
    setWindowTitle(tr("Change Log"));
    d->browser->setAccessibleName(tr("Change Log"));
}

QString PChangeLogDialog::toPlainText() const
{
    return d->browser->toPlainText();
}

} // namespace CorvelGui
