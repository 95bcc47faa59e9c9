// SPDX-License-Identifier: MIT
#include "updatemenu.h"

#include <CorvelGui/AppUpdater>
#include <CorvelGui/PCheckVersionUpdate>

#include <QCoreApplication>
#include <QGuiApplication>
#include <QLabel>
#include <QProgressBar>
#include <QStatusBar>
#include <QVersionNumber>

using CorvelGui::AppUpdater;
using CorvelGui::PCheckVersionUpdate;
namespace Review {

UpdateMenu::UpdateMenu(QWidget* window, QStatusBar* statusBar)
    : Translated(window)
    , m_window(window)
    , m_label(new QLabel(statusBar))
    , m_progress(new QProgressBar(statusBar))
    , m_checkVersionFile(addAction(QString()))
    , m_showChangeLog(addAction(QString()))
    , m_askServer(addAction(QString()))
{
    m_progress->setMaximumWidth(180);
    statusBar->addPermanentWidget(m_label);
    statusBar->addPermanentWidget(m_progress);

    connect(m_checkVersionFile, &QAction::triggered, this,
            [this] { m_versionCheck->checkVersion(true); });
    connect(m_showChangeLog, &QAction::triggered, this, [this] {
        if (m_versionCheck->GetReadMeFile().isEmpty())
            m_versionCheck->fetchChangeLog();
        else
            m_versionCheck->checkChangeLog();
    });
    connect(m_askServer, &QAction::triggered, this, [this] {
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
    m_versionCheck.reset();
    m_updater.reset();
    m_versionCheck =
        std::make_unique<PCheckVersionUpdate>(m_window, QCoreApplication::applicationVersion(),
                                              servers.publicServer, servers.internalChannel, true);
    connect(m_versionCheck.get(), &PCheckVersionUpdate::signalDownloadProgress, this,
            &UpdateMenu::showDownload);
    m_updater = std::make_unique<AppUpdater>(QGuiApplication::applicationDisplayName(),
                                             servers.queryServer, m_window);
    connect(m_versionCheck.get(), &PCheckVersionUpdate::busyChanged, this, &UpdateMenu::showBusy);
    connect(m_updater.get(), &AppUpdater::busyChanged, this, &UpdateMenu::showBusy);
    showBusy();
}

void UpdateMenu::retranslate()
{
    setTitle(tr("&Updates"));
    m_checkVersionFile->setText(tr("&Check version file"));
    m_showChangeLog->setText(tr("&Show change log"));
    m_askServer->setText(tr("&Ask update server"));
    m_label->setText(tr("Waiting for the update server"));
    m_progress->setAccessibleName(m_label->text());
}

void UpdateMenu::showBusy()
{
    const bool checks = m_versionCheck->isBusy();
    const bool asks = m_updater->isBusy();
    m_checkVersionFile->setEnabled(!checks);
    m_showChangeLog->setEnabled(!checks);
    m_askServer->setEnabled(!asks);
    m_label->setVisible(checks || asks);
    m_progress->setVisible(checks || asks);
    m_progress->setRange(0, 0);
}

void UpdateMenu::showDownload(qint64 received, qint64 total)
{
    // In thousandths, because a size can be beyond the range of an integer.
    constexpr int whole = 1'000;
    m_progress->setRange(0, total > 0 ? whole : 0);
    m_progress->setValue(total > 0 ? int(received * whole / total) : 0);
}

} // namespace Review
