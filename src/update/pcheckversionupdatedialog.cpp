#include "pcheckversionupdatedialog.h"

#include "pchangelogdialog.h"
#include "ui_pcheckversionupdatedialog.h"

#include <QEvent>
#include <QPushButton>

namespace CorvelGui {

PCheckVersionUpdateDialog::PCheckVersionUpdateDialog(const QString& message,
                                                     const QString& changeLog, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::WindowTitleHint | Qt::WindowCloseButtonHint)
    , m_ui(std::make_unique<Ui::PCheckVersionUpdateDialog>())
    , m_changeLog(changeLog)
{
    m_ui->setupUi(this);
    m_ui->plainTextEdit->setPlainText(message);
    m_ui->plainTextEdit->setTabChangesFocus(true);
    QPushButton* yes = m_ui->buttonBox->button(QDialogButtonBox::Yes);
    yes->setAutoDefault(true);
    yes->setDefault(true);
    yes->setFocus();
    connect(m_ui->buttonBox, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(m_ui->buttonBox, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_ui->pushButtonShowChangeLog, &QPushButton::clicked, this,
            &PCheckVersionUpdateDialog::showChangeLog);
}

PCheckVersionUpdateDialog::~PCheckVersionUpdateDialog() = default;

void PCheckVersionUpdateDialog::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        // The title is the caller's.
        const QString title = windowTitle();
        m_ui->retranslateUi(this);
        setWindowTitle(title);
    }
    QDialog::changeEvent(event);
}

void PCheckVersionUpdateDialog::showChangeLog()
{
    auto* dialog = new PChangeLogDialog(this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setHtml(m_changeLog);
    dialog->open();
}

} // namespace CorvelGui
