// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/corvelgui_export.h>

#include <QLabel>

namespace CorvelGui {

/// A text or picture that can be clicked, and reached and pressed by the keyboard. It has the
/// colour of links; links inside a rich text are not followed.
class CORVELGUI_EXPORT PClickableLabel : public QLabel
{
    Q_OBJECT

public:
    explicit PClickableLabel(QWidget* parent = nullptr);
    explicit PClickableLabel(const QString& text, QWidget* parent = nullptr);

public Q_SLOTS:
    /// Emits clicked() unless the label is disabled.
    void click();

Q_SIGNALS:
    /// Emitted when the left mouse button is pressed and released on the label, when Enter or the
    /// space bar is pressed while it has the focus, and by click(); never while it is disabled.
    void clicked();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    bool m_pressed = false;
};

} // namespace CorvelGui
