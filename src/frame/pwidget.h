// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/corvelgui_export.h>

#include <QWidget>

namespace CorvelGui {

/// Base of widgets that report when they are shown or hidden and that translate themselves at run
/// time.
///
/// A subclass sets all its translated texts in retranslate() and calls that once from its own
/// constructor; later calls come with every language change.
class CORVELGUI_EXPORT PWidget : public QWidget
{
    Q_OBJECT

public:
    explicit PWidget(QWidget* parent);

Q_SIGNALS:
    /// Emitted with true for every show event and with false for every hide event, before QWidget
    /// handles it.
    void showStateChanged(bool isShown);

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;

    /// Applies all translated texts again. Called once for every QEvent::LanguageChange, and for no
    /// other change.
    virtual void retranslate() = 0;
};

} // namespace CorvelGui
