// SPDX-License-Identifier: MIT
#pragma once

#include "look/translated.h"
#include "options/updateservers.h"

#include <QMenu>

#include <memory>

class QLabel;
class QProgressBar;
class QStatusBar;

namespace CorvelGui {
class AppUpdater;
class PCheckVersionUpdate;
} // namespace CorvelGui

namespace Review {

/// Looks for a newer version of the client: by a version file, and by a query.
class UpdateMenu : public Translated<QMenu>
{
    Q_OBJECT

public:
    /// Dialogs stand over @p window. What is under way is shown in @p statusBar.
    UpdateMenu(QWidget* window, QStatusBar* statusBar);
    ~UpdateMenu() override;

    /// Also gives up what is under way at other servers.
    void setServers(const UpdateServers& servers);

protected:
    void retranslate() final;

private:
    void showBusy();
    void showDownload(qint64 received, qint64 total);

    QWidget* m_window;
    QLabel* m_label;
    QProgressBar* m_progress;
    UpdateServers m_servers;
    std::unique_ptr<CorvelGui::PCheckVersionUpdate> m_versionCheck;
    std::unique_ptr<CorvelGui::AppUpdater> m_updater;
    QAction* m_checkVersionFile;
    QAction* m_showChangeLog;
    QAction* m_askServer;
};

} // namespace Review
