// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>

namespace CorvelGui {

/// Takes steps that emit signals one after the other, for as long as @p object lives: any slot may
/// delete it. Returns whether it still does.
template <typename... Steps>
bool whileAlive(QObject* object, Steps&&... steps)
{
    const QPointer<QObject> alive(object);
    return ((steps(), !alive.isNull()) && ...);
}

} // namespace CorvelGui
