#pragma once

#include <CorvelGui/corvelgui_export.h>

#include <QAbstractButton>
#include <QPixmap>

namespace CorvelGui {

/// The borderless button inside a line edit: a pixmap that fills it and may fade in and out.
///
/// It takes no focus until its owner says so.
class CORVELGUI_EXPORT IconButton : public QAbstractButton
{
    Q_OBJECT
    Q_PROPERTY(float iconOpacity READ iconOpacity WRITE setIconOpacity)

public:
    explicit IconButton(QWidget* parent = nullptr);

    /// From 0 (not to be seen) to 1. It counts only while auto-hide is on.
    float iconOpacity() const { return m_iconOpacity; }
    void setIconOpacity(float opacity);

    /// Whether the icon opacity is obeyed; off at first. Hiding itself is the owner's work.
    bool hasAutoHide() const { return m_autoHide; }
    void setAutoHide(bool on);

    QPixmap pixmap() const { return m_pixmap; }
    /// The pixmap is scaled to the size of the button, whatever its own size is.
    void setPixmap(const QPixmap& pixmap);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    float m_iconOpacity = 1.0F;
    bool m_autoHide = false;
    QPixmap m_pixmap;
};

} // namespace CorvelGui
