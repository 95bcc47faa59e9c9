#include "updatemenu.h"

#include <CorvelGui/AppUpdater>
#include <CorvelGui/PCheckVersionUpdate>

#include <QCoreApplication>
#include <QGuiApplication>
#include <QProgressBar>
#include <QStatusBar>
#include <QVersionNumber>

using CorvelGui::AppUpdater;
using CorvelGui::PCheckVersionUpdate;
namespace Review {

UpdateMenu::UpdateMenu(QWidget* window, QStatusBar* statusBar)
    : Translated(window)
    , m_window(window)
    , m_progress(new QProgressBar(statusBar))
    , m_checkVersionFile(addAction(QString()))
    , m_showChangeLog(addAction(QString()))
    , m_askServer(addAction(QString()))
{
    m_progress->setMaximumWidth(180);
    m_progress->hide();
    statusBar->addPermanentWidget(m_progress);

    connect(m_checkVersionFile, &QAction::triggered, this, [this] {
        if (!m_versionCheck->isBusy())
            m_versionCheck->checkVersion(true);
    });
    connect(m_showChangeLog, &QAction::triggered, this,
            [this] { m_versionCheck->checkChangeLog(); });
    connect(m_askServer, &QAction::triggered, this, [this] {
        if (!m_updater->isBusy())
            m_updater->checkForUpdates(
                QCoreApplication::applicationName(),
                QVersionNumber::fromString(QCoreApplication::applicationVersion()), true);
    });
    setServers({});
    retranslate();
}

UpdateMenu::~UpdateMenu() = default;

void UpdateMenu::setServers(const UpdateServers& servers)
{
    if (m_updater && m_servers == servers)
        return;
    m_servers = servers;
    m_progress->hide();
    m_versionCheck.reset();
    m_updater.reset();
    m_versionCheck =
        std::make_unique<PCheckVersionUpdate>(m_window, QCoreApplication::applicationVersion(),
                                              servers.publicServer, servers.internalChannel, true);
    connect(m_versionCheck.get(), &PCheckVersionUpdate::signalDownloadProgress, this,
            &UpdateMenu::showDownload);
    m_updater = std::make_unique<AppUpdater>(QGuiApplication::applicationDisplayName(),
                                             servers.queryServer, m_window);
}

void UpdateMenu::retranslate()
{
    setTitle(tr("&Updates"));
    m_checkVersionFile->setText(tr("Check version file"));
    m_showChangeLog->setText(tr("Show change log"));
    m_askServer->setText(tr("Ask update server"));
    m_progress->setAccessibleName(tr("Download of the update"));
}

void UpdateMenu::showDownload(qint64 received, qint64 total)
{
    // In thousandths, because a size can be beyond the range of an integer.
    constexpr int whole = 1'000;
    m_progress->setRange(0, total > 0 ? whole : 0);
    m_progress->setValue(total > 0 ? int(received * whole / total) : 0);
    m_progress->setVisible(received != total || total < 0);
}

} // namespace Review
