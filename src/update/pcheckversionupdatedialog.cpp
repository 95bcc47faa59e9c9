// SPDX-License-Identifier: MIT
#include "pcheckversionupdatedialog.h"

#include "pchangelogdialog.h"
#include "ui_pcheckversionupdatedialog.h"

#include <QEvent>
#include <QPushButton>

#include <utility>

namespace CorvelGui {

struct PCheckVersionUpdateDialog::Private
{
    Ui::PCheckVersionUpdateDialog ui{};
    const QString changeLog;
    QString ownTitle{};
};

PCheckVersionUpdateDialog::PCheckVersionUpdateDialog(const QString& message,
                                                     const QString& changeLog, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::WindowTitleHint | Qt::WindowCloseButtonHint)
    , d(new Private{.changeLog = changeLog})
{
    d->ui.setupUi(this);
    d->ownTitle = windowTitle();
    d->ui.plainTextEdit->setPlainText(message);
    d->ui.plainTextEdit->setTabChangesFocus(true);
    QPushButton* yes = d->ui.buttonBox->button(QDialogButtonBox::Yes);
    yes->setAutoDefault(true);
    yes->setDefault(true);
    yes->setFocus();
    connect(d->ui.buttonBox, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(d->ui.buttonBox, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(d->ui.pushButtonShowChangeLog, &QPushButton::clicked, this,
            &PCheckVersionUpdateDialog::showChangeLog);
}

PCheckVersionUpdateDialog::~PCheckVersionUpdateDialog() = default;

void PCheckVersionUpdateDialog::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QDialog::changeEvent(event);
}

void PCheckVersionUpdateDialog::retranslate()
{
    const QString title = windowTitle();
    d->ui.retranslateUi(this);
    // A title of the caller's stays.
    if (title != std::exchange(d->ownTitle, windowTitle()))
        setWindowTitle(title);
}

void PCheckVersionUpdateDialog::showChangeLog()
{
    auto* dialog = new PChangeLogDialog(this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setHtml(d->changeLog);
    dialog->open();
}

} // namespace CorvelGui
