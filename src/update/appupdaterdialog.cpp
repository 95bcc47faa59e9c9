#include "appupdaterdialog.h"

#include "ui_appupdaterdialog.h"
#include "weblink.h"

#include <QDesktopServices>
#include <QEvent>
#include <QLocale>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace CorvelGui {

AppUpdaterDialog::AppUpdaterDialog(const QString& applicationName, const QVersionNumber& current,
                                   const QVersionNumber& available, const QString& releaseNotesUrl,
                                   const QDateTime& releaseDate, QWidget* parent)
    : PBaseDialog(parent)
    , m_ui(std::make_unique<Ui::AppUpdaterDialog>())
    , m_name(applicationName)
    , m_current(current)
    , m_available(available)
    , m_date(releaseDate)
    , m_releaseNotes(releaseNotesUrl)
{
    m_ui->setupUi(this);
    m_ui->textEdit->setTabChangesFocus(true);
    initTextEdit(m_name, m_current, m_available, m_date);
    QPushButton* yes = m_ui->buttonBox->button(QDialogButtonBox::Yes);
    yes->setDefault(true);
    yes->setFocus();
    m_ui->buttonReleaseNotes->setVisible(leadsToTheWeb(m_releaseNotes));
    connect(m_ui->buttonBox, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(m_ui->buttonBox, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_ui->buttonReleaseNotes, &QPushButton::clicked, this,
            &AppUpdaterDialog::showReleaseNotes);
}

AppUpdaterDialog::~AppUpdaterDialog() = default;

void AppUpdaterDialog::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        m_ui->retranslateUi(this);
        initTextEdit(m_name, m_current, m_available, m_date);
    }
    PBaseDialog::changeEvent(event);
}

void AppUpdaterDialog::initTextEdit(const QString& name, const QVersionNumber& current,
                                    const QVersionNumber& available, const QDateTime& date)
{
    QString text = name + u"\n\n"_s + tr("Current Version: %1").arg(current.toString()) + u'\n' +
                   tr("New Version Available: %1").arg(available.toString());
    if (date.isValid()) {
        text += u'\n' + tr("Release Date: %1")
                            .arg(QLocale::system().toString(date.date(), QLocale::ShortFormat));
    }
    m_ui->textEdit->setPlainText(text + u"\n\n"_s + tr("Would you like to download this version?"));
}

void AppUpdaterDialog::showReleaseNotes()
{
    QDesktopServices::openUrl(m_releaseNotes);
}

} // namespace CorvelGui
