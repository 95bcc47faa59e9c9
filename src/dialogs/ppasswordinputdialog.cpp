#include "ppasswordinputdialog.h"

#include "ui_ppasswordinputdialog.h"

#include <Hueloft/PMessageBox>

#include <QCoreApplication>
#include <QEvent>
#include <QPointer>

namespace CorvelGui {

PPasswordInputDialog::PPasswordInputDialog(const QString& expectedPassword, QWidget* parent)
    : PBaseDialog(parent)
    , m_ui(std::make_unique<Ui::PPasswordInputDialog>())
    , m_expectedPassword(expectedPassword)
{
    m_ui->setupUi(this);
    setDescriptions();
    connect(m_ui->buttonBox, &QDialogButtonBox::accepted, this, &PPasswordInputDialog::slotAccept);
    connect(m_ui->buttonBox, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

PPasswordInputDialog::~PPasswordInputDialog() = default;

QString PPasswordInputDialog::getEncryptPassword() const
{
    return m_ui->lineEditEncryptPassword->text();
}

bool PPasswordInputDialog::useEncryptPasswordNextTime() const
{
    return m_ui->checkBoxEncryptUsePassword->isChecked();
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
    if (event->type() == QEvent::LanguageChange) {
        m_ui->retranslateUi(this);
        setDescriptions();
    }
    PBaseDialog::changeEvent(event);
}

void PPasswordInputDialog::setDescriptions()
{
    m_ui->labelPassword->setText(getLabelPasswordDescription());
    m_ui->checkBoxEncryptUsePassword->setText(getCheckBoxEncryptUsePasswordDescription());
}

void PPasswordInputDialog::slotAccept()
{
    if (getEncryptPassword() == m_expectedPassword) {
        accept();
        return;
    }
    const QPointer<PPasswordInputDialog> alive(this);
    Hueloft::PMessageBox::Warning(this, QCoreApplication::applicationName(), tr("Wrong Password!"),
                                  QMessageBox::Ok, QMessageBox::Ok);
    if (!alive)
        return;
    // The next try replaces this one.
    m_ui->lineEditEncryptPassword->setFocus();
    m_ui->lineEditEncryptPassword->selectAll();
}

} // namespace CorvelGui
