#pragma once

#include <CorvelGui/corvelgui_export.h>

#include <QLineEdit>

class QCompleter;
class QMenu;
class QPixmap;

namespace CorvelGui {

class FancyLineEditPrivate;

/// A line edit with an optional icon button inside each end. A button either emits a click or drops
/// a menu down, and may fade in and out with the presence of text.
///
/// In right-to-left layout the sides change places: Left is the leading one.
class CORVELGUI_EXPORT FancyLineEdit : public QLineEdit
{
    Q_OBJECT

public:
    enum Side { Left = 0, Right = 1 };
    Q_ENUM(Side)

    explicit FancyLineEdit(QWidget* parent = nullptr);

    /// Both buttons are hidden at first. A button takes its room from the text.
    void setButtonVisible(Side side, bool visible);
    bool isButtonVisible(Side side) const;

    /// The button is as high as the field and as many times wider as the pixmap is wider than high,
    /// in whole numbers: one narrower than high has no width at all.
    void setButtonPixmap(Side side, const QPixmap& pixmap);
    QPixmap buttonPixmap(Side side) const;
    /// Drawn in place of the pixmap, sharp at every scale; a null one for the pixmap again. The
    /// pixmap still decides how wide the button is.
    void setButtonIcon(Side side, const QIcon& icon);

    /// With a menu the button drops it down instead of emitting clicks; null for none. The caller
    /// keeps the menu, and a deleted one is none.
    void setButtonMenu(Side side, QMenu* menu);
    QMenu* buttonMenu(Side side) const;

    /// Whether the menu also drops down when the button is reached with the Tab key. The focus then
    /// returns to the field, and the next Tab passes the button by. Sets the button's focus policy
    /// when it changes.
    void setMenuTabFocusTrigger(Side side, bool on);
    bool hasMenuTabFocusTrigger(Side side) const;

    /// Whether the button fades away, over 160 ms, while the field is empty.
    void setAutoHideButton(Side side, bool on);
    bool hasAutoHideButton(Side side) const;

    /// It is also the button's name for assistive technology.
    void setButtonToolTip(Side side, const QString& text);
    void setButtonFocusPolicy(Side side, Qt::FocusPolicy policy);

    /// As QLineEdit::setCompleter().
    void setSpecialCompleter(QCompleter* completer);

Q_SIGNALS:
    /// Emitted at a click on a button that has no menu, before the signal of its side.
    void buttonClicked(CorvelGui::FancyLineEdit::Side side);
    /// Emitted after buttonClicked(Left).
    void leftButtonClicked();
    /// Emitted after buttonClicked(Right).
    void rightButtonClicked();

protected:
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void checkButtons(const QString& text);
    void iconClicked(Side side);
    void updateMargins();
    void updateButtonPositions();
    Side sideAt(Side end) const;

    FancyLineEditPrivate* const d; // a child
};

} // namespace CorvelGui
