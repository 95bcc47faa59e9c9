// SPDX-License-Identifier: MIT
#include "pcolorcombobox.h"

#include "base/entrywidth.h"
#include "colorchoice.h"

#include <Hueloft/POrvGuiTheme>

#include <QEvent>
#include <QStandardItemModel>

#include <iterator>

using Hueloft::POrvGuiTheme;

namespace CorvelGui {

namespace {

enum Role { ColorRole = Qt::UserRole, KindRole, ThemeRole };

struct ThemeColor
{
    const QColor& color;
    const char* name;
};

const ThemeColor themeColors[] = {
    {POrvGuiTheme::colorLightRed, QT_TRANSLATE_NOOP("CorvelGui::PColorComboBox", "Red")},
    {POrvGuiTheme::colorOrange, QT_TRANSLATE_NOOP("CorvelGui::PColorComboBox", "Orange")},
    {POrvGuiTheme::colorYellow, QT_TRANSLATE_NOOP("CorvelGui::PColorComboBox", "Yellow")},
    {POrvGuiTheme::colorGreen, QT_TRANSLATE_NOOP("CorvelGui::PColorComboBox", "Green")},
    {POrvGuiTheme::colorBlue, QT_TRANSLATE_NOOP("CorvelGui::PColorComboBox", "Blue")},
    {POrvGuiTheme::colorPurple, QT_TRANSLATE_NOOP("CorvelGui::PColorComboBox", "Purple")},
    {POrvGuiTheme::colorKoala, QT_TRANSLATE_NOOP("CorvelGui::PColorComboBox", "Grey")},
    {POrvGuiTheme::colorBlack, QT_TRANSLATE_NOOP("CorvelGui::PColorComboBox", "Black")},
};

} // namespace

PColorComboBox::PColorComboBox(QWidget* parent) : QComboBox(parent)
{
    keepRoomForEntries(*this);
    connect(this, &QComboBox::currentIndexChanged, this, &PColorComboBox::takeIndex);
    connect(this, &QComboBox::activated, this, &PColorComboBox::takeActivated);
}

void PColorComboBox::addColor(const QColor& color, const QString& name)
{
    if (color.isValid() && indexOf(color) < 0)
        insertColor(color, name, Kind::Listed);
}

void PColorComboBox::addThemeColors()
{
    for (int i = 0; i < int(std::size(themeColors)); ++i) {
        const ThemeColor& entry = themeColors[i];
        addColor(entry.color, tr(entry.name));
        setItemData(indexOf(entry.color), i, ThemeRole);
    }
}

bool PColorComboBox::hasOtherColors() const
{
    return indexOf(Kind::Other) >= 0;
}

void PColorComboBox::setOtherColors(bool on)
{
    if (on == hasOtherColors())
        return;
    if (on) {
        const int chosen = currentIndex();
        addItem(QString());
        setItemData(count() - 1, int(Kind::Other), KindRole);
        setCurrentIndex(chosen); // the only entry would be chosen by itself
        retranslate();
    } else {
        removeItem(indexOf(Kind::Other));
    }
    Q_EMIT otherColorsChanged(on);
}

void PColorComboBox::setCurrentColor(const QColor& color)
{
    if (!color.isValid() || (m_color.isValid() && color.rgba() == m_color.rgba()))
        return;
    if (indexOf(color) < 0)
        insertColor(color, QString(), Kind::Own);
    setCurrentIndex(indexOf(color));
    // The earlier colour may have had an entry of its own.
    for (int i = count() - 1; i >= 0; --i) {
        if (itemData(i, KindRole).toInt() == int(Kind::Own) && i != currentIndex())
            removeItem(i);
    }
}

void PColorComboBox::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QComboBox::changeEvent(event);
}

// Keys and wheel go through the colours; they must not open a dialog on the way.
void PColorComboBox::keyPressEvent(QKeyEvent* event)
{
    skipOther(true);
    QComboBox::keyPressEvent(event);
    skipOther(false);
}

void PColorComboBox::wheelEvent(QWheelEvent* event)
{
    skipOther(true);
    QComboBox::wheelEvent(event);
    skipOther(false);
}

void PColorComboBox::takeIndex(int index)
{
    const QColor color = itemData(index, ColorRole).value<QColor>();
    const bool passes = index >= 0 && !color.isValid(); // on the way to the dialog
    if (passes || color == m_color)
        return;
    m_color = color;
    Q_EMIT currentColorChanged(m_color);
}

void PColorComboBox::takeActivated(int index)
{
    if (index != indexOf(Kind::Other))
        return;
    setCurrentIndex(m_color.isValid() ? indexOf(m_color) : -1);
    openColorDialog(this, tr("Choose a colour"), m_color.isValid() ? m_color : QColor(Qt::white),
                    false, [this](const QColor& color) { setCurrentColor(color); });
}

void PColorComboBox::insertColor(const QColor& color, const QString& name, Kind kind)
{
    int index = indexOf(Kind::Other);
    if (index < 0)
        index = count();
    if (kind == Kind::Listed && indexOf(Kind::Own) >= 0)
        index = indexOf(Kind::Own);
    const QColor taken = color.toRgb();
    insertItem(index, colorSwatch(taken), name.isEmpty() ? colorCode(taken) : name);
    setItemData(index, int(kind), KindRole);
    setItemData(index, taken, ColorRole);
    if (currentIndex() < 0 || currentIndex() == index)
        setCurrentIndex(index);
    takeIndex(currentIndex()); // Qt chooses the first entry before it has its colour
}

void PColorComboBox::retranslate()
{
    for (int i = 0; i < count(); ++i) {
        if (const QVariant theme = itemData(i, ThemeRole); theme.isValid())
            setItemText(i, tr(themeColors[theme.toInt()].name));
        else if (itemData(i, KindRole).toInt() == int(Kind::Other))
            setItemText(i, tr("Other colour…"));
    }
}

void PColorComboBox::skipOther(bool skip)
{
    auto* items = qobject_cast<QStandardItemModel*>(model());
    if (const int index = indexOf(Kind::Other); items && index >= 0)
        items->item(index)->setEnabled(!skip);
}

int PColorComboBox::indexOf(const QColor& color) const
{
    for (int i = 0; i < count(); ++i) {
        const QColor listed = itemData(i, ColorRole).value<QColor>();
        if (listed.isValid() && listed.rgba() == color.rgba())
            return i;
    }
    return -1;
}

int PColorComboBox::indexOf(Kind kind) const
{
    return findData(int(kind), KindRole);
}

} // namespace CorvelGui
