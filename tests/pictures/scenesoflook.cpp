// SPDX-License-Identifier: MIT
#include "scenes.h"
#include "sheet.h"
#include "testsupport.h"

#include <Hueloft/PIconHelper16x16>
#include <Hueloft/PIconHelper>
#include <Hueloft/POrvGuiTheme>
#include <Hueloft/PPlayerIconHelper>
#include <Hueloft/PTarvoPlayerIconHelper>

#include <QGroupBox>
#include <QMenu>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QRadioButton>
#include <QScrollBar>
#include <QTimeEdit>
#include <QTreeWidget>

using namespace Hueloft;

namespace {

// An icon in its modes, at sizes whose strokes are of 1, 2 and 3 pixels.
void paintIcon(QPainter& painter, const QIcon& icon, bool onPlayer)
{
    if (onPlayer)
        painter.fillRect(painter.viewport(), POrvGuiTheme::colorPanther);
    int x = 2;
    for (const QIcon::Mode mode :
         {QIcon::Normal, QIcon::Disabled, QIcon::Active, QIcon::Selected}) {
        icon.paint(&painter, QRect(x, 2, 16, 16), Qt::AlignCenter, mode);
        x += 18;
    }
    for (const int side : {24, 33, 48}) {
        icon.paint(&painter, QRect(x, 2, side, side));
        x += side + 2;
    }
}

} // namespace

void Scenes::icons(Sheet& sheet)
{
    using Icons = PIconHelper;
    using Player = PTarvoPlayerIconHelper;
    const std::tuple<const char*, QIcon, bool> icons[] = {
        {"marker", Icons::GetMarkerOutlined_48x48(true), true},
        {"marker, neutral", Icons::GetMarkerOutlined_48x48(false), false},
        {"merged", Icons::GetMergerd_48x48(true), true},
        {"merged, neutral", Icons::GetMergerd_48x48(false), false},
        {"plus", Icons::GetPlusIcon_32x32(true), false},
        {"minus", Icons::GetMinusIcon_32x32(true), false},
        {"copy", Icons::GetCopyIcon_32x32(true), false},
        {"copy rows", Icons::GetCopyRowsIcon_32x32(true), false},
        {"open", Icons::GetOpenIcon_32x32(true), false},
        {"refresh", Icons::GetRefreshIcon_256x256(true), false},
        {"settings", Icons::GetSettingsIconOriginal_32x32(true), false},
        {"settings, neutral", Icons::GetSettingsIconOriginal_32x32(false), false},
        {"lock", QPixmap::fromImage(Icons::GetLockImage_32x32()), false},
        {"close tab", PIconHelper16x16::GetTabCloseIcon(), false},
        {"visible", PIconHelper16x16::GetVisibleIcon(), false},
        {"invisible", PIconHelper16x16::GetInVisibleIcon(), false},
        {"date and time", PPlayerIconHelper::GetDateTimeIcon_32x32(true), false},
        {"play", Player::GetPlay_32x32(), true},
        {"reverse", Player::GetPlayReverse_32x32(), true},
        {"pause", Player::GetPause_32x32(), true},
        {"fast forward", Player::GetFastForward_32x32(), true},
        {"fast rewind", Player::GetFastRewind_32x32(), true},
        {"start", Player::GetStartSingle_32x32(), true},
        {"end", Player::GetEndSingle_32x32(), true},
        {"track start", Player::GetStartDouble_32x32(), true},
        {"track end", Player::GetEndDoubleIcon_32x32(), true}};
    for (const auto& [name, icon, onPlayer] : icons)
        sheet.paint(QString::fromLatin1(name), {185, 52},
                    [&](QPainter& painter) { paintIcon(painter, icon, onPlayer); });
    for (const char* name : {"zoomout", "new", "save", "open", "fit", "binoculars", "rightarrow",
                             "zoomin", "leftarrow", "saveas", "copy", "onetoone", "paste"}) {
        const QIcon icon(u":/CorvelGui/common/%1.png"_s.arg(QLatin1StringView(name)));
        for (const int scale : {1, 2})
            sheet.paint(
                QString::fromLatin1(name), {32, 32},
                [&](QPainter& painter) { icon.paint(&painter, QRect(0, 0, 32, 32)); }, scale);
    }
    sheet.paint(
        u"fractional scale"_s, {30, 18},
        [&](QPainter& painter) {
            Icons::GetSettingsIconOriginal_32x32(true).paint(&painter, QRect(1, 1, 28, 16));
        },
        1.5);
}

void Scenes::colours(Sheet& sheet)
{
    const QPalette palette = QApplication::palette();
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        sheet.paint(u"palette, group %1"_s.arg(int(group)), {21 * 20, 14}, [&](QPainter& painter) {
            for (int role = 0; role < QPalette::NColorRoles; ++role)
                painter.fillRect(role * 20, 0, 19, 14,
                                 palette.color(group, QPalette::ColorRole(role)));
        });
    }
    sheet.paint(u"named colours"_s, {15 * 28, 20}, [](QPainter& painter) {
        int x = 0;
        for (const QColor& color :
             {POrvGuiTheme::colorElephant, POrvGuiTheme::colorKoala, POrvGuiTheme::colorPanther,
              POrvGuiTheme::colorLightRed, POrvGuiTheme::colorPurple, POrvGuiTheme::colorDarkBlue,
              POrvGuiTheme::colorBlack, POrvGuiTheme::colorShark, POrvGuiTheme::colorOrange,
              POrvGuiTheme::colorTuna, POrvGuiTheme::colorGreen, POrvGuiTheme::colorYellow,
              POrvGuiTheme::colorBlue, POrvGuiTheme::colorGreyhound, POrvGuiTheme::statusRed()}) {
            painter.fillRect(x, 0, 27, 20, color);
            x += 28;
        }
    });
}

void Scenes::controls(Sheet& sheet)
{
    const QString text = u"Gate"_s;
    const auto button = [&](const QString& name, const auto&... acts) {
        sheet.show(name, new QPushButton(text), {}, acts...);
    };
    button(u"button"_s);
    button(u"default button"_s, [](QPushButton& shown) { shown.setDefault(true); });
    button(u"checked button"_s, [](QPushButton& shown) {
        shown.setCheckable(true);
        shown.setChecked(true);
    });
    button(u"pressed button"_s, [](QPushButton& shown) { shown.setDown(true); });
    button(u"focused button"_s, focus);
    button(u"button under the mouse"_s, hover);
    button(u"disabled button"_s, disable);
    for (const bool isEnabled : {true, false}) {
        const auto show = [&](const QString& name, auto* widget, QSize size = {}) {
            widget->setEnabled(isEnabled);
            sheet.show(name, widget, size);
        };
        for (const Qt::CheckState state : {Qt::Unchecked, Qt::PartiallyChecked, Qt::Checked}) {
            auto* box = new QCheckBox(text);
            box->setCheckState(state);
            show(u"check box"_s, box);
        }
        for (const bool isOn : {false, true}) {
            auto* choice = new QRadioButton(text);
            choice->setChecked(isOn);
            show(u"radio button"_s, choice);
        }
        show(u"line edit"_s, new QLineEdit(text), {80, 0});
        show(u"spin box"_s, new QSpinBox);
        auto* choice = new QComboBox;
        choice->addItem(text);
        show(u"combo box"_s, choice);
        auto* slider = new QSlider(Qt::Horizontal);
        slider->setTickPosition(QSlider::TicksBelow);
        slider->setValue(40);
        show(u"slider"_s, slider, {80, 0});
        show(u"scroll bar"_s, new QScrollBar(Qt::Horizontal), {80, 0});
    }
    sheet.show(u"focused line edit"_s, new QLineEdit(text), {80, 0}, focus,
               [](QLineEdit& edit) { edit.selectAll(); });
    auto* empty = new QLineEdit;
    empty->setPlaceholderText(u"Search"_s);
    sheet.show(u"empty line edit"_s, empty, {80, 0});
    for (const int value : {0, 52, 100}) {
        auto* bar = new QProgressBar;
        bar->setValue(value);
        sheet.show(u"progress bar"_s, bar, {80, 0});
    }
    auto* group = new QGroupBox(text);
    (new QVBoxLayout(group))->addWidget(new QLabel(u"<a href='x'>Link</a>"_s));
    sheet.show(u"group box"_s, group, {80, 0});
    sheet.show(u"time"_s, new QTimeEdit(QTime(9, 30)));
    sheet.show(u"text"_s, new QPlainTextEdit(u"One\nTwo\nThree\nFour\nFive\nSix"_s), {90, 60});
    auto* tree = new QTreeWidget;
    tree->setHeaderLabel(u"Site"_s);
    tree->setAlternatingRowColors(true);
    auto* site = new QTreeWidgetItem(tree, {u"Brussels"_s});
    new QTreeWidgetItem(site, {u"Gate"_s});
    new QTreeWidgetItem(site, {u"Roof"_s});
    site->setExpanded(true);
    site->child(0)->setSelected(true);
    site->child(1)->setDisabled(true);
    sheet.show(u"tree"_s, tree, {110, 90});
    auto* tabs = new QTabWidget;
    tabs->addTab(new QWidget, u"One"_s);
    tabs->addTab(new QWidget, u"Two"_s);
    sheet.show(u"tabs"_s, tabs, {330, 60});
    auto* menu = new QMenu;
    menu->setWindowFlags(Qt::Widget);
    menu->addAction(PIconHelper::GetCopyIcon_32x32(true), u"Copy"_s);
    menu->addSeparator();
    menu->addAction(u"Not now"_s)->setEnabled(false);
    menu->addAction(u"Checked"_s)->setCheckable(true);
    menu->actions().constLast()->setChecked(true);
    sheet.show(u"menu"_s, menu, {},
               [](QMenu& shown) { shown.setActiveAction(shown.actions().constFirst()); });
    auto* player = new QFrame;
    player->setProperty("tarvo", true);
    auto* row = new QHBoxLayout(player);
    for (int i = 0; i < 4; ++i) {
        auto* play = new QToolButton;
        play->setProperty("TarvoPlayback", true);
        play->setIcon(PTarvoPlayerIconHelper::GetPlay_32x32());
        play->setCheckable(true);
        play->setChecked(i == 1);
        play->setEnabled(i != 2);
        if (i == 3)
            hover(*play);
        row->addWidget(play);
    }
    row->addWidget(new QLabel(text));
    sheet.show(u"player"_s, player);
}
