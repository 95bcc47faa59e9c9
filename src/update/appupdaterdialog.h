#pragma once

#include <CorvelGui/PBaseDialog>

#include <QDateTime>
#include <QUrl>
#include <QVersionNumber>

#include <memory>

namespace CorvelGui {

namespace Ui {
class AppUpdaterDialog;
}

/// Tells of a newer version and asks whether to download it: accepted means yes.
class CORVELGUI_EXPORT AppUpdaterDialog : public PBaseDialog
{
    Q_OBJECT

public:
    /// Without a valid http or https address in @p releaseNotesUrl there is no button for release
    /// notes; with one, the button opens it in the desktop's browser. Of @p releaseDate the date is
    /// shown, if it is valid.
    AppUpdaterDialog(const QString& applicationName, const QVersionNumber& current,
                     const QVersionNumber& available, const QString& releaseNotesUrl,
                     const QDateTime& releaseDate, QWidget* parent = nullptr);
    ~AppUpdaterDialog() override;

protected:
    void changeEvent(QEvent* event) override;

private:
    void initTextEdit(const QString& name, const QVersionNumber& current,
                      const QVersionNumber& available, const QDateTime& date);
    void showReleaseNotes();

    const std::unique_ptr<Ui::AppUpdaterDialog> m_ui;
    const QString m_name;
    const QVersionNumber m_current;
    const QVersionNumber m_available;
    const QDateTime m_date;
    const QUrl m_releaseNotes;
};

} // namespace CorvelGui
