// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/corvelgui_export.h>

#include <QToolButton>

#include <memory>

namespace CorvelGui {

class PSlider;

/// A tool button whose pop-up holds a slider, for a volume or a speed. A notch of the wheel on the
/// button, and its Up and Down keys, change the value by a single step without the pop-up; it shows
/// the value then. valueChanged() may delete it.
///
/// A click opens the pop-up. With setPopupMode(QToolButton::MenuButtonPopup) only one on the arrow
/// does, and another is that of a tool button, such as to mute.
class CORVELGUI_EXPORT PopupSliderToolButton : public QToolButton
{
    Q_OBJECT
    Q_PROPERTY(int minimum READ minimum WRITE setMinimum NOTIFY limitsChanged)
    Q_PROPERTY(int maximum READ maximum WRITE setMaximum NOTIFY limitsChanged)
    Q_PROPERTY(int value READ value WRITE setValue NOTIFY valueChanged)
    Q_PROPERTY(
        Qt::Orientation orientation READ orientation WRITE setOrientation NOTIFY orientationChanged)

public:
    /// With an upright slider from 0 to 99, at 0.
    explicit PopupSliderToolButton(QWidget* parent = nullptr);
    ~PopupSliderToolButton() override;

    int minimum() const;
    void setMinimum(int minimum);
    int maximum() const;
    void setMaximum(int maximum);
    /// A maximum below @p minimum counts as @p minimum, and the value comes inside.
    void setLimits(int minimum, int maximum);

    int value() const;

    /// Of the slider; upright at first.
    Qt::Orientation orientation() const;
    void setOrientation(Qt::Orientation orientation);

    /// The slider in the pop-up, for its steps and texts; stays ours. What
    /// PSlider::setValueText() gives is what the button shows and speaks.
    PSlider* slider() const;

public Q_SLOTS:
    /// A value out of the limits counts as the nearer one.
    void setValue(int value);

Q_SIGNALS:
    /// Emitted when the minimum or the maximum changes.
    void limitsChanged(int minimum, int maximum);
    /// Emitted when the value changes, whoever changed it.
    void valueChanged(int value);
    /// Emitted when setOrientation() changed it.
    void orientationChanged(Qt::Orientation orientation);

protected:
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    struct Private;

    void step(int by);
    void describeValue();
    void retranslate();

    const std::unique_ptr<Private> d;
};

} // namespace CorvelGui
