// SPDX-License-Identifier: MIT
#pragma once

#include "base/internalexport.h"

#include <QFrame>

class QLabel;

namespace CorvelGui {

/// The tip above a place of a slider: a text, and a picture over it if there is one. It follows the
/// mouse without taking anything from it, and hides with the slider.
class CORVELGUI_INTERNAL_EXPORT SliderTip : public QFrame
{
    Q_OBJECT

public:
    explicit SliderTip(QWidget* slider);

    /// Shows it above the middle of @p place, which is in coordinates of the slider; below where
    /// the screen ends above.
    void say(const QRect& place, const QString& text, const QPixmap& picture = {});
    QString text() const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QLabel* m_picture;
    QLabel* m_text;
};

} // namespace CorvelGui
