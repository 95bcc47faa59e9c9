#include "rangechoice.h"

#include <QRadioButton>
#include <QVBoxLayout>

using CorvelGui::TimeSpan;
using namespace Qt::StringLiterals;

namespace Review {

RangeChoice::RangeChoice(const TimeTexts& times, const TimeSpan& view,
                         const TimeSpan& selectedRange, QWidget* parent)
    : QWidget(parent)
    , m_viewRange(view)
    , m_selectedRange(selectedRange)
    , m_view(new QRadioButton(this))
    , m_selected(new QRadioButton(this))
{
    const auto text = [&times](const TimeSpan& range) {
        return times.dateTime(range.begin) + u" – "_s + times.dateTime(range.end);
    };
    const bool isSelected = !selectedRange.isEmpty();
    m_view->setText(tr("Current view: %1").arg(text(view)));
    m_selected->setText(isSelected ? tr("Selected range: %1").arg(text(selectedRange))
                                   : tr("Selected range: none"));
    m_selected->setEnabled(isSelected);
    (isSelected ? m_selected : m_view)->setChecked(true);
    connect(m_view, &QRadioButton::toggled, this, &RangeChoice::changed);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(6);
    layout->addWidget(m_view);
    layout->addWidget(m_selected);
    setFocusProxy(isSelected ? m_selected : m_view);
}

TimeSpan RangeChoice::range() const
{
    return m_selected->isChecked() ? m_selectedRange : m_viewRange;
}

} // namespace Review
