// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/PImageWidget>
#include <CorvelGui/corvelgui_export.h>

#include <QWidget>

class QBoxLayout;
class QLabel;

namespace CorvelGui {

/// A picture with a line of text: below it, as under thumbnails, or beside it, as in lists. Text
/// that does not fit is elided in the middle, and the tooltip has all of it.
class CORVELGUI_EXPORT PImageAndLabelWidget : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged)
    Q_PROPERTY(
        Qt::Orientation orientation READ orientation WRITE setOrientation NOTIFY orientationChanged)

public:
    explicit PImageAndLabelWidget(QWidget* parent = nullptr);

    /// Owned by this widget. It has the text as its accessible name.
    PImageWidget* imageWidget() const { return m_image; }

    /// Plain text.
    QString text() const;
    void setText(const QString& text);

    /// Qt::Vertical, the default, has the text below the picture; Qt::Horizontal beside it, at the
    /// end of the line.
    Qt::Orientation orientation() const;
    void setOrientation(Qt::Orientation orientation);

Q_SIGNALS:
    /// Emitted when the property has changed; the same holds for the following.
    void textChanged(const QString& text);
    void orientationChanged(Qt::Orientation orientation);

private:
    QBoxLayout* m_layout;
    PImageWidget* m_image;
    QLabel* m_label;
};

} // namespace CorvelGui
