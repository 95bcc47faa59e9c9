// SPDX-License-Identifier: MIT
#include "pcheckversionupdate.h"

#include "base/logging.h"
#include "base/whilealive.h"
#include "busynews.h"
#include "installerpath.h"
#include "pchangelogdialog.h"
#include "pcheckversionupdatedialog.h"
#include "versionfile.h"

#include <Corvel/FileDownloader>
#include <Corvel/ProxyNetworkAccessManager>
#include <Corvel/ProxyUserSettings>
#include <Hueloft/PMessageBox>

#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QNetworkReply>
#include <QPointer>
#include <QUrl>

#include <utility>

using Corvel::FileDownloader;
using Corvel::ProxyNetworkAccessManager;
using Hueloft::PMessageBox;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace CorvelGui {

namespace {

const QString versionFileName = u"version.txt"_s;

} // namespace

struct PCheckVersionUpdate::Private
{
    const QString internetBase;
    const QString intranetBase;
    const bool showRevision;
    QString currentVersion;
    Corvel::RequestLimits textLimits{};
    Corvel::RequestLimits installerLimits{
        .deadline = 2h, .silence = 30s, .size = qint64(1024) * 1024 * 1024};
    ProxyNetworkAccessManager* manager = nullptr;
    bool toldBusy = false;

    // Of one check, whose requests follow one another.
    bool wantsChangeLog = false;
    bool showResult = false;
    bool internalChannel = false;
    VersionFile offered{};
    QString readmeText{};
    QNetworkReply* reply = nullptr;
    QByteArray received{};
    QString failure{}; ///< why the last request brought nothing, for the user

    std::unique_ptr<FileDownloader> installer{}; ///< of one download

    void abandonCheck()
    {
        if (QNetworkReply* running = std::exchange(reply, nullptr)) {
            running->disconnect();
            running->abort();
            running->deleteLater();
        }
    }
};

PCheckVersionUpdate::PCheckVersionUpdate(QWidget* parent, const QString& currentVersion,
                                         const QString& internetBase, const QString& intranetBase,
                                         bool showRevision)
    : QObject(parent)
    , d(new Private{.internetBase = internetBase,
                    .intranetBase = intranetBase,
                    .showRevision = showRevision,
                    .currentVersion = currentVersion})
{
    d->manager = new ProxyNetworkAccessManager(this);
    d->manager->Init(Corvel::ProxyUserSettings::m_Settings);
}

PCheckVersionUpdate::~PCheckVersionUpdate() = default;

void PCheckVersionUpdate::checkVersion(bool showResult)
{
    d->showResult = showResult;
    begin(false);
}

void PCheckVersionUpdate::fetchChangeLog()
{
    begin(true);
}

void PCheckVersionUpdate::checkChangeLog()
{
    if (d->readmeText.isEmpty()) {
        PMessageBox::Warning(parentWidget(), u"Error Download"_s,
                             tr("Could not download change log information."), QMessageBox::Ok,
                             QMessageBox::Ok);
        return;
    }
    auto* dialog = new PChangeLogDialog(parentWidget());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setHtml(d->readmeText);
    dialog->setModal(true);
    dialog->show();
}

QString PCheckVersionUpdate::currentVersion() const
{
    return d->currentVersion;
}

void PCheckVersionUpdate::setCurrentVersion(const QString& version)
{
    d->currentVersion = version;
}

QString PCheckVersionUpdate::GetReadMeFile() const
{
    return d->readmeText;
}

bool PCheckVersionUpdate::hasInternalReleaseChannelConnection() const
{
    return d->internalChannel;
}

bool PCheckVersionUpdate::isBusy() const
{
    return d->reply || (d->installer && d->installer->isBusy());
}

Corvel::RequestLimits PCheckVersionUpdate::textLimits() const
{
    return d->textLimits;
}

Corvel::RequestLimits PCheckVersionUpdate::installerLimits() const
{
    return d->installerLimits;
}

void PCheckVersionUpdate::setLimits(const Corvel::RequestLimits& texts,
                                    const Corvel::RequestLimits& installers)
{
    d->textLimits = texts;
    d->installerLimits = installers;
}

void PCheckVersionUpdate::begin(bool wantsChangeLog)
{
    d->abandonCheck();
    d->wantsChangeLog = wantsChangeLog;
    d->internalChannel = false;
    d->offered = {};
    d->readmeText.clear();
    requestVersionFile(d->intranetBase.isEmpty() ? Channel::Public : Channel::Internal);
}

void PCheckVersionUpdate::fetch(const QString& url, const Answered& answered)
{
    d->received.clear();
    d->manager->setLimits(d->textLimits);
    QNetworkReply* reply = d->manager->get(QNetworkRequest(QUrl(url)));
    d->reply = reply;
    connect(reply, &QNetworkReply::readyRead, this,
            [this, reply] { d->received += reply->readAll(); });
    // Messages are shown from the event loop, not from within the reply.
    const auto finish = [this, reply, answered] {
        if (d->reply != reply) // another check replaced it meanwhile
            return;
        d->reply = nullptr;
        reply->deleteLater();
        const bool arrived = reply->error() == QNetworkReply::NoError;
        d->failure = arrived ? QString() : reply->errorString();
        if (!arrived)
            qCDebug(updateLog) << d->failure;
        tellBusyLater();
        answered(arrived);
    };
    connect(reply, &QNetworkReply::finished, this, finish, Qt::QueuedConnection);
    tellBusyLater();
}

void PCheckVersionUpdate::requestVersionFile(Channel channel)
{
    const bool internal = channel == Channel::Internal;
    const QString url = (internal ? d->intranetBase : d->internetBase) + versionFileName;
    qCDebug(updateLog) << (internal ? "requestVersionFileIntranet=" : "requestVersionFileInternet=")
                       << url;
    fetch(url, [this, channel](bool arrived) { takeVersionFile(channel, arrived); });
}

void PCheckVersionUpdate::takeVersionFile(Channel channel, bool arrived)
{
    const bool internal = channel == Channel::Internal;
    if (!arrived) {
        if (internal)
            requestVersionFile(Channel::Public);
        else
            giveUp(d->showResult ? tr("Cannot connect to Orvane Software Update Server!\n"
                                      "Please check internet connection.")
                                 : QString());
        return;
    }
    const std::optional<VersionFile> file = VersionFile::parse(d->received);
    if (!file) {
        qCDebug(updateLog) << "Cannot parse version file " << versionFileName;
        d->failure = tr("Internal error!\nCannot parse version information.");
        giveUp(d->failure);
        return;
    }
    d->offered = *file;
    d->internalChannel = internal;
    const QString url = base() + file->readmeFile;
    fetch(url, [this, url](bool notesArrived) { takeReadMeFile(url, notesArrived); });
}

void PCheckVersionUpdate::giveUp(const QString& text)
{
    if (d->wantsChangeLog) {
        checkChangeLog();
        return;
    }
    tellEndLater(Outcome::Failed, d->failure);
    if (!text.isEmpty())
        PMessageBox::Critical(nullptr, tr("Update check failed"), text);
}

void PCheckVersionUpdate::takeReadMeFile(const QString& url, bool arrived)
{
    d->readmeText = arrived ? QString::fromUtf8(d->received) : u"Error reading %1"_s.arg(url);
    if (d->wantsChangeLog)
        checkChangeLog();
    else if (arrived)
        compareVersions();
    else
        tellEndLater(Outcome::Failed, d->failure);
}

void PCheckVersionUpdate::compareVersions()
{
    const auto current = ReleaseVersion::parse(d->currentVersion).value_or(ReleaseVersion());
    const bool isNewer = current < d->offered.version;
    tellEndLater(isNewer ? Outcome::NewerRelease : Outcome::UpToDate);
    if (isNewer) {
        qCDebug(updateLog) << "New version found!";
        offer(current);
    } else if (d->showResult) {
        PMessageBox::Information(
            parentWidget(), QCoreApplication::applicationName(),
            tr("Your %1 Version is up to date").arg(QCoreApplication::applicationName()));
    }
}

void PCheckVersionUpdate::offer(const ReleaseVersion& current)
{
    // A next check may begin while the user thinks about this one.
    const VersionFile offered = d->offered;
    const QString url = base() + offered.updateFile;
    QString heading = QCoreApplication::applicationName();
    if (d->internalChannel)
        heading += tr(" ") + tr("(Internal Release Channel)");
    const QString message =
        tr("%1\n\nCurrent version: %2\nA new version is available: %3\nRelease date: %4\n\n"
           "Would you like to download this version?")
            .arg(heading, current.text(d->showRevision), offered.version.text(d->showRevision),
                 offered.releaseDate);

    bool wanted = false;
    QString path;
    const bool lives = whileAlive(
        this,
        [&] {
            const QPointer<PCheckVersionUpdateDialog> dialog(
                new PCheckVersionUpdateDialog(message, d->readmeText, parentWidget()));
            dialog->setWindowTitle(QCoreApplication::applicationName());
            wanted = dialog->exec() == QDialog::Accepted;
            delete dialog;
        },
        [&] {
            if (wanted)
                path = askForInstallerPath(nullptr, tr("Save Software"), tr("Executable (*.exe)"),
                                           offered.updateFile);
        });
    if (lives && !path.isEmpty())
        requestInstallFile(url, path);
}

void PCheckVersionUpdate::requestInstallFile(const QString& url, const QString& path)
{
    d->installer = std::make_unique<FileDownloader>();
    if (!whileAlive(this, [this] { Q_EMIT signalDownloadProgress(-1, -1); }))
        return;
    d->installer->setLimits(d->installerLimits);
    connect(d->installer.get(), &FileDownloader::downloadProgress, this,
            &PCheckVersionUpdate::signalDownloadProgress);
    connect(d->installer.get(), &FileDownloader::downloadError, this, [this](const QString& error) {
        qCDebug(updateLog) << "PCheckVersionUpdate::httpFinishedDownloadFile()";
        qCDebug(updateLog) << error;
        tellDownloadFailure(tr("Download failed!\n\nError: %1").arg(error));
    });
    connect(d->installer.get(), &FileDownloader::downloadFinished, this,
            &PCheckVersionUpdate::tellSaved);
    if (d->installer->downloadFile(QUrl(url), path))
        tellBusyLater();
    else
        tellDownloadFailure(tr("Error while saving file!"));
}

void PCheckVersionUpdate::tellDownloadFailure(const QString& text)
{
    tellBusyLater();
    if (whileAlive(this, [this] { Q_EMIT signalDownloadProgress(0, 0); }))
        PMessageBox::Critical(parentWidget(), tr("Download failed"), text);
}

void PCheckVersionUpdate::tellSaved(const QString& path)
{
    qCDebug(updateLog) << "PCheckVersionUpdate::httpFinishedDownloadFile()";
    tellBusyLater();
    const qint64 size = QFileInfo(path).size();
    if (!whileAlive(this, [&] { Q_EMIT signalDownloadProgress(size, size); }))
        return;
    const int answer = PMessageBox::Question(
        parentWidget(), QCoreApplication::applicationName(),
        tr("Downloading of new version was finished successfully!\n\nLocation: %1\n\n"
           "Open download file location?")
            .arg(QDir::toNativeSeparators(path)),
        QMessageBox::Yes);
    if (answer == QMessageBox::Yes)
        QDesktopServices::openUrl(QUrl::fromLocalFile(QFileInfo(path).absolutePath()));
}

void PCheckVersionUpdate::tellBusyLater()
{
    CorvelGui::tellBusyLater(this, &d->toldBusy);
}

void PCheckVersionUpdate::tellEndLater(Outcome outcome, const QString& error)
{
    const auto tell = [this, outcome, error] {
        Q_EMIT checkEnded(outcome, error);
    };
    QMetaObject::invokeMethod(this, tell, Qt::QueuedConnection);
}

QString PCheckVersionUpdate::base() const
{
    return d->internalChannel ? d->intranetBase : d->internetBase;
}

QWidget* PCheckVersionUpdate::parentWidget() const
{
    return qobject_cast<QWidget*>(parent());
}

} // namespace CorvelGui
