#include "pcheckversionupdate.h"

#include "base/whilealive.h"
#include "base/wholefile.h"
#include "installerpath.h"
#include "pchangelogdialog.h"
#include "pcheckversionupdatedialog.h"
#include "versionfile.h"

#include <Corvel/ProxyNetworkAccessManager>
#include <Corvel/ProxyUserSettings>
#include <Hueloft/PMessageBox>

#include <QCoreApplication>
#include <QDebug>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QNetworkReply>
#include <QPointer>
#include <QUrl>

#include <utility>

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

    // Of one check.
    bool showResult = false;
    bool internalChannel = false;
    VersionFile offered{};
    QString readmeUrl{};
    QString readmeText{};
    QByteArray intranetData{};
    QByteArray internetData{};
    QByteArray readmeData{};
    QNetworkReply* intranetReply = nullptr;
    QNetworkReply* internetReply = nullptr;
    QNetworkReply* readmeReply = nullptr;

    // Of one download.
    QString savePath{};
    QByteArray installData{};
    QNetworkReply* installReply = nullptr;

    static void take(QNetworkReply* reply, QByteArray& buffer)
    {
        if (reply)
            buffer += reply->readAll();
    }

    /// The reply of @p member if it is finished; it is not the member's any more, and deletes
    /// itself later. Null if another request replaced it meanwhile.
    static QNetworkReply* finished(QNetworkReply*& member)
    {
        if (!member || !member->isFinished())
            return nullptr;
        member->deleteLater();
        return std::exchange(member, nullptr);
    }

    static void abandon(QNetworkReply*& member)
    {
        if (QNetworkReply* reply = std::exchange(member, nullptr)) {
            reply->disconnect();
            reply->abort();
            reply->deleteLater();
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
    Private::abandon(d->intranetReply);
    Private::abandon(d->internetReply);
    Private::abandon(d->readmeReply);
    d->showResult = showResult;
    d->internalChannel = false;
    d->offered = {};
    d->readmeText.clear();
    requestVersionFileIntranet();
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
    return d->intranetReply || d->internetReply || d->readmeReply || d->installReply;
}

void PCheckVersionUpdate::setLimits(const Corvel::RequestLimits& texts,
                                    const Corvel::RequestLimits& installers)
{
    d->textLimits = texts;
    d->installerLimits = installers;
}

QNetworkReply* PCheckVersionUpdate::get(const QUrl& url, const Corvel::RequestLimits& limits,
                                        Slot readyRead, Slot finished)
{
    d->manager->setLimits(limits);
    QNetworkReply* reply = d->manager->get(QNetworkRequest(url));
    connect(reply, &QNetworkReply::readyRead, this, readyRead);
    // Messages are shown from the event loop, not from within the reply.
    connect(reply, &QNetworkReply::finished, this, finished, Qt::QueuedConnection);
    return reply;
}

void PCheckVersionUpdate::requestVersionFileIntranet()
{
    const QString url = d->intranetBase + versionFileName;
    qDebug() << "requestVersionFileIntranet=" << url;
    d->intranetData.clear();
    d->intranetReply =
        get(QUrl(url), d->textLimits, &PCheckVersionUpdate::httpReadyReadVersionFileIntranet,
            &PCheckVersionUpdate::httpFinishedVersionFileIntranet);
}

void PCheckVersionUpdate::httpReadyReadVersionFileIntranet()
{
    Private::take(d->intranetReply, d->intranetData);
}

void PCheckVersionUpdate::httpFinishedVersionFileIntranet()
{
    const QNetworkReply* reply = Private::finished(d->intranetReply);
    if (!reply)
        return;
    if (reply->error() != QNetworkReply::NoError) {
        qDebug() << reply->errorString();
        requestVersionFileInternet();
    } else if (parseVersionInfo(d->intranetData)) {
        d->internalChannel = true;
        requestReadMeFile(d->intranetBase + d->offered.readmeFile);
    } else {
        tellUnreadable();
    }
}

void PCheckVersionUpdate::requestVersionFileInternet()
{
    const QString url = d->internetBase + versionFileName;
    qDebug() << "requestVersionFileInternet=" << url;
    d->internetData.clear();
    d->internetReply =
        get(QUrl(url), d->textLimits, &PCheckVersionUpdate::httpReadyReadVersionFileInternet,
            &PCheckVersionUpdate::httpFinishedVersionFileInternet);
}

void PCheckVersionUpdate::httpReadyReadVersionFileInternet()
{
    Private::take(d->internetReply, d->internetData);
}

void PCheckVersionUpdate::httpFinishedVersionFileInternet()
{
    const QNetworkReply* reply = Private::finished(d->internetReply);
    if (!reply)
        return;
    if (reply->error() != QNetworkReply::NoError) {
        qDebug() << reply->errorString();
        if (d->showResult) {
            PMessageBox::Critical(nullptr, tr("Update check failed"),
                                  tr("Cannot connect to Orvane Software Update Server!\n"
                                     "Please check internet connection."));
        }
    } else if (parseVersionInfo(d->internetData)) {
        requestReadMeFile(d->internetBase + d->offered.readmeFile);
    } else {
        tellUnreadable();
    }
}

bool PCheckVersionUpdate::parseVersionInfo(const QByteArray& content)
{
    const std::optional<VersionFile> file = VersionFile::parse(content);
    d->offered = file.value_or(VersionFile());
    return file.has_value();
}

void PCheckVersionUpdate::tellUnreadable()
{
    qDebug() << "Cannot parse version file " << versionFileName;
    PMessageBox::Critical(nullptr, tr("Update check failed"),
                          tr("Internal error!\nCannot parse version information."));
}

void PCheckVersionUpdate::requestReadMeFile(const QString& url)
{
    d->readmeText.clear();
    d->readmeData.clear();
    d->readmeUrl = url;
    d->readmeReply = get(QUrl(url), d->textLimits, &PCheckVersionUpdate::httpReadyReadReadMeFile,
                         &PCheckVersionUpdate::httpFinishedReadMeFile);
}

void PCheckVersionUpdate::httpReadyReadReadMeFile()
{
    Private::take(d->readmeReply, d->readmeData);
}

void PCheckVersionUpdate::httpFinishedReadMeFile()
{
    const QNetworkReply* reply = Private::finished(d->readmeReply);
    if (!reply)
        return;
    if (reply->error() != QNetworkReply::NoError) {
        d->readmeText = u"Error reading %1"_s.arg(d->readmeUrl);
        return;
    }
    d->readmeText = QString::fromUtf8(d->readmeData);
    compareVersions();
}

void PCheckVersionUpdate::compareVersions()
{
    const auto current = ReleaseVersion::parse(d->currentVersion).value_or(ReleaseVersion());
    if (current < d->offered.version) {
        qDebug() << "New version found!";
        offer();
    } else if (d->showResult) {
        PMessageBox::Information(
            parentWidget(), QCoreApplication::applicationName(),
            tr("Your %1 Version is up to date").arg(QCoreApplication::applicationName()));
    }
}

void PCheckVersionUpdate::offer()
{
    // A next check may begin while the user thinks about this one.
    const VersionFile offered = d->offered;
    const QString base = d->internalChannel ? d->intranetBase : d->internetBase;
    const auto current = ReleaseVersion::parse(d->currentVersion).value_or(ReleaseVersion());
    QString heading = QCoreApplication::applicationName();
    if (d->internalChannel)
        heading += tr(" ") + tr("(Internal Release Channel)");
    const QString message =
        tr("%1\n\nCurrent version: %2\nA new version is available: %3\nRelease date: %4\n\n"
           "Would you like to download this version?")
            .arg(heading, current.text(d->showRevision), offered.version.text(d->showRevision),
                 offered.releaseDate);

    const QPointer<PCheckVersionUpdate> self(this);
    const QPointer<PCheckVersionUpdateDialog> dialog(
        new PCheckVersionUpdateDialog(message, d->readmeText, parentWidget()));
    dialog->setWindowTitle(QCoreApplication::applicationName());
    const bool wanted = dialog->exec() == QDialog::Accepted;
    delete dialog;
    if (!wanted || !self)
        return;

    const QString path = askForInstallerPath(nullptr, tr("Save Software"), tr("Executable (*.exe)"),
                                             offered.updateFile);
    if (path.isEmpty() || !self)
        return;
    d->savePath = path;
    requestInstallFile(base + offered.updateFile);
}

void PCheckVersionUpdate::requestInstallFile(const QString& url)
{
    Private::abandon(d->installReply);
    d->installData.clear();
    if (!whileAlive(this, [this] { Q_EMIT signalDownloadProgress(-1, -1); }))
        return;
    d->installReply =
        get(QUrl(url), d->installerLimits, &PCheckVersionUpdate::httpReadyReadInstallFile,
            &PCheckVersionUpdate::httpFinishedInstallFile);
    connect(d->installReply, &QNetworkReply::downloadProgress, this,
            &PCheckVersionUpdate::httpFileProgressInstallFile, Qt::QueuedConnection);
}

void PCheckVersionUpdate::httpReadyReadInstallFile()
{
    Private::take(d->installReply, d->installData);
}

void PCheckVersionUpdate::httpFileProgressInstallFile(qint64 received, qint64 total)
{
    // After the last of it, its end is told instead.
    if (d->installReply && !d->installReply->isFinished())
        Q_EMIT signalDownloadProgress(received, total);
}

void PCheckVersionUpdate::httpFinishedInstallFile()
{
    const QNetworkReply* reply = Private::finished(d->installReply);
    if (!reply)
        return;
    qDebug() << "PCheckVersionUpdate::httpFinishedDownloadFile()";
    const QByteArray content = std::exchange(d->installData, {});
    if (reply->error() == QNetworkReply::NoError) {
        saveInstaller(content);
        return;
    }
    const QString error = reply->errorString();
    qDebug() << error;
    if (!whileAlive(this, [this] { Q_EMIT signalDownloadProgress(0, 0); }))
        return;
    PMessageBox::Critical(parentWidget(), tr("Download failed"),
                          tr("Download failed!\n\nError: %1").arg(error));
}

void PCheckVersionUpdate::saveInstaller(const QByteArray& content)
{
    const QString path = d->savePath;
    if (!whileAlive(this, [&] { Q_EMIT signalDownloadProgress(content.size(), content.size()); }))
        return;
    if (!writeWholeFile(path, content).isEmpty()) {
        PMessageBox::Critical(parentWidget(), tr("Download failed"),
                              tr("Error while saving file!"));
        return;
    }
    const int answer = PMessageBox::Question(
        parentWidget(), QCoreApplication::applicationName(),
        tr("Downloading of new version was finished successfully!\n\nLocation: %1\n\n"
           "Open download file location?")
            .arg(QDir::toNativeSeparators(path)),
        QMessageBox::Yes);
    if (answer == QMessageBox::Yes)
        QDesktopServices::openUrl(QUrl::fromLocalFile(QFileInfo(path).absolutePath()));
}

QWidget* PCheckVersionUpdate::parentWidget() const
{
    return qobject_cast<QWidget*>(parent());
}

} // namespace CorvelGui
