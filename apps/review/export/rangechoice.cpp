// SPDX-License-Identifier: MIT
#include "rangechoice.h"

#include "video/hoverpicture.h"

#include <CorvelGui/PImageAndLabelWidget>
#include <CorvelGui/PInputDateTimeWithRange>

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QRadioButton>
#include <QVBoxLayout>

#include <algorithm>
#include <ranges>

using CorvelGui::PImageAndLabelWidget;
using CorvelGui::PInputDateTimeWithRange;
using CorvelGui::TimeSpan;

namespace Review {

namespace {

constexpr QSize sightSize(192, 108);

} // namespace

RangeChoice::RangeChoice(const TimeTexts& times, const TimeSpan& view,
                         const TimeSpan& selectedRange, QWidget* parent)
    : QWidget(parent)
    , m_times(times)
    , m_known{view, selectedRange}
    , m_choices(new QButtonGroup(this))
    , m_input(new PInputDateTimeWithRange(this))
{
    auto* choices = new QHBoxLayout;
    for (const QString& text : {tr("Current &view"), tr("&Selected range"), tr("Othe&r range")}) {
        auto* button = new QRadioButton(text, this);
        m_choices->addButton(button, int(m_choices->buttons().size()));
        choices->addWidget(button);
    }
    choices->addStretch();
    m_choices->button(Selected)->setDisabled(selectedRange.isEmpty());
    auto* pictures = new QHBoxLayout;
    for (Sight& sight : m_sights) {
        sight = {new PImageAndLabelWidget(this), new HoverPicture(this)};
        sight.widget->imageWidget()->setMinimumSize(sightSize);
        pictures->addWidget(sight.widget);
        connect(sight.source, &HoverPicture::ready, sight.widget->imageWidget(),
                &CorvelGui::PImageWidget::setImage);
    }
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addLayout(choices);
    layout->addWidget(m_input);
    layout->addLayout(pictures);

    m_input->setTimeZone(times.zone());
    m_input->setDateFormat(times.format().datePattern());
    connect(m_choices, &QButtonGroup::idClicked, this, &RangeChoice::choose);
    connect(m_input, &PInputDateTimeWithRange::rangeEdited, this,
            [this](const QDateTime& from, const QDateTime& to) {
                m_choices->button(Other)->setChecked(true);
                take({from.toMSecsSinceEpoch(), to.toMSecsSinceEpoch()});
            });
    connect(m_input, &PInputDateTimeWithRange::acceptableInputChanged, this, &RangeChoice::changed);
    const Choice proposed = selectedRange.isEmpty() ? View : Selected;
    m_choices->button(proposed)->setChecked(true);
    choose(proposed);
}

void RangeChoice::setCamera(const Camera& camera)
{
    m_camera = camera;
    for (const Sight& sight : m_sights)
        sight.source->setFiles(camera.files);
    showPictures();
}

TimeSpan RangeChoice::range() const
{
    return m_input->hasAcceptableInput() ? m_range : TimeSpan();
}

void RangeChoice::choose(int choice)
{
    if (choice == Other)
        return m_input->setFocus();
    const TimeSpan& range = m_known[size_t(choice)];
    m_input->setRange(QDateTime::fromMSecsSinceEpoch(range.begin, m_times.zone()),
                      QDateTime::fromMSecsSinceEpoch(range.end, m_times.zone()));
    take(range);
}

void RangeChoice::take(const TimeSpan& range)
{
    m_range = range;
    showPictures();
    Q_EMIT changed();
}

void RangeChoice::showPictures()
{
    qint64 first = 0;
    qint64 last = 0;
    if (m_camera) {
        const QList<TimeSpan>& recorded = m_camera->history.recorded();
        const auto begin = std::ranges::upper_bound(recorded, m_range.begin, {}, &TimeSpan::end);
        const auto end = std::ranges::lower_bound(recorded, m_range.end, {}, &TimeSpan::begin);
        if (begin < end) {
            first = std::max(begin->begin, m_range.begin);
            last = std::min(std::prev(end)->end, m_range.end) - 1;
        }
    }
    showPicture(m_sights.front(), first);
    showPicture(m_sights.back(), last);
}

// None at 0.
void RangeChoice::showPicture(const Sight& sight, qint64 instant)
{
    sight.widget->setText(instant == 0 ? tr("No recording") : m_times.dateTime(instant));
    if (instant == 0 || !sight.source->ask(instant)) {
        sight.source->forget();
        sight.widget->imageWidget()->setImage({});
    }
}

} // namespace Review
