// SPDX-License-Identifier: MIT
#include "settingsbasewidget.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

namespace CorvelGui {

SettingsBaseWidget::SettingsBaseWidget(QWidget* parent) : QWidget(parent) {}

QList<QString> SettingsBaseWidget::searchKeywords()
{
    return getSearchKeywordsFromControls();
}

QList<QString> SettingsBaseWidget::getSearchKeywordsFromControls()
{
    QList<QString> keywords;
    const auto addTexts = [&keywords](const auto& controls) {
        for (const auto* control : controls)
            keywords << control->text();
    };
    for (const auto* group : findChildren<QGroupBox*>())
        keywords << group->title();
    addTexts(findChildren<QLabel*>());
    addTexts(findChildren<QCheckBox*>());
    addTexts(findChildren<QPushButton*>());
    addTexts(findChildren<QRadioButton*>());
    return keywords;
}

} // namespace CorvelGui
