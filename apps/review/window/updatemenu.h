#pragma once

#include <QMenu>

#include <memory>

class QProgressBar;
class QStatusBar;

namespace CorvelGui {
class AppUpdater;
class PCheckVersionUpdate;
} // namespace CorvelGui

namespace Review {

/// Where newer versions of the client are looked for.
struct UpdateServers
{
    /// Folders with a version file each, with a slash at their end.
    QString internalChannel = QStringLiteral("http://127.0.0.1:8480/internal/");
    QString publicServer = QStringLiteral("http://127.0.0.1:8480/");
    /// Answers update queries.
    QString queryServer = QStringLiteral("http://127.0.0.1:8480");

    bool operator==(const UpdateServers&) const = default;
};

/// Looks for a newer version of the client: by a version file, and by a query.
class UpdateMenu : public QMenu
{
    Q_OBJECT

public:
    /// Dialogs stand over @p window. The progress of a download is shown in @p statusBar.
    UpdateMenu(QWidget* window, QStatusBar* statusBar);
    ~UpdateMenu() override;

    /// Also gives up what is under way at other servers.
    void setServers(const UpdateServers& servers);
    /// Applies all translated texts again.
    void retranslate();

private:
    void showDownload(qint64 received, qint64 total);

    QWidget* m_window;
    QProgressBar* m_progress;
    UpdateServers m_servers;
    std::unique_ptr<CorvelGui::PCheckVersionUpdate> m_versionCheck;
    std::unique_ptr<CorvelGui::AppUpdater> m_updater;
    QAction* m_checkVersionFile;
    QAction* m_showChangeLog;
    QAction* m_askServer;
};

} // namespace Review
