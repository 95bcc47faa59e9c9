// SPDX-License-Identifier: MIT
#include "pfractionalprogressbar.h"

using namespace Qt::StringLiterals;

namespace CorvelGui {

PFractionalProgressBar::PFractionalProgressBar(QWidget* parent) : QProgressBar(parent) {}

QString PFractionalProgressBar::text() const
{
    if (minimum() == maximum())
        return {};
    const double percent =
        (double(value()) - minimum()) * 100 / (double(maximum()) - double(minimum()));
    return u"%1%"_s.arg(percent, 0, 'f', 1);
}

} // namespace CorvelGui
