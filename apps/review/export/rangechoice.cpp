#include "rangechoice.h"

#include <QRadioButton>
#include <QVBoxLayout>

using CorvelGui::TimeSpan;
using namespace Qt::StringLiterals;

namespace Review {

RangeChoice::RangeChoice(const TimeTexts& times, const TimeSpan& view, const TimeSpan& searchRange,
                         QWidget* parent)
    : QWidget(parent)
    , m_viewRange(view)
    , m_searchRange(searchRange)
    , m_view(new QRadioButton(this))
    , m_search(new QRadioButton(this))
{
    const auto text = [&times](const TimeSpan& range) {
        return times.dateTime(range.begin) + u" – "_s + times.dateTime(range.end);
    };
    const bool hasSearch = !searchRange.isEmpty();
    m_view->setText(tr("Current view: %1").arg(text(view)));
    m_search->setText(hasSearch ? tr("Search range: %1").arg(text(searchRange))
                                : tr("Search range: none is set"));
    m_search->setEnabled(hasSearch);
    (hasSearch ? m_search : m_view)->setChecked(true);
    connect(m_view, &QRadioButton::toggled, this, &RangeChoice::changed);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(6);
    layout->addWidget(m_view);
    layout->addWidget(m_search);
    setFocusProxy(hasSearch ? m_search : m_view);
}

TimeSpan RangeChoice::range() const
{
    return m_search->isChecked() ? m_searchRange : m_viewRange;
}

} // namespace Review
