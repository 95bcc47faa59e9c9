// SPDX-License-Identifier: MIT
#include "appupdaterdialog.h"

#include "ui_appupdaterdialog.h"
#include "weblink.h"

#include <QDateTime>
#include <QDesktopServices>
#include <QEvent>
#include <QLocale>
#include <QPushButton>
#include <QUrl>
#include <QVersionNumber>

using namespace Qt::StringLiterals;

namespace CorvelGui {

struct AppUpdaterDialog::Private
{
    Ui::AppUpdaterDialog ui{};
    const QString name;
    const QVersionNumber current;
    const QVersionNumber available;
    const QDateTime date;
    const QUrl releaseNotes;
};

AppUpdaterDialog::AppUpdaterDialog(const QString& applicationName, const QVersionNumber& current,
                                   const QVersionNumber& available, const QString& releaseNotesUrl,
                                   const QDateTime& releaseDate, QWidget* parent)
    : PBaseDialog(parent)
    , d(new Private{.name = applicationName,
                    .current = current,
                    .available = available,
                    .date = releaseDate,
                    .releaseNotes = QUrl(releaseNotesUrl)})
{
    d->ui.setupUi(this);
    d->ui.textEdit->setTabChangesFocus(true);
    retranslate();
    QPushButton* yes = d->ui.buttonBox->button(QDialogButtonBox::Yes);
    yes->setDefault(true);
    yes->setFocus();
    d->ui.buttonReleaseNotes->setVisible(leadsToTheWeb(d->releaseNotes));
    connect(d->ui.buttonBox, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(d->ui.buttonBox, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(d->ui.buttonReleaseNotes, &QPushButton::clicked, this,
            &AppUpdaterDialog::showReleaseNotes);
}

AppUpdaterDialog::~AppUpdaterDialog() = default;

void AppUpdaterDialog::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    PBaseDialog::changeEvent(event);
}

void AppUpdaterDialog::retranslate()
{
    d->ui.retranslateUi(this);
    initTextEdit(d->name, d->current, d->available, d->date);
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
    d->ui.textEdit->setPlainText(text + u"\n\n"_s + tr("Would you like to download this version?"));
}

void AppUpdaterDialog::showReleaseNotes()
{
    QDesktopServices::openUrl(d->releaseNotes);
}

} // namespace CorvelGui
