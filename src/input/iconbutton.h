// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/corvelgui_export.h>

#include <QAbstractButton>

#include <memory>

namespace CorvelGui {

/// The borderless button inside a line edit: a pixmap that fills it and may fade in and out. An
/// icon() is drawn in place of the pixmap, at the size and scale of the button.
///
/// It takes no focus until its owner says so.
class CORVELGUI_EXPORT IconButton : public QAbstractButton
{
    Q_OBJECT
    Q_PROPERTY(float iconOpacity READ iconOpacity WRITE setIconOpacity DESIGNABLE false)
    Q_PROPERTY(bool autoHide READ hasAutoHide WRITE setAutoHide)
    Q_PROPERTY(QPixmap pixmap READ pixmap WRITE setPixmap)

public:
    explicit IconButton(QWidget* parent = nullptr);
    ~IconButton() override;

    /// From 0 (not to be seen) to 1. It counts only while auto-hide is on.
    float iconOpacity() const;
    void setIconOpacity(float opacity);

    /// Whether the icon opacity is obeyed; off at first. Hiding itself is the owner's work.
    bool hasAutoHide() const;
    void setAutoHide(bool on);

    QPixmap pixmap() const;
    /// The pixmap is scaled to the size of the button, whatever its own size is.
    void setPixmap(const QPixmap& pixmap);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void drawPixmap(QPainter& painter) const;

    struct Private;
    const std::unique_ptr<Private> d;
};

} // namespace CorvelGui
