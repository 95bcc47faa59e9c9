// SPDX-License-Identifier: MIT
#include "pbasedialog.h"

namespace CorvelGui {

PBaseDialog::PBaseDialog(QWidget* parent) : QDialog(parent)
{
    setWindowFlags(windowFlags() & ~Qt::WindowContextHelpButtonHint);
}

} // namespace CorvelGui
