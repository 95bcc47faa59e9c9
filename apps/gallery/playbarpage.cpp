// SPDX-License-Identifier: MIT
#include "playbarpage.h"

#include <CorvelGui/PPlaybar>

#include <QCoreApplication>
#include <QEnterEvent>
#include <QFormLayout>
#include <QTimer>
#include <QToolButton>

using CorvelGui::PPlaybar;
using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

PPlaybar* createBar(PPlaybar::PlaybackState state, PPlaybar::PlaybackSpeed speed)
{
    auto* bar = new PPlaybar;
    bar->setPlaybackState(state);
    bar->setPlaybackSpeed(speed);
    return bar;
}

void hover(QWidget* widget)
{
    const QPointF center = QRectF(widget->rect()).center();
    QEnterEvent enter(center, center, widget->mapToGlobal(center));
    QCoreApplication::sendEvent(widget, &enter);
}

} // namespace

PlaybarPage::PlaybarPage(QWidget* parent) : QWidget(parent)
{
    auto* form = new QFormLayout(this);
    form->setVerticalSpacing(12);
    form->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
    form->addRow(tr("Paused, as at the start"), new PPlaybar);
    form->addRow(tr("Forward"), createBar(PPlaybar::Play, PPlaybar::Speed1));
    form->addRow(tr("Slowly forward"), createBar(PPlaybar::SlowForward, PPlaybar::Speed1_8));
    form->addRow(tr("Fast forward"), createBar(PPlaybar::FastForward, PPlaybar::Speed1024));
    form->addRow(tr("Backward"), createBar(PPlaybar::Reverse, PPlaybar::Speed1));
    form->addRow(tr("Fast backward"), createBar(PPlaybar::FastBackward, PPlaybar::Speed1024));

    auto* hovered = createBar(PPlaybar::Play, PPlaybar::Speed1);
    form->addRow(tr("Forward and fast forward under the mouse"), hovered);
    QTimer::singleShot(0, hovered, [hovered] {
        hover(hovered->findChild<QToolButton*>(u"buttonPlay"_s));
        hover(hovered->findChild<QToolButton*>(u"buttonFastForward"_s));
    });

    auto* live = new PPlaybar;
    live->setLiveMode(true, true);
    form->addRow(tr("Live"), live);
    auto* forwardOnly = new PPlaybar;
    forwardOnly->setLiveMode(false, false);
    form->addRow(tr("Without reverse playback"), forwardOnly);
    auto* disabled = createBar(PPlaybar::Play, PPlaybar::Speed1);
    disabled->setEnabled(false);
    form->addRow(tr("Disabled"), disabled);

    auto* large = createBar(PPlaybar::Play, PPlaybar::Speed1);
    large->setIconSize(QSize(48, 48));
    form->addRow(tr("Larger icons"), large);

    auto* focused = new PPlaybar;
    form->addRow(tr("With focus"), focused);
    m_focused = focused->findChild<QToolButton*>(u"buttonPause"_s);
}

void PlaybarPage::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    m_focused->setFocus(Qt::TabFocusReason);
}

} // namespace Gallery
