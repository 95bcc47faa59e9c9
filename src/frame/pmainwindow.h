// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/corvelgui_export.h>

#include <QMainWindow>

#include <memory>

namespace CorvelGui {

/// Main window that owns the look of its application.
class CORVELGUI_EXPORT PMainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// Remembers the application's palette, which the dark look starts from. Create the window
    /// before anything changes that palette.
    explicit PMainWindow(QWidget* parent = nullptr);
    ~PMainWindow() override;

    /// Resizes the window so that 100 pixels of the primary screen stay free on each side.
    void setCenterPosAndResize();

    /// Switches the whole application (style, palette, style sheet) to the dark look, or to the
    /// light one.
    void createDarkFusionStyle(bool dark);

private:
    struct Private;
    const std::unique_ptr<Private> d;
};

} // namespace CorvelGui
