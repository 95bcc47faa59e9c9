// SPDX-License-Identifier: MIT
#include "scenes.h"
#include "sheet.h"
#include "testsupport.h"

#include <Corvel/NetworkInterfaceData>
#include <CorvelGui/CountryCodeLineEdit>
#include <CorvelGui/FileNameValidatingLineEdit>
#include <CorvelGui/FilterLineEdit>
#include <CorvelGui/InputLengthLineEdit>
#include <CorvelGui/IpLineEdit>
#include <CorvelGui/NetworkInterfaceComboBox>
#include <CorvelGui/NotEmptyLineEdit>
#include <CorvelGui/PClickableLabel>
#include <CorvelGui/PColorButton>
#include <CorvelGui/PColorComboBox>
#include <CorvelGui/PErrorLabel>
#include <CorvelGui/PFileCheckLineEdit>
#include <CorvelGui/PFilterButton>
#include <CorvelGui/PIpLineEdit>
#include <CorvelGui/PLastActionToolButton>
#include <CorvelGui/PRecentComboBox>
#include <CorvelGui/PStringComboBox>
#include <CorvelGui/PTextEdit>
#include <CorvelGui/SubNetMaskComboBox>
#include <CorvelGui/ToolBarWithLabel>
#include <CorvelGui/UrlLineEdit>
#include <Hueloft/PIconHelper>

#include <QMenu>

using namespace CorvelGui;
using Hueloft::PIconHelper;

namespace {

constexpr QSize fieldSize(150, 0);

template <typename Field>
void showField(Sheet& sheet, const QString& name, const QString& good, const QString& bad)
{
    for (const QString& text : {good, bad}) {
        auto* field = new Field;
        field->setText(text);
        sheet.show(name, field, fieldSize);
    }
}

FilterLineEdit* filterField(const QString& text)
{
    auto* field = new FilterLineEdit;
    field->setText(text);
    return field;
}

} // namespace

void Scenes::lineEdits(Sheet& sheet)
{
    showField<IpLineEdit>(sheet, u"address"_s, u"192.168.1.20"_s, u"192.168.001.020"_s);
    showField<CountryCodeLineEdit>(sheet, u"country"_s, u"DE"_s, u"Germany"_s);
    showField<NotEmptyLineEdit>(sheet, u"not empty"_s, u"Gate"_s, QString());
    showField<UrlLineEdit>(sheet, u"server"_s, u"rtsp://10.0.0.5"_s, u"mailto:a@example.org"_s);
    showField<PIpLineEdit>(sheet, u"older address"_s, u"10.0.0.1"_s, u"10.0.0."_s);
    showField<PFileCheckLineEdit>(sheet, u"file"_s, u"/etc/hostname"_s, u"missing.txt"_s);
    for (const QString& text : {u"camera"_s, u"no"_s}) {
        auto* field = new InputLengthLineEdit;
        field->setInputLengthRange(3, 8);
        field->setText(text);
        sheet.show(u"length"_s, field, fieldSize);
    }
    sheet.show(u"focused"_s, new NotEmptyLineEdit, fieldSize, focus);
    sheet.show(u"disabled"_s, new NotEmptyLineEdit, fieldSize, disable);
    auto* unchecked = new NotEmptyLineEdit;
    unchecked->setValidationActive(false);
    sheet.show(u"switched off"_s, unchecked, fieldSize);

    sheet.show(u"filter"_s, filterField({}), fieldSize);
    sheet.show(u"filter with text"_s, filterField(u"entrance"_s), fieldSize);
    sheet.show(u"mirrored filter"_s, filterField(u"entrance"_s), fieldSize, mirror);
    sheet.show(u"disabled filter"_s, filterField(u"entrance"_s), fieldSize, disable);
    sheet.show(u"high filter"_s, filterField(u"entrance"_s), {150, 36});
    sheet.showAt(2, u"filter at scale 2"_s, filterField(u"in"_s), {75, 0});
    for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        auto* edit = new FancyLineEdit;
        edit->setLayoutDirection(direction);
        edit->setText(u"/var/lib/rec"_s);
        const QSize iconSize(32, 32);
        edit->setButtonPixmap(FancyLineEdit::Left,
                              PIconHelper::GetSettingsIconOriginal_32x32(false).pixmap(iconSize));
        edit->setButtonPixmap(FancyLineEdit::Right,
                              PIconHelper::GetOpenIcon_32x32(false).pixmap(iconSize));
        edit->setButtonVisible(FancyLineEdit::Left, true);
        edit->setButtonVisible(FancyLineEdit::Right, true);
        edit->setButtonFocusPolicy(FancyLineEdit::Left, Qt::TabFocus);
        edit->setButtonMenu(FancyLineEdit::Left, new QMenu(edit));
        sheet.show(u"buttons"_s, edit, fieldSize, [](FancyLineEdit& shown) {
            focus(*shown.findChildren<QAbstractButton*>().constFirst());
        });
    }
}

void Scenes::smallInputs(Sheet& sheet)
{
    auto* colors = new PColorComboBox;
    colors->addThemeColors();
    colors->setCurrentColor(QColor(60, 144, 224));
    sheet.show(u"colours"_s, colors);
    auto* own = new PColorComboBox;
    own->addThemeColors();
    own->setOtherColors(true);
    own->setCurrentColor(QColor(120, 80, 40, 128));
    sheet.show(u"other colour"_s, own);
    sheet.show(u"closed list"_s, new PColorComboBox, {}, [&](PColorComboBox& box) {
        box.addThemeColors();
        box.showPopup();
        sheet.grab(u"list of colours"_s, *box.view());
        box.hidePopup();
    });
    auto* strings = new PStringComboBox;
    strings->setEntries({{u"rtsp"_s, u"Stream (RTSP)"_s}, {u"file"_s, u"Recordings"_s}});
    sheet.show(u"strings"_s, strings);
    auto* recent = new PRecentComboBox;
    recent->setRecentTexts({u"10.20.0.7"_s, u"nvr-hall.example"_s});
    recent->setEditText(u"nvr-"_s);
    sheet.show(u"recent"_s, recent, {150, 0});
    sheet.show(u"mask"_s, new SubNetMaskComboBox);

    for (const QColor& color : {QColor(222, 120, 20), QColor(60, 144, 224, 110)}) {
        auto* button = new PColorButton;
        button->setAlphaEnabled(true);
        button->setColor(color);
        sheet.show(u"colour button"_s, button);
    }
    sheet.show(u"disabled colour button"_s, new PColorButton, {}, disable);

    for (const QStringList& checked : {QStringList(), QStringList{u"motion"_s, u"door"_s}}) {
        for (const bool isEnabled : {true, false}) {
            auto* filters = new PFilterButton;
            filters->setFilters({{u"motion"_s, u"Motion"_s}, {u"door"_s, u"Door"_s}});
            filters->setCheckedFilters(checked);
            filters->setEnabled(isEnabled);
            sheet.show(u"filters"_s, filters);
        }
    }
    auto* large = new PFilterButton;
    large->setFilters({{u"motion"_s, u"Motion"_s}});
    large->setCheckedFilters({u"motion"_s});
    large->setIconSize({32, 32});
    sheet.showAt(2, u"filters, at scale 2"_s, large, {});

    auto* last = new PLastActionToolButton;
    last->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    last->menu()->addAction(PIconHelper::GetCopyIcon_32x32(true), u"&Copy"_s);
    last->menu()->addAction(PIconHelper::GetOpenIcon_32x32(true), u"&Open…"_s);
    sheet.show(u"last action"_s, last);

    const auto error = [](const QString& shown) {
        auto* label = new PErrorLabel;
        label->setError(shown);
        return label;
    };
    for (const int width : {300, 150})
        sheet.show(u"error"_s, error(u"The camera “Hall” does not answer. Check its address."_s),
                   {width, 0});
    sheet.show(u"mirrored error"_s, error(u"No answer"_s), {150, 0}, mirror);
    sheet.showAt(2, u"larger error at scale 2"_s, error(u"No answer"_s), {100, 0},
                 [](QWidget& label) {
                     QFont font = label.font();
                     font.setPointSize(14);
                     label.setFont(font);
                 });
    const QString text = u"Show the error"_s;
    sheet.show(u"clickable"_s, new PClickableLabel(text));
    sheet.show(u"clickable, focus"_s, new PClickableLabel(text), {}, focus);
    sheet.show(u"clickable, under the mouse"_s, new PClickableLabel(text), {}, hover);
    sheet.show(u"clickable, disabled"_s, new PClickableLabel(text), {}, disable);

    for (const int most : {140, 24}) {
        auto* note = new PTextEdit;
        note->setMaximumLength(most);
        note->setPlainText(u"Open from 7 to 9, see https://tickets.example/17"_s);
        sheet.show(u"note"_s, note, {190, 70});
    }
    auto* bar = new ToolBarWithLabel(u"Cameras"_s, nullptr);
    bar->addLabel(u"Cameras"_s, QColor(60, 144, 224));
    bar->addLabel(u"Roof"_s, QColor(222, 120, 20, 10));
    bar->addAction(PIconHelper::GetPlusIcon_32x32(true), u"Add"_s);
    sheet.show(u"tool bar"_s, bar, {300, 0});
}
