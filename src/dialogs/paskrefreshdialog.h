// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/PBaseDialog>

#include <QVariant>

#include <memory>

namespace CorvelGui {

/// Asks at program start whether to refresh the status information of all devices: accepted means
/// now.
class CORVELGUI_EXPORT PAskRefreshDialog : public PBaseDialog
{
    Q_OBJECT

public:
    /// @p lastUpdate is the time of the last refresh, or anything that is none: then the dialog
    /// says nothing about it.
    PAskRefreshDialog(QWidget* parent, const QVariant& lastUpdate, bool showNextTime);
    ~PAskRefreshDialog() override;

    /// Whether to ask again at the next start. It counts whatever the answer is.
    bool ShowNextTime() const;

protected:
    void changeEvent(QEvent* event) override;

private Q_SLOTS:
    void slotAccept();

private:
    void retranslate();

    struct Private;
    const std::unique_ptr<Private> d;
};

} // namespace CorvelGui
