// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/corvelgui_export.h>

#include <QDialog>

#include <memory>

namespace CorvelGui {

/// Tells of a newer version, shows its change log on request, and asks whether to download it:
/// accepted means yes.
class CORVELGUI_EXPORT PCheckVersionUpdateDialog : public QDialog
{
    Q_OBJECT

public:
    /// @p message is plain text. @p changeLog is HTML of any origin; see PChangeLogDialog.
    PCheckVersionUpdateDialog(const QString& message, const QString& changeLog,
                              QWidget* parent = nullptr);
    ~PCheckVersionUpdateDialog() override;

protected:
    void changeEvent(QEvent* event) override;

private:
    void showChangeLog();
    void retranslate();

    struct Private;
    const std::unique_ptr<Private> d;
};

} // namespace CorvelGui
