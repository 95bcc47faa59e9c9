// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

/// The field that the label belongs to.
template <typename Field>
Field& field(const QWidget& window, const QString& label)
{
    for (const QLabel* candidate : window.findChildren<QLabel*>()) {
        if (candidate->text().remove(u'&') == label && candidate->buddy())
            return *qobject_cast<Field*>(candidate->buddy());
    }
    qFatal("No label: %s", qPrintable(label));
}
