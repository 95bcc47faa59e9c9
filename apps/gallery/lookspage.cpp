// SPDX-License-Identifier: MIT
#include "lookspage.h"

#include <CorvelGui/PTableWidget>
#include <Hueloft/PIconHelper>
#include <Hueloft/POrvGuiTheme>
#include <Hueloft/PTarvoPlayerIconHelper>

#include <QCheckBox>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QEvent>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QSpinBox>
#include <QTableWidget>
#include <QToolButton>
#include <QTreeWidget>

#include <iterator>

using Hueloft::PIconHelper;
using Hueloft::POrvGuiTheme;
using Hueloft::PTarvoPlayerIconHelper;
using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

template <typename Widget>
Widget* disabled(Widget* widget)
{
    widget->setEnabled(false);
    return widget;
}

QGroupBox* buttons()
{
    auto* group = new QGroupBox(u"Buttons"_s);
    auto* grid = new QGridLayout(group);
    auto* standard = new QPushButton(u"Default"_s);
    standard->setDefault(true);
    auto* checked = new QPushButton(u"Checked"_s);
    checked->setCheckable(true);
    checked->setChecked(true);
    auto* withMenu = new QPushButton(PIconHelper::GetOpenIcon_32x32(true), u"With menu"_s);
    auto* menu = new QMenu(withMenu);
    menu->addAction(PIconHelper::GetCopyIcon_32x32(true), u"Copy"_s);
    menu->addAction(PIconHelper::GetCopyRowsIcon_32x32(true), u"Copy (Cell)"_s);
    menu->addSeparator();
    menu->addAction(u"Not now"_s)->setEnabled(false);
    withMenu->setMenu(menu);

    grid->addWidget(new QPushButton(u"Normal"_s), 0, 0);
    grid->addWidget(standard, 0, 1);
    grid->addWidget(checked, 0, 2);
    grid->addWidget(disabled(new QPushButton(u"Disabled"_s)), 1, 0);
    grid->addWidget(withMenu, 1, 1);
    auto* tool = new QToolButton;
    tool->setIcon(PIconHelper::GetSettingsIconOriginal_32x32(true));
    tool->setText(u"Tool"_s);
    tool->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    grid->addWidget(tool, 1, 2);
    return group;
}

QGroupBox* choices()
{
    auto* group = new QGroupBox(u"Choices"_s);
    auto* grid = new QGridLayout(group);
    const std::pair<Qt::CheckState, QString> states[] = {
        {Qt::Unchecked, u"Off"_s}, {Qt::PartiallyChecked, u"Partly"_s}, {Qt::Checked, u"On"_s}};
    int row = 0;
    for (const auto& [state, text] : states) {
        for (const bool enabled : {true, false}) {
            auto* box = new QCheckBox(enabled ? text : text + u", disabled"_s);
            box->setTristate();
            box->setCheckState(state);
            box->setEnabled(enabled);
            grid->addWidget(box, row, enabled ? 0 : 1);
        }
        ++row;
    }
    for (const bool enabled : {true, false}) {
        auto* side = new QWidget;
        auto* layout = new QVBoxLayout(side);
        layout->setContentsMargins(0, 0, 0, 0);
        auto* chosen = new QRadioButton(u"This one"_s);
        chosen->setChecked(true);
        layout->addWidget(chosen);
        layout->addWidget(new QRadioButton(u"Another"_s));
        side->setEnabled(enabled);
        grid->addWidget(side, row, enabled ? 0 : 1);
    }
    return group;
}

QGroupBox* ranges()
{
    auto* group = new QGroupBox(u"Ranges"_s);
    auto* layout = new QVBoxLayout(group);
    for (const bool enabled : {true, false}) {
        auto* slider = new QSlider(Qt::Horizontal);
        slider->setTickPosition(QSlider::TicksBelow);
        slider->setTickInterval(10);
        slider->setValue(40);
        slider->setEnabled(enabled);
        layout->addWidget(slider);
    }
    for (const int value : {0, 52, 100}) {
        auto* progress = new QProgressBar;
        progress->setValue(value);
        layout->addWidget(progress);
    }
    return group;
}

QTableWidget* devices()
{
    const QString names[] = {u"Entrance north"_s, u"Entrance south"_s, u"Car park"_s,
                             u"Loading bay"_s, u"Roof"_s};
    auto* table = new CorvelGui::PTableWidget(int(std::size(names)), 3);
    table->setHorizontalHeaderLabels({u"Device"_s, u"Address"_s, u"State"_s});
    table->setAlternatingRowColors(true);
    int row = 0;
    for (const QString& name : names) {
        auto* item = new QTableWidgetItem(name);
        item->setCheckState(row % 2 ? Qt::Unchecked : Qt::Checked);
        table->setItem(row, 0, item);
        table->setItem(row, 1, new QTableWidgetItem(u"192.168.1.%1"_s.arg(20 + row)));
        ++row;
    }
    table->setColumnWidth(0, 150);
    table->setColumnWidth(2, 120);
    table->selectRow(1);
    return table;
}

QTreeWidget* sites()
{
    auto* tree = new QTreeWidget;
    tree->setHeaderLabels({u"Site"_s});
    for (const QString& site : {u"Brussels"_s, u"Antwerp"_s}) {
        auto* parent = new QTreeWidgetItem(tree, {site});
        for (int camera = 1; camera <= 4; ++camera)
            new QTreeWidgetItem(parent, {u"Camera %1"_s.arg(camera)});
        parent->setExpanded(true);
    }
    tree->topLevelItem(0)->child(1)->setDisabled(true);
    return tree;
}

QTabWidget* views(QTableWidget* table)
{
    auto* tabs = new QTabWidget;
    tabs->addTab(table, u"Table"_s);
    tabs->addTab(sites(), u"Tree"_s);
    tabs->addTab(new QPlainTextEdit(u"Nothing to report."_s), u"Text"_s);
    tabs->addTab(new QWidget, u"Disabled"_s);
    tabs->setTabEnabled(3, false);
    return tabs;
}

QFrame* player()
{
    auto* frame = new QFrame;
    frame->setFrameShape(QFrame::StyledPanel);
    frame->setProperty("tarvo", true);
    auto* layout = new QHBoxLayout(frame);
    const QIcon icons[] = {PTarvoPlayerIconHelper::GetStartDouble_32x32(),
                           PTarvoPlayerIconHelper::GetFastRewind_32x32(),
                           PTarvoPlayerIconHelper::GetPlayReverse_32x32(),
                           PTarvoPlayerIconHelper::GetPause_32x32(),
                           PTarvoPlayerIconHelper::GetPlay_32x32(),
                           PTarvoPlayerIconHelper::GetFastForward_32x32(),
                           PTarvoPlayerIconHelper::GetEndDoubleIcon_32x32()};
    int index = 0;
    for (const QIcon& icon : icons) {
        auto* button = new QToolButton;
        button->setProperty("TarvoPlayback", true);
        button->setIcon(icon);
        button->setIconSize(QSize(24, 24));
        button->setCheckable(true);
        button->setChecked(index == 4);
        button->setEnabled(index != 6);
        layout->addWidget(button);
        ++index;
    }
    layout->addWidget(new QLabel(u"x 1"_s));
    layout->addStretch();
    return frame;
}

} // namespace

LooksPage::LooksPage(QWidget* parent) : QWidget(parent), m_devices(devices())
{
    auto* left = new QVBoxLayout;
    left->addWidget(createInputs());
    left->addWidget(createTexts());
    left->addStretch();

    auto* middle = new QVBoxLayout;
    middle->addWidget(buttons());
    middle->addWidget(choices());
    middle->addWidget(ranges());
    middle->addStretch();

    auto* top = new QHBoxLayout;
    top->addLayout(left, 1);
    top->addLayout(middle, 1);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addWidget(views(m_devices), 1);
    layout->addWidget(player());
    applyStatusColors();
}

QWidget* LooksPage::createInputs()
{
    auto* group = new QGroupBox(u"Inputs"_s);
    auto* form = new QFormLayout(group);
    m_focused = new QLineEdit(u"Entrance north"_s);
    form->addRow(u"With focus"_s, m_focused);
    auto* empty = new QLineEdit;
    empty->setPlaceholderText(u"Search devices"_s);
    form->addRow(u"Empty"_s, empty);
    auto* wrong = new QLineEdit(u"10.0.0.300"_s);
    wrong->setStyleSheet(u"QLineEdit{background-color:#ff4d4d;}"_s);
    form->addRow(u"Wrong"_s, wrong);
    form->addRow(u"Disabled"_s, disabled(new QLineEdit(u"192.168.1.20"_s)));
    auto* combo = new QComboBox;
    combo->addItems({u"Ethernet 1"_s, u"Ethernet 2"_s});
    form->addRow(u"Combo box"_s, combo);
    auto* editable = new QComboBox;
    editable->setEditable(true);
    editable->addItem(u"https://example.org"_s);
    form->addRow(u"Editable"_s, editable);
    auto* number = new QSpinBox;
    number->setValue(25);
    number->setSuffix(u" fps"_s);
    form->addRow(u"Number"_s, number);
    form->addRow(u"Disabled"_s, disabled(new QSpinBox));
    auto* time = new QDateTimeEdit(QDateTime(QDate(2024, 3, 31), QTime(14, 30)));
    time->setCalendarPopup(true);
    form->addRow(u"Date and time"_s, time);
    return group;
}

QWidget* LooksPage::createTexts()
{
    auto* group = new QGroupBox(u"Texts"_s);
    auto* layout = new QVBoxLayout(group);
    m_link = new QLabel;
    layout->addWidget(m_link);
    m_failure = new QLabel(u"The device does not answer."_s);
    layout->addWidget(m_failure);
    layout->addWidget(disabled(new QLabel(u"A disabled text"_s)));
    return group;
}

// These colours are stored with the texts, so they do not change with the look by themselves.
void LooksPage::applyStatusColors()
{
    m_link->clear();
    m_link->setText(u"A text, and <a href=\"#\">a link</a> in it"_s);
    m_failure->setStyleSheet(u"color: %1"_s.arg(POrvGuiTheme::statusRed().name()));

    const struct
    {
        QString text;
        QColor color;
    } states[] = {
        {u"Recording"_s, POrvGuiTheme::colorGreen},
        {u"Updating"_s, POrvGuiTheme::colorBlue},
        {u"Disk nearly full"_s, POrvGuiTheme::colorOrange},
        {u"No connection"_s, POrvGuiTheme::statusRed()},
        {u"Recording"_s, POrvGuiTheme::colorGreen},
    };
    int row = 0;
    for (const auto& state : states) {
        auto* item = new QTableWidgetItem(state.text);
        item->setForeground(state.color);
        m_devices->setItem(row++, 2, item);
    }
}

void LooksPage::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::StyleChange)
        applyStatusColors();
}

void LooksPage::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    m_focused->setFocus();
    m_focused->selectAll();
}

} // namespace Gallery
