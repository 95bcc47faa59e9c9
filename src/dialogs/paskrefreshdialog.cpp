#include "paskrefreshdialog.h"

#include "ui_paskrefreshdialog.h"

#include <Hueloft/PIconHelper>

#include <QEvent>

namespace CorvelGui {

PAskRefreshDialog::PAskRefreshDialog(QWidget* parent, const QVariant& lastUpdate, bool showNextTime)
    : PBaseDialog(parent)
    , m_ui(std::make_unique<Ui::PAskRefreshDialog>())
    , m_lastUpdate(lastUpdate.toDateTime())
{
    m_ui->setupUi(this);
    const QIcon icon = Hueloft::PIconHelper::GetRefreshIcon_256x256(true);
    m_ui->labelRefreshIcon->setPixmap(icon.pixmap(icon.availableSizes().value(0)));
    m_ui->checkBoxShowNextTime->setChecked(showNextTime);
    showLastUpdate();
    connect(m_ui->buttonBox, &QDialogButtonBox::accepted, this, &PAskRefreshDialog::slotAccept);
    connect(m_ui->buttonBox, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

PAskRefreshDialog::~PAskRefreshDialog() = default;

bool PAskRefreshDialog::ShowNextTime() const
{
    return m_ui->checkBoxShowNextTime->isChecked();
}

void PAskRefreshDialog::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        m_ui->retranslateUi(this);
        showLastUpdate();
    }
    PBaseDialog::changeEvent(event);
}

void PAskRefreshDialog::slotAccept()
{
    accept();
}

void PAskRefreshDialog::showLastUpdate()
{
    // Hidden, it leaves the question in the middle.
    m_ui->labelRefresh->setVisible(m_lastUpdate.isValid());
    if (m_lastUpdate.isValid()) {
        m_ui->labelRefresh->setText(
            tr("The last update of device information was on %1").arg(m_lastUpdate.toString()));
    }
}

} // namespace CorvelGui
