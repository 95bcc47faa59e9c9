// SPDX-License-Identifier: MIT
#include "durationfilter.h"

#include <CorvelGui/RangeSlider>
#include <CorvelGui/StringHelper>

#include <QLabel>
#include <QMenu>
#include <QTimer>
#include <QVBoxLayout>
#include <QWidgetAction>

#include <array>
#include <limits>

using CorvelGui::RangeSlider;
using CorvelGui::StringHelper;

namespace Review {

namespace {

/// What the handles stand at, in seconds; after the last there is no end.
constexpr std::array<qint64, 13> lengths{0, 1, 2, 5, 10, 20, 30, 60, 120, 300, 600, 1'800, 3'600};
constexpr int endless = int(lengths.size());

qint64 lengthAt(int place)
{
    return lengths[size_t(place)] * 1'000;
}

} // namespace

DurationFilter::DurationFilter(QWidget* parent)
    : Translated(parent), m_slider(new RangeSlider), m_durations(new QLabel)
{
    constexpr int sliderWidth = 220;
    setPopupMode(InstantPopup);
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    m_slider->setMinimumWidth(sliderWidth);
    m_slider->setLimits(0, endless);
    m_slider->setMinimumDistance(1);
    m_slider->setValues(0, endless);
    m_slider->setValueText([](int place) {
        return place == endless ? tr("any longer one") : StringHelper::duration(lengthAt(place));
    });
    m_durations->setAlignment(Qt::AlignCenter);
    auto* panel = new QWidget;
    auto* layout = new QVBoxLayout(panel);
    layout->addWidget(m_durations);
    layout->addWidget(m_slider);
    auto* menu = new QMenu(this);
    auto* action = new QWidgetAction(menu);
    action->setDefaultWidget(panel);
    menu->addAction(action);
    setMenu(menu);
    // Once it is there: a menu gives the focus to nothing.
    connect(menu, &QMenu::aboutToShow, m_slider, [this] {
        QTimer::singleShot(0, m_slider, [this] { m_slider->setFocus(Qt::PopupFocusReason); });
    });
    connect(m_slider, &RangeSlider::valuesChanged, this, [this] {
        showDurations();
        Q_EMIT changed();
    });
    retranslate();
}

bool DurationFilter::isFiltering() const
{
    return m_slider->lowerValue() > 0 || m_slider->upperValue() < endless;
}

qint64 DurationFilter::shortest() const
{
    return lengthAt(m_slider->lowerValue());
}

qint64 DurationFilter::longest() const
{
    const int upper = m_slider->upperValue();
    return upper == endless ? std::numeric_limits<qint64>::max() : lengthAt(upper);
}

void DurationFilter::reset()
{
    m_slider->setValues(0, endless);
}

void DurationFilter::showDurations()
{
    const int lower = m_slider->lowerValue();
    const int upper = m_slider->upperValue();
    QString text = tr("Any duration");
    if (upper < endless)
        text = tr("%1 – %2").arg(m_slider->textOf(lower), m_slider->textOf(upper));
    else if (lower > 0)
        text = tr("From %1 on").arg(m_slider->textOf(lower));
    m_durations->setText(text);
    setAccessibleName(text);
    setText(text);
}

QSize DurationFilter::minimumSizeHint() const
{
    return {3 * fontMetrics().height() / 2, sizeHint().height()};
}

void DurationFilter::retranslate()
{
    setToolTip(tr("How long events last that are listed"));
    m_slider->setAccessibleName(tr("Duration of events"));
    showDurations();
}

} // namespace Review
