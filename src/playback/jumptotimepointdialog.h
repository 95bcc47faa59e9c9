// SPDX-License-Identifier: MIT
#pragma once

#include "base/internalexport.h"

#include <QDateTime>
#include <QDialog>

#include <memory>

namespace CorvelGui {

/// The pop-up of the date-time view in which the user picks a date and a time. It closes as
/// rejected when another window becomes active.
class CORVELGUI_INTERNAL_EXPORT JumpToTimepointDialog : public QDialog
{
    Q_OBJECT

public:
    explicit JumpToTimepointDialog(QWidget* parent = nullptr);
    ~JumpToTimepointDialog() override;

    void setDeviceName(const QString& name);
    /// See TarvoDateTimeView.
    void setDateFormat(const QString& format);
    void setLimits(const QDateTime& earliest, const QDateTime& latest);

    /// Shows @p moment on the clock of its own zone, in which moment() will be as well.
    void setMoment(const QDateTime& moment);
    /// What the user picked; invalid while the clocks skip the time that is shown, and beyond the
    /// limits.
    QDateTime moment() const;

    /// Whether it closed because another window became active.
    bool wasLeft() const;

public Q_SLOTS:
    /// Does nothing while moment() is invalid; the dialog says why.
    void accept() override;
    void done(int result) override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void moveDate(int days);
    void enableApply();
    void rejectWhenLeft();
    void retranslate();

    struct Private;
    const std::unique_ptr<Private> d;
};

} // namespace CorvelGui
