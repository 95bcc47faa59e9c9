// SPDX-License-Identifier: MIT
#pragma once

#include "ruler.h"

#include <QObject>
#include <QTimer>

namespace CorvelGui {

/// Moves the view of a ruler for as long as something is dragged to one of its ends or beyond: the
/// further, the faster, as far as the limits allow.
class EdgeScroll : public QObject
{
    Q_OBJECT

public:
    /// Acts on @p ruler, whose private state @p d must outlive it.
    EdgeScroll(Ruler* ruler, Ruler::Private& d);

    /// The mouse drags at column @p x.
    void dragTo(int x);
    int column() const { return m_x; }
    /// The drag is over. Returns whether it moved the view.
    bool stop();

Q_SIGNALS:
    /// The view has moved under what is dragged.
    void moved();

private:
    double way() const;
    void step();

    Ruler::Private& d;
    QTimer m_timer;
    int m_x = 0;
    bool m_moved = false;
};

} // namespace CorvelGui
