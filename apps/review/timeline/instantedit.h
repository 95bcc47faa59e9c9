// SPDX-License-Identifier: MIT
#pragma once

#include "look/translated.h"

#include <QLineEdit>

class QAction;
class QCalendarWidget;

namespace Review {

class Clock;

/// Edits an instant on the clock of the window, typed in any of the ways of readTypedTime(), by a
/// calendar, or part by part with the up and down keys. What cannot be read stays to be mended. An
/// instant that is only shown stays exactly what it is, also where the clock cannot tell it from
/// another.
class InstantEdit : public Translated<QLineEdit>
{
    Q_OBJECT

public:
    /// @p clock must live longer.
    explicit InstantEdit(const Clock& clock, QWidget* parent = nullptr);

    /// Milliseconds since the Unix epoch; with a fault, what it was before.
    qint64 instant() const { return m_instant; }
    void setInstant(qint64 msecs);
    /// Why what was typed is no instant, or an empty string.
    QString fault() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

Q_SIGNALS:
    /// Emitted whenever the user has changed something.
    void edited();

protected:
    void retranslate() final;
    void keyPressEvent(QKeyEvent* event) override;

private:
    enum class Fault { None, Unreadable, Skipped };

    void followClock();
    void showInstant();
    void readText();
    void step(int by);
    void openCalendar();

    const Clock& m_clock;
    qint64 m_instant = 0;
    Fault m_fault = Fault::None;
    QAction* m_open;
    QCalendarWidget* m_calendar;
};

} // namespace Review
