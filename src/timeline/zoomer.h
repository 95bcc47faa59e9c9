// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/corvelgui_export.h>

#include <QWidget>

#include <memory>

class QSlider;
class QToolButton;

namespace CorvelGui {

class ControlEmissions;

/// The zoom control of the timeline: a zoom-in button, a slider over the zoom levels and a zoom-out
/// button. Level 0 is the closest zoom, the maximum the widest view.
///
/// It asks for levels by its two signals and follows the ruler by onChangeSliderPosition().
class CORVELGUI_EXPORT Zoomer : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(int level READ level WRITE onChangeSliderPosition NOTIFY levelChanged)
    Q_PROPERTY(int maximumLevel READ maximumLevel CONSTANT)

public:
    /// Shows level 0, but takes level 1, that of a new ruler, for the current one: the slider first
    /// moves at the next other level.
    explicit Zoomer(int maximumLevel, QWidget* parent = nullptr);
    ~Zoomer() override;

    /// Creates and connects the slider and the two buttons. The constructor has done that; once
    /// there are controls, nothing happens.
    void initializeControls();

    /// The level that was asked for last, or that the ruler told since; 1 in a new one.
    int level() const { return m_currentLevel; }
    int maximumLevel() const { return m_maximumLevel; }

public Q_SLOTS:
    /// Moves the slider by one level towards 0, and emits zoomerIn(); nothing at level 0.
    void onZoomInClicked(bool checked);
    /// Moves the slider by one level towards the maximum, and emits zoomerOut(); nothing there.
    void onZoomOutClicked(bool checked);
    /// Asks for @p level, unless it is current.
    void onSliderChanged(int level);
    /// Follows the ruler without emitting. A level outside the slider's range counts as its nearer
    /// end.
    void onChangeSliderPosition(int level);

Q_SIGNALS:
    /// Emitted when the user asks for a closer level; the anchor is always 0.5, the centre of the
    /// view. A click on a button emits twice, once for the slider and once for the button;
    /// receivers find the level current at the second.
    void zoomerIn(int level, double anchor);
    /// As zoomerIn(), for a wider level.
    void zoomerOut(int level, double anchor);
    /// Emitted when the user chose another level, before the first signal that asks for it.
    void levelChanged(int level);

protected:
    void changeEvent(QEvent* event) override;

private:
    void report(void (Zoomer::*signal)(int, double), int level);
    void translateTexts();

    const int m_maximumLevel;
    int m_currentLevel = 1;
    const std::unique_ptr<ControlEmissions> m_emissions;
    QToolButton* m_zoomIn = nullptr;
    QSlider* m_slider = nullptr;
    QToolButton* m_zoomOut = nullptr;
};

} // namespace CorvelGui
