// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/corvelgui_export.h>

#include <QDialog>

namespace CorvelGui {

/// Base of the library's dialogs: a QDialog whose title bar shows no context help ("?") button.
class CORVELGUI_EXPORT PBaseDialog : public QDialog
{
    Q_OBJECT

public:
    explicit PBaseDialog(QWidget* parent = nullptr);
};

} // namespace CorvelGui
