// SPDX-License-Identifier: MIT
#include "paskrefreshdialog.h"

#include "ui_paskrefreshdialog.h"

#include <Hueloft/PIconHelper>

#include <QDateTime>
#include <QEvent>

namespace CorvelGui {

struct PAskRefreshDialog::Private
{
    Ui::PAskRefreshDialog ui{};
    const QDateTime lastUpdate;
};

PAskRefreshDialog::PAskRefreshDialog(QWidget* parent, const QVariant& lastUpdate, bool showNextTime)
    : PBaseDialog(parent), d(new Private{.lastUpdate = lastUpdate.toDateTime()})
{
    d->ui.setupUi(this);
    const QIcon icon = Hueloft::PIconHelper::GetRefreshIcon_256x256(true);
    d->ui.labelRefreshIcon->setPixmap(icon.pixmap(icon.availableSizes().value(0)));
    d->ui.checkBoxShowNextTime->setChecked(showNextTime);
    retranslate();
    connect(d->ui.buttonBox, &QDialogButtonBox::accepted, this, &PAskRefreshDialog::slotAccept);
    connect(d->ui.buttonBox, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

PAskRefreshDialog::~PAskRefreshDialog() = default;

bool PAskRefreshDialog::ShowNextTime() const
{
    return d->ui.checkBoxShowNextTime->isChecked();
}

void PAskRefreshDialog::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    PBaseDialog::changeEvent(event);
}

void PAskRefreshDialog::slotAccept()
{
    accept();
}

void PAskRefreshDialog::retranslate()
{
    d->ui.retranslateUi(this);
    // Hidden, it leaves the question in the middle.
    d->ui.labelRefresh->setVisible(d->lastUpdate.isValid());
    if (d->lastUpdate.isValid()) {
        d->ui.labelRefresh->setText(
            tr("The last update of device information was on %1").arg(d->lastUpdate.toString()));
    }
}

} // namespace CorvelGui
