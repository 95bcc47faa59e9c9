// SPDX-License-Identifier: MIT
#pragma once

#include <QEvent>

namespace Review {

/// A widget that applies its texts again when the language changes.
template <typename Widget>
class Translated : public Widget
{
public:
    using Widget::Widget;

protected:
    /// Applies all translated texts. A constructor calls it first.
    virtual void retranslate() = 0;

    void changeEvent(QEvent* event) override
    {
        if (event->type() == QEvent::LanguageChange)
            retranslate();
        Widget::changeEvent(event);
    }
};

} // namespace Review
