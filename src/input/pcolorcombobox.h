// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/corvelgui_export.h>

#include <QColor>
#include <QComboBox>

namespace CorvelGui {

/// Chooses one of some named colours, and if the client likes any other one in a dialog. A colour
/// that is set but not in the list gets an entry of its own, which the next such colour replaces.
///
/// The entries belong to the class. A receiver that wants to remove the box calls deleteLater():
/// QComboBox still works on itself after its own signals.
class CORVELGUI_EXPORT PColorComboBox : public QComboBox
{
    Q_OBJECT
    Q_PROPERTY(
        QColor currentColor READ currentColor WRITE setCurrentColor NOTIFY currentColorChanged)
    Q_PROPERTY(bool otherColors READ hasOtherColors WRITE setOtherColors NOTIFY otherColorsChanged)

public:
    /// Without any colour at first.
    explicit PColorComboBox(QWidget* parent = nullptr);

    /// Adds a colour behind the others, under its code if it has no name. The first one becomes the
    /// current one. An invalid colour, and one that is there already, is not added.
    void addColor(const QColor& color, const QString& name = {});
    /// Adds the colours of the theme that are easily told apart, under names in the language of the
    /// user, which follow the language.
    void addThemeColors();

    /// Invalid as long as there is none.
    QColor currentColor() const { return m_color; }

    /// Whether the last entry leads to a dialog with all colours; off at first.
    bool hasOtherColors() const;
    void setOtherColors(bool on);

public Q_SLOTS:
    /// An invalid colour changes nothing.
    void setCurrentColor(const QColor& color);

Q_SIGNALS:
    /// Emitted when the current colour is another one, whoever chose it.
    void currentColorChanged(const QColor& color);
    void otherColorsChanged(bool on);

protected:
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    enum class Kind { Listed, Own, Other };

    void takeIndex(int index);
    void takeActivated(int index);
    void insertColor(const QColor& color, const QString& name, Kind kind);
    void retranslate();
    void skipOther(bool skip);
    int indexOf(const QColor& color) const;
    int indexOf(Kind kind) const;

    QColor m_color;
};

} // namespace CorvelGui
