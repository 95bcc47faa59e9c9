// SPDX-License-Identifier: MIT
#include "fancylineeditspage.h"

#include <CorvelGui/FilterLineEdit>
#include <Hueloft/PIconHelper>

#include <QFormLayout>
#include <QMenu>

using CorvelGui::FancyLineEdit;
using CorvelGui::FilterLineEdit;
using Hueloft::PIconHelper;
using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

constexpr QSize iconSize(32, 32);

FilterLineEdit* createFilter(const QString& text)
{
    auto* filter = new FilterLineEdit;
    filter->setText(text);
    // Not faded in from nothing, so that pictures show the end of it.
    filter->setAutoHideButton(FancyLineEdit::Right, true);
    return filter;
}

template <typename Edit>
Edit* rightToLeft(Edit* edit)
{
    edit->setLayoutDirection(Qt::RightToLeft);
    return edit;
}

FancyLineEdit* createWithButtons()
{
    auto* edit = new FancyLineEdit;
    edit->setText(u"/var/lib/recordings"_s);
    edit->setButtonPixmap(FancyLineEdit::Left,
                          PIconHelper::GetSettingsIconOriginal_32x32(false).pixmap(iconSize));
    edit->setButtonToolTip(FancyLineEdit::Left, u"Options"_s);
    edit->setButtonVisible(FancyLineEdit::Left, true);
    edit->setButtonPixmap(FancyLineEdit::Right,
                          PIconHelper::GetOpenIcon_32x32(false).pixmap(iconSize));
    edit->setButtonToolTip(FancyLineEdit::Right, u"Open"_s);
    edit->setButtonVisible(FancyLineEdit::Right, true);

    auto* menu = new QMenu(edit);
    menu->addAction(u"Case sensitive"_s)->setCheckable(true);
    menu->addAction(u"Whole words"_s)->setCheckable(true);
    edit->setButtonMenu(FancyLineEdit::Left, menu);
    return edit;
}

} // namespace

FancyLineEditsPage::FancyLineEditsPage(QWidget* parent) : QWidget(parent)
{
    auto* form = new QFormLayout(this);
    form->setVerticalSpacing(16);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);

    const QString text = u"entrance"_s;
    form->addRow(tr("Filter"), createFilter(QString()));
    form->addRow(tr("With text"), createFilter(text));
    form->addRow(tr("Right to left"), rightToLeft(createFilter(text)));
    FilterLineEdit* disabled = createFilter(text);
    disabled->setEnabled(false);
    form->addRow(tr("Disabled"), disabled);
    FilterLineEdit* high = createFilter(text);
    high->setMinimumHeight(36);
    form->addRow(tr("High"), high);

    form->addRow(tr("Menu and button"), createWithButtons());
    form->addRow(tr("Right to left"), rightToLeft(createWithButtons()));
}

} // namespace Gallery
