// SPDX-License-Identifier: MIT
#pragma once

#include "rulermarker.h"

#include <QFrame>

#include <functional>

class QListWidget;

namespace CorvelGui {

/// The list of the markers that one symbol stands for, which pops up at the symbol. A click or
/// Return chooses one; Escape and a click elsewhere close it.
class MarkerList : public QFrame
{
    Q_OBJECT

public:
    /// So many are listed; of more, the last line gives the number.
    static constexpr qsizetype most = 500;

    /// @p total may be more than the number of @p markers. @p timeText says when a marker is.
    MarkerList(const QList<RulerMarker>& markers, qsizetype total,
               const std::function<QString(qint64)>& timeText, QWidget* parent);

    /// Shows it with the middle of its lower edge at @p symbol (global), as far as the screen
    /// allows.
    void popUp(const QPoint& symbol);

Q_SIGNALS:
    /// Emitted after the list was closed by it.
    void chosen(const QDateTime& time, const QUuid& identifier);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void choose(int row);

    const QList<RulerMarker> m_markers;
    QListWidget* const m_list;
};

} // namespace CorvelGui
