// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/corvelgui_export.h>

#include <QIcon>
#include <QLineEdit>
#include <QPixmap>

class QCompleter;
class QMenu;

namespace CorvelGui {

class FancyLineEditPrivate;

/// A line edit with an optional icon button inside each end. A button either emits a click or drops
/// a menu down, and may fade in and out with the presence of text.
///
/// In right-to-left layout the sides change places: Left is the leading one.
class CORVELGUI_EXPORT FancyLineEdit : public QLineEdit
{
    Q_OBJECT
    Q_PROPERTY(bool leftButtonVisible READ isLeftButtonVisible WRITE setLeftButtonVisible)
    Q_PROPERTY(bool rightButtonVisible READ isRightButtonVisible WRITE setRightButtonVisible)
    Q_PROPERTY(QPixmap leftButtonPixmap READ leftButtonPixmap WRITE setLeftButtonPixmap)
    Q_PROPERTY(QPixmap rightButtonPixmap READ rightButtonPixmap WRITE setRightButtonPixmap)
    Q_PROPERTY(QIcon leftButtonIcon READ leftButtonIcon WRITE setLeftButtonIcon)
    Q_PROPERTY(QIcon rightButtonIcon READ rightButtonIcon WRITE setRightButtonIcon)
    Q_PROPERTY(QString leftButtonToolTip READ leftButtonToolTip WRITE setLeftButtonToolTip)
    Q_PROPERTY(QString rightButtonToolTip READ rightButtonToolTip WRITE setRightButtonToolTip)
    Q_PROPERTY(bool leftButtonAutoHide READ hasLeftButtonAutoHide WRITE setLeftButtonAutoHide)
    Q_PROPERTY(bool rightButtonAutoHide READ hasRightButtonAutoHide WRITE setRightButtonAutoHide)

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
    QIcon buttonIcon(Side side) const;

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
    QString buttonToolTip(Side side) const;
    void setButtonFocusPolicy(Side side, Qt::FocusPolicy policy);
    /// Of a button that shows its menu on Tab, what was set, also while Tab passes it by.
    Qt::FocusPolicy buttonFocusPolicy(Side side) const;

    // The same for one side, as properties

    bool isLeftButtonVisible() const { return isButtonVisible(Left); }
    void setLeftButtonVisible(bool visible) { setButtonVisible(Left, visible); }
    bool isRightButtonVisible() const { return isButtonVisible(Right); }
    void setRightButtonVisible(bool visible) { setButtonVisible(Right, visible); }
    QPixmap leftButtonPixmap() const { return buttonPixmap(Left); }
    void setLeftButtonPixmap(const QPixmap& pixmap) { setButtonPixmap(Left, pixmap); }
    QPixmap rightButtonPixmap() const { return buttonPixmap(Right); }
    void setRightButtonPixmap(const QPixmap& pixmap) { setButtonPixmap(Right, pixmap); }
    QIcon leftButtonIcon() const { return buttonIcon(Left); }
    void setLeftButtonIcon(const QIcon& icon) { setButtonIcon(Left, icon); }
    QIcon rightButtonIcon() const { return buttonIcon(Right); }
    void setRightButtonIcon(const QIcon& icon) { setButtonIcon(Right, icon); }
    QString leftButtonToolTip() const { return buttonToolTip(Left); }
    void setLeftButtonToolTip(const QString& text) { setButtonToolTip(Left, text); }
    QString rightButtonToolTip() const { return buttonToolTip(Right); }
    void setRightButtonToolTip(const QString& text) { setButtonToolTip(Right, text); }
    bool hasLeftButtonAutoHide() const { return hasAutoHideButton(Left); }
    void setLeftButtonAutoHide(bool on) { setAutoHideButton(Left, on); }
    bool hasRightButtonAutoHide() const { return hasAutoHideButton(Right); }
    void setRightButtonAutoHide(bool on) { setAutoHideButton(Right, on); }

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
