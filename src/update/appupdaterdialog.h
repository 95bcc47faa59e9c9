// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/PBaseDialog>

#include <memory>

class QDateTime;
class QVersionNumber;

namespace CorvelGui {

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
    void retranslate();

    struct Private;
    const std::unique_ptr<Private> d;
};

} // namespace CorvelGui
