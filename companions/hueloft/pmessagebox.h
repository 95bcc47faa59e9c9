// SPDX-License-Identifier: MIT
#pragma once

#include <Hueloft/hueloft_export.h>

#include <QMessageBox>
#include <QString>

namespace Hueloft {

/// Modal message boxes in the active look.
///
/// Each call shows a box, waits in a nested event loop and returns the QMessageBox::StandardButton
/// that was pressed. Escape and the close button count as the box's escape button (the only button,
/// Cancel, or No). If @p parent is deleted meanwhile, the box goes with it and the call returns
/// QMessageBox::NoButton.
///
/// All texts are plain text with their line breaks: markup in them is shown, not obeyed, so that
/// file names and server texts need no escaping. A very long text is shown shortened; the whole of
/// it is then found among the details.
///
/// @p informativeText stands below the text, @p detailedText is hidden behind a button that shows
/// it.
class HUELOFT_EXPORT PMessageBox
{
public:
    PMessageBox() = delete;

    static int Critical(QWidget* parent, const QString& title, const QString& text,
                        QFlags<QMessageBox::StandardButton> buttons = QMessageBox::Ok,
                        QMessageBox::StandardButton defaultButton = QMessageBox::NoButton,
                        const QString& informativeText = QString(),
                        const QString& detailedText = QString());

    static int Warning(QWidget* parent, const QString& title, const QString& text,
                       QFlags<QMessageBox::StandardButton> buttons = QMessageBox::Ok,
                       QMessageBox::StandardButton defaultButton = QMessageBox::NoButton,
                       const QString& informativeText = QString(),
                       const QString& detailedText = QString());

    static int Information(QWidget* parent, const QString& title, const QString& text,
                           QFlags<QMessageBox::StandardButton> buttons = QMessageBox::Ok,
                           QMessageBox::StandardButton defaultButton = QMessageBox::NoButton,
                           const QString& informativeText = QString(),
                           const QString& detailedText = QString());

    /// A question with the buttons Yes and No.
    static int Question(QWidget* parent, const QString& title, const QString& text,
                        QMessageBox::StandardButton defaultButton = QMessageBox::NoButton,
                        const QString& informativeText = QString(),
                        const QString& detailedText = QString());
};

} // namespace Hueloft
