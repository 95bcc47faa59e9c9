// SPDX-License-Identifier: MIT
#include "datetimeviewpage.h"

#include <CorvelGui/TarvoDateTimeView>

#include <QFormLayout>
#include <QLabel>
#include <QTimeZone>

using CorvelGui::TarvoDateTimeView;
using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

QDateTime inBrussels(qint64 msecs)
{
    return QDateTime::fromMSecsSinceEpoch(msecs, QTimeZone("Europe/Brussels"));
}

TarvoDateTimeView* createView(const QDateTime& moment)
{
    auto* view = new TarvoDateTimeView;
    view->setDeviceName(u"Gate <north>"_s);
    view->updateDateTime(moment);
    QObject::connect(view, &TarvoDateTimeView::jumoToTime, view,
                     &TarvoDateTimeView::updateDateTime);
    return view;
}

} // namespace

DateTimeViewPage::DateTimeViewPage(QWidget* parent) : QWidget(parent)
{
    const QDateTime summer = inBrussels(1'787'048'130'250);    // 18 August 2026, 12:15:30.250
    const QDateTime ambiguous = inBrussels(1'792'888'200'000); // 25 October 2026, 02:30, the first

    auto* form = new QFormLayout(this);
    form->setVerticalSpacing(16);
    form->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
    form->addRow(tr("Playing"), createView(summer));
    form->addRow(tr("An hour that comes twice"), createView(ambiguous));

    auto* paused = createView(summer);
    paused->setPlayMode(false);
    form->addRow(tr("Not playing"), paused);

    auto* coarse = createView(summer);
    coarse->setShowMilliseconds(false);
    form->addRow(tr("Without milliseconds"), coarse);

    form->addRow(tr("Nothing shown yet"), new TarvoDateTimeView);
    auto* disabled = createView(summer);
    disabled->setEnabled(false);
    form->addRow(tr("Disabled"), disabled);

    m_focused = createView(summer);
    form->addRow(tr("With focus"), m_focused);
}

void DateTimeViewPage::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    m_focused->setFocus(Qt::TabFocusReason);
}

} // namespace Gallery
