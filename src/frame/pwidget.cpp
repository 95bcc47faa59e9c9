// SPDX-License-Identifier: MIT
#include "pwidget.h"

#include <QEvent>

namespace CorvelGui {

PWidget::PWidget(QWidget* parent) : QWidget(parent) {}

void PWidget::showEvent(QShowEvent* event)
{
    Q_EMIT showStateChanged(true);
    QWidget::showEvent(event);
}

void PWidget::hideEvent(QHideEvent* event)
{
    Q_EMIT showStateChanged(false);
    QWidget::hideEvent(event);
}

void PWidget::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QWidget::changeEvent(event);
}

} // namespace CorvelGui
