#pragma once

#include <QDateTimeEdit>

namespace Review {

class Clock;

/// Edits an instant on the clock of the window. An instant that is only shown stays exactly what it
/// is, also where the clock cannot tell it from another.
class InstantEdit : public QDateTimeEdit
{
    Q_OBJECT

public:
    /// @p clock must live longer.
    explicit InstantEdit(const Clock& clock, QWidget* parent = nullptr);

    /// Milliseconds since the Unix epoch.
    qint64 instant() const { return m_instant; }
    void setInstant(qint64 msecs);

private:
    void followClock();
    void showInstant();

    const Clock& m_clock;
    qint64 m_instant = 0;
};

} // namespace Review
