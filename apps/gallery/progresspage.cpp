// SPDX-License-Identifier: MIT
#include "progresspage.h"

#include <CorvelGui/PFractionalProgressBar>
#include <CorvelGui/TaskbarProgress>

#include <QCheckBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QSlider>
#include <QVBoxLayout>
#include <QWindow>

#include <array>

using CorvelGui::PFractionalProgressBar;
using CorvelGui::TaskbarProgress;

namespace Gallery {

namespace {

constexpr int maximumValue = 1000;

QGroupBox* createBars()
{
    struct State
    {
        QString caption;
        int minimum, maximum, value;
    };
    const std::array states{
        State{ProgressPage::tr("0 of 3"), 0, 3, 0},
        State{ProgressPage::tr("1 of 3"), 0, 3, 1},
        State{ProgressPage::tr("1234 of 2000"), 0, 2000, 1234},
        State{ProgressPage::tr("Complete"), 0, 3, 3},
        State{ProgressPage::tr("Without a range"), 0, 0, 0},
    };
    auto* group = new QGroupBox(ProgressPage::tr("Fractional progress bar"));
    auto* form = new QFormLayout(group);
    form->setVerticalSpacing(10);
    for (const State& state : states) {
        auto* bar = new PFractionalProgressBar(group);
        bar->setRange(state.minimum, state.maximum);
        bar->setValue(state.value);
        form->addRow(state.caption, bar);
    }
    return group;
}

QGroupBox* createTaskbarControls(QWidget* page)
{
    auto* group = new QGroupBox(ProgressPage::tr("Taskbar"));
    auto* form = new QFormLayout(group);
    auto* progress = new TaskbarProgress(group);

    auto* bar = new PFractionalProgressBar(group);
    bar->setRange(0, maximumValue);
    bar->setValue(maximumValue / 3);
    auto* slider = new QSlider(Qt::Horizontal);
    slider->setRange(0, maximumValue);
    slider->setValue(bar->value());
    QObject::connect(slider, &QSlider::valueChanged, bar, &PFractionalProgressBar::setValue);
    QObject::connect(slider, &QSlider::valueChanged, progress, &TaskbarProgress::setValue);
    form->addRow(bar);
    form->addRow(ProgressPage::tr("Value"), slider);

    auto* shown = new QCheckBox(ProgressPage::tr("On the taskbar button"));
    QObject::connect(shown, &QCheckBox::toggled, progress, [progress, page, slider](bool visible) {
        progress->setWindow(page->window()->windowHandle());
        progress->setRange(0, maximumValue);
        progress->setValue(slider->value());
        progress->setVisible(visible);
    });
    form->addRow(shown);
    auto* paused = new QCheckBox(ProgressPage::tr("Paused"));
    QObject::connect(paused, &QCheckBox::toggled, progress, &TaskbarProgress::setPaused);
    form->addRow(paused);
    auto* stop = new QPushButton(ProgressPage::tr("Stop for good"));
    QObject::connect(stop, &QPushButton::clicked, progress, &TaskbarProgress::stop);
    form->addRow(stop);
    form->addRow(new QLabel(ProgressPage::tr("Only Windows shows it.")));
    return group;
}

} // namespace

ProgressPage::ProgressPage(QWidget* parent) : QWidget(parent)
{
    auto* layout = new QVBoxLayout(this);
    layout->setSpacing(16);
    layout->addWidget(createBars());
    layout->addWidget(createTaskbarControls(this));
    layout->addStretch();
}

} // namespace Gallery
