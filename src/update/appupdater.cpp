// SPDX-License-Identifier: MIT
#include "appupdater.h"

#include "appupdaterdialog.h"
#include "base/logging.h"
#include "base/whilealive.h"
#include "busynews.h"
#include "installerpath.h"

#include <Corvel/FileDownloader>
#include <Hueloft/PMessageBox>

#include <QDesktopServices>
#include <QFileInfo>
#include <QPointer>
#include <QProgressDialog>
#include <QUrl>

#include <algorithm>

using Corvel::CheckAppUpdate;
using Corvel::FileDownloader;
using Hueloft::PMessageBox;
using namespace Qt::StringLiterals;

namespace CorvelGui {

struct AppUpdater::Private
{
    const QString applicationName;
    const QString serverBase;
    CheckAppUpdate* checker = nullptr;
    FileDownloader* downloader = nullptr;
    QVersionNumber currentVersion{};
    bool showResult = false;
    QPointer<QProgressDialog> progress{};
    qint64 expectedSize = -1;
    bool toldBusy = false;
};

AppUpdater::AppUpdater(const QString& applicationName, const QString& serverBase, QWidget* parent)
    : QObject(parent), d(new Private{.applicationName = applicationName, .serverBase = serverBase})
{
    d->checker = new CheckAppUpdate(serverBase, this);
    d->downloader = new FileDownloader(this);
    connect(d->checker, &CheckAppUpdate::appUpdateInfoError, this,
            &AppUpdater::handleCheckAppUpdateError);
    connect(d->checker, &CheckAppUpdate::appUpdateInfoResult, this,
            &AppUpdater::handleCheckAppUpdateResult);
    connect(d->downloader, &FileDownloader::downloadProgress, this,
            &AppUpdater::handleDownloadProgress);
    connect(d->downloader, &FileDownloader::downloadError, this, &AppUpdater::handleDownloadError);
    connect(d->downloader, &FileDownloader::downloadFinished, this,
            &AppUpdater::handleDownloadFinished);
}

AppUpdater::~AppUpdater()
{
    delete d->progress;
}

void AppUpdater::checkForUpdates(const QString& key, const QVersionNumber& current, bool showResult)
{
    d->showResult = showResult;
    d->currentVersion = current;
    d->checker->checkForUpdates(key, current);
    tellBusyLater(this, &d->toldBusy);
}

bool AppUpdater::isBusy() const
{
    return d->checker->isBusy() || d->downloader->isBusy();
}

void AppUpdater::handleCheckAppUpdateError(const QString& text)
{
    tellBusyLater(this, &d->toldBusy);
    PMessageBox::Warning(parentWidget(), tr("Error"),
                         tr("Error while checking for Software Updates:\n") + text, QMessageBox::Ok,
                         QMessageBox::Ok);
}

void AppUpdater::handleCheckAppUpdateResult(const CheckAppUpdate::AppUpdateInfoResult& result)
{
    tellBusyLater(this, &d->toldBusy);
    if (!result.updateAvailable) {
        if (d->showResult) {
            PMessageBox::Information(
                parentWidget(), tr("No Updates Available"),
                tr("Your version of %1 is already up-to-date.").arg(d->applicationName));
        }
        return;
    }
    if (!result.releaseDate) {
        qCCritical(updateLog, "An update without a release date is not offered.");
        return;
    }

    // The result is the checker's, and a next check may begin while the user thinks.
    const CheckAppUpdate::AppUpdateInfoResult offered = result;
    bool wanted = false;
    QString path;
    const bool lives = whileAlive(
        this,
        [&] {
            const QPointer<AppUpdaterDialog> dialog(new AppUpdaterDialog(
                d->applicationName, d->currentVersion, offered.newVersion, offered.releaseNotesUrl,
                *offered.releaseDate, parentWidget()));
            wanted = dialog->exec() == QDialog::Accepted;
            delete dialog;
        },
        [&] {
            if (wanted)
                path = askForInstallerPath(parentWidget(), tr("Save Software"),
                                           tr("Executable (*.exe)"), offered.fileName);
        });
    if (!lives || path.isEmpty())
        return;
    d->expectedSize = offered.size;
    downloadUpdate(offered.softwareId, path);
}

QUrl AppUpdater::requestUrlForFirmware(qint64 id) const
{
    return QUrl(d->serverBase + u"/software?id=%1"_s.arg(id));
}

void AppUpdater::downloadUpdate(qint64 id, const QString& path)
{
    if (!d->downloader->downloadFile(requestUrlForFirmware(id), path)) {
        PMessageBox::Warning(parentWidget(), tr("Error"),
                             tr("Unable to start download of Software Update."), QMessageBox::Ok,
                             QMessageBox::Ok);
        return;
    }
    tellBusyLater(this, &d->toldBusy);
    createProgressDialog();
}

void AppUpdater::createProgressDialog()
{
    resetProgressDialog();
    d->progress = new QProgressDialog(parentWidget());
    connect(d->progress, &QProgressDialog::canceled, d->downloader,
            &FileDownloader::cancelDownload);
    d->progress->setLabelText(u"Downloading Software Update..."_s);
    d->progress->setRange(0, 100);
    d->progress->setAutoReset(false); // more than the release says may come
    d->progress->setValue(0);
    d->progress->setMinimumDuration(0);
}

void AppUpdater::resetProgressDialog()
{
    if (d->progress) {
        d->progress->disconnect(d->downloader);
        d->progress->hide();
        d->progress->deleteLater();
        d->progress.clear();
    }
}

void AppUpdater::handleDownloadProgress(qint64 received, qint64 total)
{
    const qint64 whole = total == -1 ? d->expectedSize : total;
    if (d->progress && whole > 0)
        d->progress->setValue(int(std::min(received * 100 / whole, qint64(100))));
}

void AppUpdater::handleDownloadError(const QString& text)
{
    tellBusyLater(this, &d->toldBusy);
    resetProgressDialog();
    PMessageBox::Warning(parentWidget(), tr("Error"),
                         tr("Error during download of Software Update:\n\n%1").arg(text),
                         QMessageBox::Ok, QMessageBox::Ok);
}

void AppUpdater::handleDownloadFinished(const QString& path)
{
    tellBusyLater(this, &d->toldBusy);
    resetProgressDialog();
    const int answer = PMessageBox::Question(
        parentWidget(), tr("Download finished"),
        tr("Software Update download finished successfully.\nOpen download location?"));
    if (answer == QMessageBox::Yes)
        QDesktopServices::openUrl(QUrl::fromLocalFile(QFileInfo(path).absolutePath()));
}

QWidget* AppUpdater::parentWidget() const
{
    return qobject_cast<QWidget*>(parent());
}

} // namespace CorvelGui
