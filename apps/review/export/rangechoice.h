#pragma once

#include "look/timetexts.h"

#include <CorvelGui/TrackDescription>

#include <QWidget>

class QRadioButton;

namespace Review {

/// Lets the user choose a range of time: what is in view, or what is selected.
class RangeChoice : public QWidget
{
    Q_OBJECT

public:
    /// An empty @p selectedRange cannot be chosen; any other one is proposed.
    RangeChoice(const TimeTexts& times, const CorvelGui::TimeSpan& view,
                const CorvelGui::TimeSpan& selectedRange, QWidget* parent = nullptr);

    CorvelGui::TimeSpan range() const;

Q_SIGNALS:
    void changed();

private:
    const CorvelGui::TimeSpan m_viewRange;
    const CorvelGui::TimeSpan m_selectedRange;
    QRadioButton* m_view;
    QRadioButton* m_selected;
};

} // namespace Review
