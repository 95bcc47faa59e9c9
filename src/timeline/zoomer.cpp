// SPDX-License-Identifier: MIT
#include "zoomer.h"

#include "base/controlemissions.h"
#include "base/whilealive.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QIcon>
#include <QPointer>
#include <QSlider>
#include <QToolButton>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace CorvelGui {

namespace {

constexpr int zoomerWidth = 150;
constexpr int zoomerHeight = 15;
constexpr int minimumLevel = 0;
constexpr double viewCenter = 0.5;

QToolButton* createButton(const QString& iconPath, QWidget* parent)
{
    auto* button = new QToolButton(parent);
    button->setIcon(QIcon(iconPath));
    button->setIconSize(QSize(zoomerHeight, zoomerHeight));
    button->setFixedSize(zoomerHeight, zoomerHeight);
    button->setAutoRaise(true);
    return button;
}

} // namespace

Zoomer::Zoomer(int maximumLevel, QWidget* parent)
    : QWidget(parent)
    , m_maximumLevel(maximumLevel)
    , m_emissions(std::make_unique<ControlEmissions>())
{
    setFixedWidth(zoomerWidth);
    setMaximumHeight(zoomerHeight);
    setCursor(Qt::PointingHandCursor);
    initializeControls();

    auto* layout = new QHBoxLayout(this);
    layout->setSpacing(5);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_zoomIn);
    layout->addWidget(m_slider);
    layout->addWidget(m_zoomOut);
}

Zoomer::~Zoomer()
{
    m_emissions->release({m_zoomIn, m_slider, m_zoomOut});
}

void Zoomer::initializeControls()
{
    if (m_slider)
        return;
    // In the order in which Tab reaches them.
    m_zoomIn = createButton(u":/CorvelGui/common/zoomin.png"_s, this);
    connect(m_zoomIn, &QToolButton::clicked, this, &Zoomer::onZoomInClicked);

    m_slider = new QSlider(Qt::Horizontal, this);
    m_slider->setRange(minimumLevel, m_maximumLevel);
    m_slider->setPageStep(1);
    // Some styles want more, which would make the whole control higher.
    m_slider->setMaximumHeight(zoomerHeight);
    m_slider->setSingleStep(1);
    m_slider->setValue(minimumLevel);
    connect(m_slider, &QSlider::valueChanged, this, &Zoomer::onSliderChanged);

    m_zoomOut = createButton(u":/CorvelGui/common/zoomout.png"_s, this);
    connect(m_zoomOut, &QToolButton::clicked, this, &Zoomer::onZoomOutClicked);
    translateTexts();
}

void Zoomer::onZoomInClicked(bool)
{
    const int level = m_slider->value() - 1;
    if (level < minimumLevel)
        return;
    const QPointer<Zoomer> alive(this);
    m_slider->setValue(level);
    if (alive)
        report(&Zoomer::zoomerIn, level);
}

void Zoomer::onZoomOutClicked(bool)
{
    const int level = m_slider->value() + 1;
    if (level > m_maximumLevel)
        return;
    const QPointer<Zoomer> alive(this);
    m_slider->setValue(level);
    if (alive)
        report(&Zoomer::zoomerOut, level);
}

void Zoomer::onSliderChanged(int level)
{
    if (level == m_currentLevel)
        return;
    const bool wider = level > m_currentLevel;
    m_currentLevel = level;
    whileAlive(
        this, [&] { m_emissions->run([&] { Q_EMIT levelChanged(level); }); },
        [&] { report(wider ? &Zoomer::zoomerOut : &Zoomer::zoomerIn, level); });
}

void Zoomer::onChangeSliderPosition(int level)
{
    const int shown = std::clamp(level, m_slider->minimum(), m_slider->maximum());
    if (shown == m_currentLevel)
        return;
    m_currentLevel = shown;
    m_slider->setValue(shown);
}

void Zoomer::report(void (Zoomer::*signal)(int, double), int level)
{
    m_emissions->run([&] { Q_EMIT(this->*signal)(level, viewCenter); });
}

void Zoomer::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        translateTexts();
}

void Zoomer::translateTexts()
{
    const auto name = [](QWidget* control, const QString& text) {
        control->setToolTip(text);
        control->setAccessibleName(text);
    };
    name(m_zoomIn, tr("Zoom in"));
    name(m_slider, tr("Zoom level"));
    name(m_zoomOut, tr("Zoom out"));
}

} // namespace CorvelGui
