// SPDX-License-Identifier: MIT
#pragma once

#include "look/translated.h"
#include "resultlook.h"

#include <CorvelGui/TrackDescription>

#include <QWidget>

class QCheckBox;
class QLabel;
class QPushButton;

namespace Review {

class Clock;
class InstantEdit;

/// Asks for the range to search, and for the range that a search found. A range that is selected on
/// the timeline comes here, and one that is typed here goes there.
class RangePanel : public Translated<QWidget>
{
    Q_OBJECT

public:
    explicit RangePanel(const Clock& clock, QWidget* parent = nullptr);

    /// Ranges beyond @p period are not asked for.
    void setPeriod(const CorvelGui::TimeSpan& period);

    /// The period has become another one; what was typed stays, unless it was all of it.
    void extendPeriod(const CorvelGui::TimeSpan& period);

    /// What is in the edits, within the period.
    CorvelGui::TimeSpan range() const;
    void setRange(const CorvelGui::TimeSpan& range);

Q_SIGNALS:
    /// The user has typed a range.
    void rangeTyped(const CorvelGui::TimeSpan& range);
    /// The user wants the range of the view in the edits.
    void viewWanted();
    void searchWanted(const CorvelGui::TimeSpan& range);
    void resultWanted(const CorvelGui::TimeSpan& range, const Review::ResultLook& look);
    void clearWanted();

protected:
    void retranslate() final;

private:
    void createLayout();
    QString faultOf(const InstantEdit& edit) const;
    void tell(const QString& fault);
    bool checkRange();
    void takeTyped(const InstantEdit& edit);

    const Clock& m_clock;
    CorvelGui::TimeSpan m_period;
    bool m_isTyped = false; ///< since the last time that an edit was left
    QLabel* m_fromLabel;
    InstantEdit* m_from;
    QLabel* m_toLabel;
    InstantEdit* m_to;
    QPushButton* m_fromView;
    QPushButton* m_search;
    QPushButton* m_clear;
    QCheckBox* m_markBegin;
    QCheckBox* m_markEnd;
    QCheckBox* m_onlyInside;
    QCheckBox* m_zoom;
    QPushButton* m_result;
    QLabel* m_message;
};

} // namespace Review
