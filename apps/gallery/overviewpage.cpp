// SPDX-License-Identifier: MIT
#include "overviewpage.h"

#include <CorvelGui/TimelineScroll>
#include <CorvelGui/Zoomer>

#include <QCoreApplication>
#include <QFormLayout>
#include <QGridLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QTimer>

using CorvelGui::TimelineScroll;
using CorvelGui::Zoomer;

namespace Gallery {

namespace {

constexpr int widestLevel = 8;

TimelineScroll* createStrip(double viewArea, double center)
{
    auto* strip = new TimelineScroll;
    strip->setOrvaneGuiTheme(true);
    strip->setActive(true);
    strip->setViewArea(viewArea);
    strip->onCenterPositionChanged(center);
    strip->setIndicatorPosition(center + viewArea / 6);
    strip->setMinimumWidth(500);
    return strip;
}

// Takes hold of the box with a mouse press that is never released.
void holdBox(TimelineScroll* strip)
{
    const QPointF onBox(strip->centerPosition() * strip->width(), strip->height() / 2.0);
    QMouseEvent press(QEvent::MouseButtonPress, onBox, strip->mapToGlobal(onBox), Qt::LeftButton,
                      Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(strip, &press);
}

Zoomer* createZoomer(int level)
{
    auto* zoomer = new Zoomer(widestLevel);
    zoomer->onChangeSliderPosition(level);
    return zoomer;
}

} // namespace

OverviewPage::OverviewPage(QWidget* parent) : QWidget(parent)
{
    auto* form = new QFormLayout(this);
    form->setVerticalSpacing(16);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);

    form->addRow(tr("A tenth of the period in view"), createStrip(0.1, 0.4));

    TimelineScroll* hovered = createStrip(0.1, 0.4);
    hovered->setHover(true);
    form->addRow(tr("Under the mouse"), hovered);

    TimelineScroll* dragged = createStrip(0.1, 0.4);
    form->addRow(tr("Dragged"), dragged);
    QTimer::singleShot(0, dragged, [dragged] { holdBox(dragged); });

    form->addRow(tr("The whole period"), createStrip(1.0, 0.5));
    form->addRow(tr("The smallest part"), createStrip(0.0, 0.7));
    form->addRow(tr("At the begin"), createStrip(0.2, 0.0));
    form->addRow(tr("At the end"), createStrip(0.2, 1.0));

    for (const double center : {0.3, 0.6}) {
        TimelineScroll* search = createStrip(0.2, center);
        search->displaySearchTimeRange(true);
        search->setSearchTimeRange(0.25, 0.4);
        form->addRow(tr("Search range"), search);
    }

    m_focused = createStrip(0.2, 0.5);
    form->addRow(tr("With focus"), m_focused);

    auto* plain = new TimelineScroll;
    plain->setActive(true);
    plain->setViewArea(0.2);
    plain->onCenterPositionChanged(0.5);
    plain->setIndicatorPosition(0.55);
    plain->displaySearchTimeRange(true);
    plain->setSearchTimeRange(0.45, 0.7);
    form->addRow(tr("Without the theme"), plain);

    TimelineScroll* inactive = createStrip(0.2, 0.5);
    inactive->setActive(false);
    form->addRow(tr("Inactive"), inactive);

    for (const int level : {0, 4, widestLevel})
        form->addRow(tr("Zoom level %1").arg(level), createZoomer(level));
    Zoomer* disabled = createZoomer(4);
    disabled->setEnabled(false);
    form->addRow(tr("Disabled"), disabled);

    auto* both = new QGridLayout;
    both->setHorizontalSpacing(6);
    both->addWidget(createZoomer(6), 0, 0);
    both->addWidget(createStrip(0.1, 0.4), 0, 1);
    form->addRow(tr("Side by side"), both);
}

void OverviewPage::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    m_focused->setFocus(Qt::TabFocusReason);
}

} // namespace Gallery
