// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>

class QWidget;

namespace CorvelGui {

/// Keeps the keyboard out of what an overlay covers: its parent and all that is in it, except other
/// guarded overlays. Keys go past the covered widgets to those around them.
class KeyboardGuard : public QObject
{
    Q_OBJECT

public:
    explicit KeyboardGuard(QWidget* overlay);
    ~KeyboardGuard() override;

    /// Moves the focus from a covered widget to the overlay, and remembers that widget.
    void start();
    /// Gives the focus back, unless it went elsewhere meanwhile or the widget is gone.
    void stop();
    bool isActive() const { return m_active; }

    /// Moves the focus from the overlay to the next widget in its window that is not covered;
    /// leaves it where it is if there is none. Returns true: the key is used up.
    bool moveFocusOutside(bool next);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void keepFocus(QWidget* focused);
    bool covers(const QWidget* widget) const;
    bool coversOwnerOfShortcut(const QObject* owner) const;

    QWidget* const m_overlay;
    QPointer<QWidget> m_returnTo;
    bool m_active = false;
};

} // namespace CorvelGui
