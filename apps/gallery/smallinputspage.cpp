// SPDX-License-Identifier: MIT
#include "smallinputspage.h"

#include <CorvelGui/PClickableLabel>
#include <CorvelGui/PColorButton>
#include <CorvelGui/PColorComboBox>
#include <CorvelGui/PErrorLabel>
#include <CorvelGui/PFilterButton>
#include <CorvelGui/PLastActionToolButton>
#include <CorvelGui/PRecentComboBox>
#include <CorvelGui/PStringComboBox>
#include <CorvelGui/PTextEdit>
#include <Hueloft/PIconHelper>

#include <QFormLayout>
#include <QHBoxLayout>
#include <QMenu>

using namespace CorvelGui;
using namespace Qt::StringLiterals;
using Hueloft::PIconHelper;

namespace Gallery {

namespace {

template <typename... Widgets>
QHBoxLayout* row(Widgets*... widgets)
{
    auto* layout = new QHBoxLayout;
    layout->setSpacing(8);
    (layout->addWidget(widgets), ...);
    layout->addStretch();
    return layout;
}

} // namespace

SmallInputsPage::SmallInputsPage(QWidget* parent) : QWidget(parent)
{
    auto* layout = new QVBoxLayout(this);
    auto* form = new QFormLayout;
    layout->addLayout(form);
    layout->addStretch();
    form->setVerticalSpacing(14);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    addBoxes(*form);
    addButtons(*form);
    addTexts(*form);
}

void SmallInputsPage::addBoxes(QFormLayout& form)
{
    auto* colors = new PColorComboBox;
    colors->addThemeColors();
    colors->setOtherColors(true);
    colors->setCurrentColor(QColor(60, 144, 224));
    auto* own = new PColorComboBox;
    own->addThemeColors();
    own->setCurrentColor(QColor(120, 80, 40));
    form.addRow(tr("Colours"), row(colors, own));

    auto* protocol = new PStringComboBox;
    protocol->setEntries({{u"rtsp"_s, tr("Stream (RTSP)")},
                          {u"http"_s, tr("Pictures (HTTP)")},
                          {u"file"_s, tr("Recordings")}});
    auto* key = new QLabel(protocol->currentKey());
    connect(protocol, &PStringComboBox::currentKeyChanged, key, &QLabel::setText);
    form.addRow(tr("Strings"), row(protocol, key));

    auto* recent = new PRecentComboBox;
    recent->setRecentTexts({u"10.20.0.7"_s, u"nvr-hall.example"_s, u"192.168.1.20"_s});
    recent->setEditText(u"nvr-"_s);
    form.addRow(tr("Recent entries"), recent);
}

void SmallInputsPage::addButtons(QFormLayout& form)
{
    auto* color = new PColorButton;
    color->setColor(QColor(222, 120, 20));
    auto* glass = new PColorButton;
    glass->setAlphaEnabled(true);
    glass->setColor(QColor(60, 144, 224, 110));
    auto* disabled = new PColorButton;
    disabled->setEnabled(false);
    form.addRow(tr("Colour buttons"), row(color, glass, disabled));

    const QList<PFilterButton::Filter> kinds{
        {u"motion"_s, tr("Motion")}, {u"alarm"_s, tr("Alarm")}, {u"door"_s, tr("Door")}};
    auto* idle = new PFilterButton;
    idle->setFilters(kinds);
    auto* active = new PFilterButton;
    active->setFilters(kinds);
    active->setCheckedFilters({u"motion"_s, u"door"_s});
    form.addRow(tr("Filters"), row(idle, active));

    auto* last = new PLastActionToolButton;
    last->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    auto* done = new QLabel;
    for (const auto& [icon, text] :
         {std::pair(PIconHelper::GetCopyIcon_32x32(true), tr("&Copy")),
          std::pair(PIconHelper::GetCopyRowsIcon_32x32(true), tr("Copy &rows")),
          std::pair(PIconHelper::GetOpenIcon_32x32(true), tr("&Open…"))})
        last->menu()->addAction(icon, text);
    connect(last->menu(), &QMenu::triggered, done,
            [done](const QAction* action) { done->setText(action->iconText()); });
    form.addRow(tr("Last action"), row(last, done));
}

void SmallInputsPage::addTexts(QFormLayout& form)
{
    auto* error = new PErrorLabel;
    error->setError(tr("The camera “Hall” does not answer. Check its address."));
    auto* label = new PClickableLabel(tr("Show or hide the error"));
    connect(label, &PClickableLabel::clicked, error, [error, text = error->error()] {
        error->setError(error->error().isEmpty() ? text : QString());
    });
    form.addRow(tr("Clickable label"), row(label));
    form.addRow(tr("Error label"), error);

    auto* note = new PTextEdit;
    note->setMaximumLength(140);
    note->setOpenExternalLinks(true);
    note->setPlainText(tr("The gate was open from 7 to 9, see "
                          "https://tickets.example/gate/17 (ask the porter)."));
    auto* full = new PTextEdit;
    full->setMaximumLength(24);
    full->setPlainText(tr("No more than this fits in."));
    for (PTextEdit* edit : {note, full})
        edit->setFixedHeight(84);
    form.addRow(tr("Text edit"), note);
    form.addRow(tr("At its limit"), full);
}

} // namespace Gallery
