// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace CorvelGui {

/// Marks @p field as wrong by a red background, or removes the mark. The theme knows this very text
/// and writes black on it.
inline void markWrongEntry(QWidget* field, bool wrong)
{
    const QString sheet =
        wrong ? QStringLiteral("QLineEdit{background-color:#ff4d4d;}") : QString();
    // Style sheets are expensive, and most keystrokes change no verdict.
    if (field->styleSheet() != sheet)
        field->setStyleSheet(sheet);
}

} // namespace CorvelGui
