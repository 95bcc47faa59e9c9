// SPDX-License-Identifier: MIT
#include "ppasswordinputdialog.h"

#include "base/whilealive.h"
#include "ui_ppasswordinputdialog.h"

#include <Hueloft/PMessageBox>

#include <QCoreApplication>
#include <QEvent>

namespace CorvelGui {

struct PPasswordInputDialog::Private
{
    Ui::PPasswordInputDialog ui{};
    const QString expectedPassword;
};

PPasswordInputDialog::PPasswordInputDialog(const QString& expectedPassword, QWidget* parent)
    : PBaseDialog(parent), d(new Private{.expectedPassword = expectedPassword})
{
    d->ui.setupUi(this);
    retranslate();
    connect(d->ui.buttonBox, &QDialogButtonBox::accepted, this, &PPasswordInputDialog::slotAccept);
    connect(d->ui.buttonBox, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

PPasswordInputDialog::~PPasswordInputDialog() = default;

QString PPasswordInputDialog::getEncryptPassword() const
{
    return d->ui.lineEditEncryptPassword->text();
}

bool PPasswordInputDialog::useEncryptPasswordNextTime() const
{
    return d->ui.checkBoxEncryptUsePassword->isChecked();
}

QString PPasswordInputDialog::getLabelPasswordDescription()
{
    return tr("Password:");
}

QString PPasswordInputDialog::getCheckBoxEncryptUsePasswordDescription()
{
    return tr("Remember password for all future configurations");
}

void PPasswordInputDialog::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    PBaseDialog::changeEvent(event);
}

void PPasswordInputDialog::retranslate()
{
    d->ui.retranslateUi(this);
    d->ui.labelPassword->setText(getLabelPasswordDescription());
    d->ui.checkBoxEncryptUsePassword->setText(getCheckBoxEncryptUsePasswordDescription());
}

void PPasswordInputDialog::slotAccept()
{
    if (getEncryptPassword() == d->expectedPassword) {
        accept();
        return;
    }
    const auto complain = [this] {
        Hueloft::PMessageBox::Warning(this, QCoreApplication::applicationName(),
                                      tr("Wrong Password!"), QMessageBox::Ok, QMessageBox::Ok);
    };
    if (!whileAlive(this, complain))
        return;
    // The next try replaces this one.
    d->ui.lineEditEncryptPassword->setFocus();
    d->ui.lineEditEncryptPassword->selectAll();
}

} // namespace CorvelGui
