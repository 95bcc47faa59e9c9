// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/PWidget>

#include <memory>

namespace CorvelGui {

/// What the machine is on which the program runs: program, system, Qt, screens with their scale
/// factors, what draws, memory, network interfaces and time zone, to be copied as a text for
/// whoever helps the user. A part of a dialog or of a page.
///
/// Asks the system when it is shown, and when screens come, go or change.
class CORVELGUI_EXPORT PSystemInfoWidget : public PWidget
{
    Q_OBJECT

public:
    explicit PSystemInfoWidget(QWidget* parent = nullptr);
    ~PSystemInfoWidget() override;

    /// All that is shown: a line for each section, and below it a line "  name: value" for each of
    /// its facts. In the language of the user.
    QString toPlainText() const;

public Q_SLOTS:
    /// Asks the system anew.
    void refresh();
    /// Puts toPlainText() on the clipboard.
    void copy();

Q_SIGNALS:
    /// Emitted when the system has been asked.
    void refreshed();

protected:
    void showEvent(QShowEvent* event) override;
    void retranslate() override;

private:
    struct Private;
    const std::unique_ptr<Private> d;
};

} // namespace CorvelGui
