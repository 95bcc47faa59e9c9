// SPDX-License-Identifier: MIT
#pragma once

#include "rangehandle.h"
#include "ruler.h"

#include <QObject>

#include <array>
#include <memory>
#include <optional>

class QKeyEvent;
class QMouseEvent;

namespace CorvelGui {

class AccessibleRange;
class LengthLabel;

/// The range that is selected on a ruler, its handles, and what the user does to it. While it is
/// dragged, RulerGestures says so.
class RulerRange : public QObject
{
    Q_OBJECT

public:
    /// Acts on @p ruler, whose private state @p d must outlive it.
    RulerRange(Ruler* ruler, Ruler::Private& d);
    ~RulerRange() override;

    /// What stands above the ruler for it stands above this, too.
    QWidget* lowestWidget() const;

    Ruler::RangeSelection mode() const { return m_mode; }
    void setMode(Ruler::RangeSelection mode);
    const TimeSpan& range() const { return m_range; }
    void setRange(const TimeSpan& range);
    /// The other end stays where it is, if that makes a range; else the range is all that it can
    /// be.
    void setEnd(RangeHandle::End end, qint64 msecs) { setRange(withEnd(end, msecs)); }
    /// The column of the handle that has the focus.
    std::optional<int> focusedColumn() const;
    /// The limits or the view changed, or what the ruler may show.
    void followLimits();
    void layOut();

    /// Whether a drag of the ruler that begins with these keys held selects a range.
    bool isSelecting(Qt::KeyboardModifiers held) const;
    /// A drag of a new range begins, which was pressed at a time and is at column @p x.
    void takeNew(qint64 pressed, int x, Qt::KeyboardModifiers held);
    void drag(int x, Qt::KeyboardModifiers held);
    /// The view has moved under the mouse.
    void dragAgain();
    void letGo();
    /// Says that the drag is over, if that has not been said.
    void tellEnd();

    /// Returns false for a key that means nothing to it.
    bool pressKey(const QKeyEvent* event);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// A drag that goes on.
    struct Drag
    {
        TimeSpan before;
        qint64 anchor;
        qint64 end;
        int x;      ///< of the mouse
        int offset; ///< of the mouse from the end
        Qt::KeyboardModifiers held;
    };

    RangeHandle* handleOf(RangeHandle::End end) const { return m_handles[std::size_t(end)]; }
    void describe(RangeHandle* handle);
    qint64 timeOf(RangeHandle::End end) const;
    TimeSpan withinLimits(const TimeSpan& range) const;
    TimeSpan shownRange() const;
    qint64 snapped(qint64 msecs, Qt::KeyboardModifiers held) const;
    std::optional<qint64> timeForKeys() const;
    void showHandle(RangeHandle* handle, bool shown);
    void showLength();
    void tellStart();
    void takeHandle(RangeHandle::End end, int x);
    void change(const TimeSpan& range);
    TimeSpan withEnd(RangeHandle::End end, qint64 msecs) const;
    void moveEnd(RangeHandle::End end, qint64 msecs);
    bool mouseEvent(RangeHandle* handle, QMouseEvent* event);
    bool moveByKey(RangeHandle* handle, const QKeyEvent* event);
    void cancel();

    Ruler* const m_ruler;
    Ruler::Private& d;
    Ruler::RangeSelection m_mode = Ruler::RangeSelection::NoSelection;
    TimeSpan m_range;
    std::optional<Drag> m_drag;
    bool m_told = false;             ///< the begin of a change, and not yet its end
    std::optional<bool> m_untoldEnd; ///< whether it was cancelled
    // The label is made last, to stand above the lines of the handles.
    const std::array<RangeHandle*, 2> m_handles;
    LengthLabel* const m_length;
    std::array<std::unique_ptr<AccessibleRange>, 2> m_accessible;
};

} // namespace CorvelGui
