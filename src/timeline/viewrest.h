// SPDX-License-Identifier: MIT
#pragma once

#include "ruler.h"
#include "timescale.h"

#include <QObject>
#include <QTimer>

namespace CorvelGui {

/// Says when the view of a ruler has come to rest.
class ViewRest : public QObject
{
    Q_OBJECT

public:
    /// Acts on @p ruler, whose private state @p d must outlive it.
    ViewRest(Ruler* ruler, Ruler::Private& d);

    /// Somebody wants to hear of it, from the view that is shown now on.
    void listen();
    /// The view may have changed.
    void notice();

private:
    void tell();

    Ruler* const m_ruler;
    Ruler::Private& d;
    QTimer m_timer;
    bool m_listening = false;
    TimeScale::View m_noticed;
    TimeSpan m_told; ///< the view that was told last
};

} // namespace CorvelGui
