#include "piprangedialog.h"

#include "ui_piprangedialog.h"

#include <QEvent>
#include <QPushButton>

namespace CorvelGui {

PIpRangeDialog::PIpRangeDialog(QWidget* parent)
    : PBaseDialog(parent), m_ui(std::make_unique<Ui::PIpRangeDialog>())
{
    m_ui->setupUi(this);
    connect(m_ui->buttonBox, &QDialogButtonBox::accepted, this, &PIpRangeDialog::slotAccept);
    connect(m_ui->buttonBox, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_ui->lineEditIp, &QLineEdit::textChanged, this, &PIpRangeDialog::checkEntry);
    checkEntry(m_ui->lineEditIp->text());
}

PIpRangeDialog::~PIpRangeDialog() = default;

QString PIpRangeDialog::getIp() const
{
    return m_address;
}

int PIpRangeDialog::getMask() const
{
    return m_mask;
}

void PIpRangeDialog::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        m_ui->retranslateUi(this);
    PBaseDialog::changeEvent(event);
}

void PIpRangeDialog::checkEntry(const QString& /*text*/)
{
    m_ui->buttonBox->button(QDialogButtonBox::Ok)
        ->setEnabled(m_ui->lineEditIp->hasAcceptableInput());
}

void PIpRangeDialog::slotAccept()
{
    m_address = m_ui->lineEditIp->text();
    m_mask = m_ui->comboBoxMask->getSubNetMask();
    accept();
}

} // namespace CorvelGui
