// SPDX-License-Identifier: MIT
#pragma once

#include "base/internalexport.h"

#include <QDateTime>
#include <QList>
#include <QObject>

class QComboBox;
class QDateTimeEdit;
class QLabel;
class QTimeEdit;

namespace CorvelGui {

class PDateEdit;

/// The first and the last moment that can be entered, both included; invalid ones are no limits.
struct MomentLimits
{
    QDateTime earliest = {};
    QDateTime latest = {};

    /// Of two moments in either order.
    static MomentLimits between(const QDateTime& one, const QDateTime& other);
    /// The moment within that is nearest to @p moment.
    QDateTime nearest(const QDateTime& moment) const;
};

/// Makes a moment of what is in a date and a time edit, on the clock of a zone. Where the clock
/// skips that time it says so, where it shows it twice it lets the user choose, and it tells the
/// limits. Owns none of the controls.
class CORVELGUI_INTERNAL_EXPORT MomentEntry : public QObject
{
    Q_OBJECT

public:
    struct Controls
    {
        PDateEdit* date;
        QTimeEdit* time;
        QLabel* note;
        QComboBox* occurrence; ///< which of two moments
    };

    explicit MomentEntry(const Controls& controls, QObject* parent = nullptr);

    /// Shows @p moment on the clock of its own zone, in which moment() will be as well.
    void setMoment(const QDateTime& moment);
    /// Invalid while the clocks skip the time that is shown, and beyond the limits.
    QDateTime moment() const;
    /// Where the latest comes before the earliest, there is no moment().
    void setLimits(const MomentLimits& limits);
    const MomentLimits& limits() const { return m_limits; }

    /// Writes its texts again, after the language or the format of a date has changed.
    void explain();

Q_SIGNALS:
    /// The user has changed moment(), or made it invalid.
    void edited();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void takeEntry();
    void findMoments();
    bool isWithinLimits() const;
    QString explanation() const;

    const Controls m_controls;
    QDateTime m_zone; ///< the moment that was shown first
    MomentLimits m_limits;
    QList<QDateTime> m_moments;
    bool m_isSetting = false;
};

} // namespace CorvelGui
