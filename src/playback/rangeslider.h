// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/corvelgui_export.h>

#include <QString>
#include <QWidget>

#include <functional>
#include <memory>

namespace CorvelGui {

/// A horizontal slider with two handles, for the lower and the upper end of a range. A handle goes
/// as near to the other one as the minimum distance allows. The stretch between them is dragged to
/// move the range as a whole.
///
/// Each handle takes the focus and goes by the keys of a slider: the arrows by the single step,
/// Page Up and Page Down by the page step, Home and End as far as it can. With Shift they move the
/// range as a whole. A notch of the wheel moves the handle under the mouse by the single step, and
/// the range elsewhere. A click beside the range brings the nearer handle. Mirrored in
/// right-to-left layout. Any signal may delete it.
class CORVELGUI_EXPORT RangeSlider : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(int minimum READ minimum WRITE setMinimum NOTIFY limitsChanged)
    Q_PROPERTY(int maximum READ maximum WRITE setMaximum NOTIFY limitsChanged)
    Q_PROPERTY(int lowerValue READ lowerValue WRITE setLowerValue NOTIFY valuesChanged)
    Q_PROPERTY(int upperValue READ upperValue WRITE setUpperValue NOTIFY valuesChanged)
    Q_PROPERTY(int minimumDistance READ minimumDistance WRITE setMinimumDistance NOTIFY
                   minimumDistanceChanged)
    Q_PROPERTY(int singleStep READ singleStep WRITE setSingleStep NOTIFY singleStepChanged)
    Q_PROPERTY(int pageStep READ pageStep WRITE setPageStep NOTIFY pageStepChanged)

public:
    /// Says how a value is written.
    using ValueText = std::function<QString(int)>;

    /// From 0 to 100, all of it selected, by steps of 1 and 10.
    explicit RangeSlider(QWidget* parent = nullptr);
    ~RangeSlider() override;

    int minimum() const;
    /// A maximum below it follows it.
    void setMinimum(int minimum);
    int maximum() const;
    /// A minimum above it follows it.
    void setMaximum(int maximum);
    /// A maximum below @p minimum counts as @p minimum. The values come inside.
    void setLimits(int minimum, int maximum);

    int lowerValue() const;
    int upperValue() const;
    /// From 0, as at first, to what there is between the limits.
    int minimumDistance() const;
    void setMinimumDistance(int distance);

    /// 1 at least.
    int singleStep() const;
    void setSingleStep(int step);
    /// 1 at least.
    int pageStep() const;
    void setPageStep(int step);

    /// How @p value is written in the tip of a dragged handle, and spoken: by the function that was
    /// set, otherwise as a number of the locale.
    QString textOf(int value) const;
    /// An empty function, as at first, means numbers.
    void setValueText(ValueText text);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

public Q_SLOTS:
    /// As near to @p value as limits, distance and the other value allow.
    void setLowerValue(int value);
    void setUpperValue(int value);
    /// In either order; those too near together are moved apart.
    void setValues(int lower, int upper);

Q_SIGNALS:
    /// Emitted when the minimum or the maximum changes.
    void limitsChanged(int minimum, int maximum);
    /// Emitted when it changes, also by limits that leave less room.
    void minimumDistanceChanged(int distance);
    /// Emitted when setSingleStep() changed it.
    void singleStepChanged(int step);
    /// Emitted when setPageStep() changed it.
    void pageStepChanged(int step);
    /// Emitted when one of the values changes, whoever changed it.
    void valuesChanged(int lower, int upper);
    /// Emitted after valuesChanged() when the user changed them.
    void valuesEdited(int lower, int upper);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    enum class Part { None, Lower, Upper, Both };
    struct Private;

    Part partAt(int x) const;
    int xAt(int value) const;
    int valueAt(int x) const;
    void placeHandles();
    template <typename Change>
    void change(const Change& act, bool byUser);
    void shift(Part part, qint64 by);
    void dragTo(int x);
    void showTip();

    const std::unique_ptr<Private> d;
};

} // namespace CorvelGui
