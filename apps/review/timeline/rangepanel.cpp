// SPDX-License-Identifier: MIT
#include "rangepanel.h"

#include "instantedit.h"
#include "look/flowlayout.h"
#include "session/clock.h"

#include <QAccessible>
#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

#include <algorithm>

using CorvelGui::TimeSpan;

namespace Review {

namespace {

QCheckBox* createCheckBox(bool checked, QWidget* parent)
{
    auto* box = new QCheckBox(parent);
    box->setChecked(checked);
    return box;
}

} // namespace

RangePanel::RangePanel(const Clock& clock, QWidget* parent)
    : Translated(parent)
    , m_clock(clock)
    , m_fromLabel(new QLabel(this))
    , m_from(new InstantEdit(clock, this))
    , m_toLabel(new QLabel(this))
    , m_to(new InstantEdit(clock, this))
    , m_fromView(new QPushButton(this))
    , m_search(new QPushButton(this))
    , m_clear(new QPushButton(this))
    , m_markBegin(createCheckBox(ResultLook().markBegin, this))
    , m_markEnd(createCheckBox(ResultLook().markEnd, this))
    , m_onlyInside(createCheckBox(ResultLook().onlyInside, this))
    , m_zoom(createCheckBox(ResultLook().zoom, this))
    , m_result(new QPushButton(this))
    , m_message(new QLabel(this))
{
    m_fromLabel->setBuddy(m_from);
    m_toLabel->setBuddy(m_to);
    m_message->setWordWrap(true);
    createLayout();

    for (InstantEdit* edit : {m_from, m_to}) {
        connect(edit, &InstantEdit::edited, this, [this] {
            m_message->clear();
            m_isTyped = true;
        });
        connect(edit, &QLineEdit::editingFinished, this, [this, edit] { takeTyped(*edit); });
    }
    connect(m_fromView, &QPushButton::clicked, this, &RangePanel::viewWanted);
    connect(m_search, &QPushButton::clicked, this, [this] {
        if (checkRange())
            Q_EMIT searchWanted(range());
    });
    connect(m_result, &QPushButton::clicked, this, [this] {
        if (checkRange())
            Q_EMIT resultWanted(range(), {.markBegin = m_markBegin->isChecked(),
                                          .markEnd = m_markEnd->isChecked(),
                                          .onlyInside = m_onlyInside->isChecked(),
                                          .zoom = m_zoom->isChecked()});
    });
    connect(m_clear, &QPushButton::clicked, this, [this] {
        m_message->clear();
        Q_EMIT clearWanted();
    });
    retranslate();
}

void RangePanel::setPeriod(const TimeSpan& period)
{
    m_period = period;
    setRange(period);
}

void RangePanel::extendPeriod(const TimeSpan& period)
{
    const bool wasAll = !m_isTyped && range() == m_period;
    m_period = period;
    if (wasAll)
        setRange(period);
}

TimeSpan RangePanel::range() const
{
    const auto inPeriod = [this](qint64 msecs) {
        return std::min(std::max(msecs, m_period.begin), m_period.end);
    };
    return {.begin = inPeriod(m_from->instant()), .end = inPeriod(m_to->instant())};
}

void RangePanel::setRange(const TimeSpan& range)
{
    m_from->setInstant(range.begin);
    m_to->setInstant(range.end);
    m_message->clear();
}

void RangePanel::createLayout()
{
    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(8, 6, 8, 6);
    layout->setHorizontalSpacing(8);
    layout->setVerticalSpacing(6);

    layout->addWidget(m_fromLabel, 0, 0);
    layout->addWidget(m_from, 0, 1);
    layout->addWidget(m_toLabel, 1, 0);
    layout->addWidget(m_to, 1, 1);
    layout->addWidget(m_fromView, 0, 2);
    layout->addWidget(m_clear, 1, 2);
    layout->addWidget(m_search, 0, 3);
    layout->addWidget(m_result, 1, 3);

    auto* result = new FlowLayout;
    result->setSpacing(14);
    for (QCheckBox* box : {m_markBegin, m_markEnd, m_onlyInside, m_zoom})
        result->addWidget(box);
    layout->addWidget(m_message, 0, 4);
    layout->addLayout(result, 1, 4);
    layout->setColumnStretch(4, 1);
}

void RangePanel::retranslate()
{
    m_fromLabel->setText(tr("From"));
    m_toLabel->setText(tr("To"));
    m_fromView->setText(tr("From view"));
    m_search->setText(tr("Search range"));
    m_clear->setText(tr("Clear"));
    m_markBegin->setText(tr("Mark begin"));
    m_markEnd->setText(tr("Mark end"));
    m_onlyInside->setText(tr("Only markers inside"));
    m_zoom->setText(tr("Zoom to it"));
    m_result->setText(tr("Show result"));
    m_message->clear();
}

// Why the edit cannot be used, or an empty string.
QString RangePanel::faultOf(const InstantEdit& edit) const
{
    if (const QString fault = edit.fault(); !fault.isEmpty())
        return fault;
    // The edits show whole seconds: what looks like the begin or the end is meant to be that.
    constexpr qint64 second = 1'000;
    const qint64 msecs = edit.instant();
    if (msecs > m_period.begin - second && msecs < m_period.end + second)
        return {};
    const TimeTexts& times = m_clock.times();
    return tr("Nothing is known of %1. Choose a time from %2 to %3.")
        .arg(times.dateTime(msecs), times.dateTime(m_period.begin), times.dateTime(m_period.end));
}

void RangePanel::tell(const QString& fault)
{
    m_message->setText(fault);
    if (fault.isEmpty())
        return;
    QAccessibleEvent alert(m_message, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void RangePanel::takeTyped(const InstantEdit& edit)
{
    const QString fault = faultOf(edit);
    tell(fault);
    const bool isComplete =
        fault.isEmpty() && faultOf(*m_from).isEmpty() && faultOf(*m_to).isEmpty();
    if (m_isTyped && isComplete && !range().isEmpty())
        Q_EMIT rangeTyped(range());
    m_isTyped = false;
}

bool RangePanel::checkRange()
{
    for (InstantEdit* edit : {m_from, m_to}) {
        if (const QString fault = faultOf(*edit); !fault.isEmpty()) {
            edit->setFocus();
            tell(fault);
            return false;
        }
    }
    const bool isRange = !range().isEmpty();
    tell(isRange ? QString() : tr("The range must end after it begins."));
    return isRange;
}

} // namespace Review
