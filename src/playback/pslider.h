// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/corvelgui_export.h>

#include <QMap>
#include <QSlider>
#include <QString>

#include <functional>
#include <memory>

namespace CorvelGui {

/// A QSlider that does what users expect of one: a click on it goes to the place and drags from
/// there, a notch of the wheel is exactly a single step, and the value stands beside the handle
/// while it is dragged. Values that mean something can have a tick and a text.
///
/// All else, its signals among it, is as with QSlider. valueChanged() may delete it.
class CORVELGUI_EXPORT PSlider : public QSlider
{
    Q_OBJECT
    Q_PROPERTY(bool valueTip READ hasValueTip WRITE setValueTip NOTIFY valueTipChanged)
    Q_PROPERTY(CorvelGui::PSlider::TickTexts tickTexts READ tickTexts WRITE setTickTexts NOTIFY
                   tickTextsChanged DESIGNABLE false)

public:
    /// Texts by their values.
    using TickTexts = QMap<int, QString>;
    /// Says how a value is written.
    using ValueText = std::function<QString(int)>;

    /// A horizontal slider.
    explicit PSlider(QWidget* parent = nullptr);
    explicit PSlider(Qt::Orientation orientation, QWidget* parent = nullptr);
    ~PSlider() override;

    /// Whether the value is shown while the handle is dragged; on at first.
    bool hasValueTip() const;
    void setValueTip(bool on);

    /// Texts below a horizontal slider, beside a vertical one, each with a tick at its value; none
    /// at first. Those of values out of range are not shown, nor those that would touch the one
    /// before.
    TickTexts tickTexts() const;
    void setTickTexts(const TickTexts& texts);

    /// How @p value is written and spoken: by the function that was set, otherwise as a number of
    /// the locale.
    QString textOf(int value) const;
    /// An empty function, as at first, means numbers.
    void setValueText(ValueText text);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// Emitted when setValueTip() changed it.
    void valueTipChanged(bool on);
    /// Emitted when setTickTexts() changed them.
    void tickTextsChanged();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void initStyleOption(QStyleOptionSlider* option) const override;

private:
    struct Track;
    struct Private;

    Track track() const;
    int textsExtent() const;
    void showTip();

    const std::unique_ptr<Private> d;
};

} // namespace CorvelGui
