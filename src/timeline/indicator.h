// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/corvelgui_export.h>

#include <QColor>
#include <QWidget>

class QLabel;

namespace CorvelGui {

/// A time on a label, with a line below it that points at a pixel column: the hot spot.
///
/// The label stands in the middle above the line, except at the ends of the parent, where it stays
/// in sight.
///
/// The indicator only shows what it is told; it knows nothing of a scale. Outside its label and its
/// line it lets everything through, mouse events included.
class CORVELGUI_EXPORT Indicator : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText)
    Q_PROPERTY(QColor color READ color)
    Q_PROPERTY(int hotSpot READ hotSpot)

public:
    explicit Indicator(QWidget* parent = nullptr);

    /// The text on the label. The label takes the width that the text needs, around the hot spot.
    void setText(const QString& text);
    QString text() const;

    /// Colour of label and line, and point size of the label's text.
    void setLook(const QColor& color, unsigned int pointSize);
    QColor color() const { return m_color; }

    int labelHeight() const;
    /// Distance of the line from the left edge, in pixels.
    int hotSpot() const { return m_hotSpot; }
    /// Moves the indicator so that its line stands on column @p x of the parent.
    void moveHotSpotTo(int x);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void layOut();
    void updateMask();

    QLabel* const m_label;
    QColor m_color;
    int m_hotSpot = 0;
};

} // namespace CorvelGui
