// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/corvelgui_export.h>

#include <QToolButton>

#include <memory>

namespace CorvelGui {

/// The tool button of the playbar: shows a highlighted variant of its icon while the mouse is over
/// it, and another one while it is checked as well.
///
/// Style sheets find it by its dynamic property "TarvoPlayback".
class CORVELGUI_EXPORT TarvoToolButton : public QToolButton
{
    Q_OBJECT
    // Not that of QAbstractButton, which would not make it the normal icon.
    Q_PROPERTY(QIcon icon READ icon WRITE setIcon)

public:
    explicit TarvoToolButton(QWidget* parent = nullptr);
    ~TarvoToolButton() override;

    /// Shows @p icon. The first icon that is not empty stays the normal one: after the next visit
    /// of the mouse it is shown again, whatever was set since.
    void setIcon(const QIcon& icon);

protected:
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;

    /// The hover variant of @p icon: what it shows under the mouse, or selected while the button is
    /// checked, stands for its normal look as well.
    QIcon getHoverIcon(QIcon icon);

private:
    void refreshHover();

    struct Private;
    const std::unique_ptr<Private> d;
};

} // namespace CorvelGui
