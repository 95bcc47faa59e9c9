// SPDX-License-Identifier: MIT
#include "piprangedialog.h"

#include "ui_piprangedialog.h"

#include <QEvent>
#include <QPushButton>

namespace CorvelGui {

struct PIpRangeDialog::Private
{
    Ui::PIpRangeDialog ui;
    QString address;
    qint32 mask = 0;
};

PIpRangeDialog::PIpRangeDialog(QWidget* parent)
    : PBaseDialog(parent), d(std::make_unique<Private>())
{
    d->ui.setupUi(this);
    d->ui.lineEditIp->setQuietAtFirst(true);
    connect(d->ui.buttonBox, &QDialogButtonBox::accepted, this, &PIpRangeDialog::slotAccept);
    connect(d->ui.buttonBox, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(d->ui.lineEditIp, &QLineEdit::textChanged, this, &PIpRangeDialog::checkEntry);
    checkEntry(d->ui.lineEditIp->text());
}

PIpRangeDialog::~PIpRangeDialog() = default;

void PIpRangeDialog::setMask(int prefixLength)
{
    d->ui.comboBoxMask->setSubNetMask(unsigned(prefixLength));
}

QString PIpRangeDialog::getIp() const
{
    return d->address;
}

int PIpRangeDialog::getMask() const
{
    return d->mask;
}

void PIpRangeDialog::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        d->ui.retranslateUi(this);
    PBaseDialog::changeEvent(event);
}

void PIpRangeDialog::checkEntry(const QString& /*text*/)
{
    d->ui.buttonBox->button(QDialogButtonBox::Ok)
        ->setEnabled(d->ui.lineEditIp->hasAcceptableInput());
}

void PIpRangeDialog::slotAccept()
{
    d->address = d->ui.lineEditIp->text();
    d->mask = d->ui.comboBoxMask->getSubNetMask();
    accept();
}

} // namespace CorvelGui
