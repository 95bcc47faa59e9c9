// SPDX-License-Identifier: MIT
#pragma once

#include "fancylineedit.h"
#include "iconbutton.h"

#include <CorvelGui/corvelgui_export.h>

#include <QMenu>
#include <QObject>
#include <QPixmap>
#include <QPointer>

#include <array>
#include <optional>

class QFocusEvent;

namespace CorvelGui {

/// What a FancyLineEdit keeps of its two sides, and of no use without one. It watches the keyboard
/// focus of the buttons and of the line edit.
class CORVELGUI_EXPORT FancyLineEditPrivate : public QObject
{
    Q_OBJECT

public:
    explicit FancyLineEditPrivate(FancyLineEdit* lineEdit);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    friend class FancyLineEdit;

    struct SideState
    {
        QPixmap pixmap;
        QPointer<QMenu> menu; // not owned
        bool menuTabFocusTrigger = false;
        IconButton* button = nullptr;
        bool buttonEnabled = false;
        /// Of a button that Tab passes by, because it showed its menu already.
        std::optional<Qt::FocusPolicy> usualFocusPolicy;
    };

    /// The width of the side's icon per height, in whole numbers.
    int aspectFactor(FancyLineEdit::Side side) const;
    void noteFocusOut(const QFocusEvent& event);

    FancyLineEdit* const lineEdit;
    std::array<SideState, 2> sides;
    QString previousText;
};

} // namespace CorvelGui
