// SPDX-License-Identifier: MIT
#include "helperspage.h"

#include <CorvelGui/StringHelper>
#include <CorvelGui/ToolBarWithLabel>
#include <CorvelGui/ToolShellHelper>
#include <Hueloft/POrvGuiTheme>

#include <QCoreApplication>
#include <QDir>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

#include <algorithm>
#include <functional>
#include <limits>

using CorvelGui::StringHelper;
using CorvelGui::ToolBarWithLabel;
using CorvelGui::ToolShellHelper;
using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

QLabel* createResult()
{
    auto* label = new QLabel;
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    return label;
}

QGroupBox* createTexts()
{
    constexpr qsizetype fewCharacters = 24;
    auto* group = new QGroupBox(HelpersPage::tr("A text"));
    auto* form = new QFormLayout(group);
    auto* text = new QLineEdit;
    form->addRow(HelpersPage::tr("Any text"), text);
    const std::pair<QString, std::function<QString(const QString&)>> results[] = {
        {HelpersPage::tr("Elided in the middle"),
         [](const QString& typed) {
             return StringHelper::elidedInMiddle(typed, fewCharacters);
         }},
        {HelpersPage::tr("As a file name"),
         [](const QString& typed) {
             return StringHelper::safeFileName(typed, u"file"_s);
         }},
        {HelpersPage::tr("In a tooltip"), &StringHelper::plainToolTip},
        {HelpersPage::tr("On a button"), &StringHelper::plainLabel}};
    for (const auto& [caption, result] : results) {
        QLabel* label = createResult();
        form->addRow(caption, label);
        QObject::connect(text, &QLineEdit::textChanged, label,
                         [label, result](const QString& typed) { label->setText(result(typed)); });
    }
    text->setText(u"Gate <north> & yard: 2026-03-02 \"night\".mp4"_s);
    return group;
}

QGroupBox* createOrder()
{
    auto* group = new QGroupBox(HelpersPage::tr("Names in natural order"));
    auto* layout = new QHBoxLayout(group);
    auto* typed = new QPlainTextEdit;
    typed->setTabChangesFocus(true);
    typed->setAccessibleName(HelpersPage::tr("Names, one per line"));
    auto* sorted = new QPlainTextEdit;
    sorted->setReadOnly(true);
    sorted->setTabChangesFocus(true);
    sorted->setAccessibleName(HelpersPage::tr("Names in natural order"));
    for (QPlainTextEdit* edit : {typed, sorted}) {
        edit->setMinimumHeight(130);
        layout->addWidget(edit);
    }
    QObject::connect(typed, &QPlainTextEdit::textChanged, sorted, [typed, sorted] {
        QStringList names = typed->toPlainText().split(u'\n');
        std::ranges::sort(names, [order = StringHelper::naturalOrder()](
                                     const QString& a, const QString& b) { return order(a, b); });
        sorted->setPlainText(names.join(u'\n'));
    });
    typed->setPlainText(u"Camera 10\ncamera 2\nÜbergang\nCamera 1\nTor\nYard"_s);
    return group;
}

QGroupBox* createNumbers()
{
    auto* group = new QGroupBox(HelpersPage::tr("Numbers"));
    auto* form = new QFormLayout(group);
    const auto add = [form](const QString& caption, int value, QString (*text)(qint64)) {
        auto* number = new QSpinBox;
        number->setRange(0, std::numeric_limits<int>::max());
        number->setGroupSeparatorShown(true);
        QLabel* label = createResult();
        auto* row = new QHBoxLayout;
        row->addWidget(number);
        row->addWidget(label, 1);
        form->addRow(caption, row);
        QObject::connect(number, &QSpinBox::valueChanged, label,
                         [label, text](int changed) { label->setText(text(changed)); });
        number->setValue(value);
        label->setText(text(value));
    };
    add(HelpersPage::tr("Bytes"), 1'536'000, &StringHelper::size);
    add(HelpersPage::tr("Milliseconds"), 93'784'000, &StringHelper::duration);
    return group;
}

QGroupBox* createDesktop(QWidget* page)
{
    auto* group = new QGroupBox(HelpersPage::tr("The desktop"));
    auto* form = new QFormLayout(group);
    auto* path = new QLineEdit(QDir::toNativeSeparators(QCoreApplication::applicationFilePath()));
    form->addRow(HelpersPage::tr("File or folder"), path);
    auto* show = new QPushButton(HelpersPage::tr("Show in folder"));
    auto* open = new QPushButton(HelpersPage::tr("Open"));
    QLabel* outcome = createResult();
    auto* row = new QHBoxLayout;
    row->addWidget(show);
    row->addWidget(open);
    row->addWidget(outcome, 1);
    form->addRow(row);
    const auto tell = [outcome](bool done) {
        outcome->setText(done ? HelpersPage::tr("Done.") : HelpersPage::tr("No program shows it."));
    };
    QObject::connect(show, &QPushButton::clicked, page, [path, outcome, tell] {
        outcome->setText(HelpersPage::tr("The file manager is asked…"));
        ToolShellHelper::showInFolder(path->text(), outcome, tell);
    });
    QObject::connect(open, &QPushButton::clicked, page,
                     [path, tell] { tell(ToolShellHelper::openDocument(path->text())); });
    return group;
}

QGroupBox* createToolBar()
{
    auto* group = new QGroupBox(HelpersPage::tr("A tool bar with a label at its end"));
    auto* bar = new ToolBarWithLabel(HelpersPage::tr("Cameras"), nullptr);
    bar->addAction(HelpersPage::tr("Add"));
    bar->addAction(HelpersPage::tr("Remove"));
    bar->addLabel(HelpersPage::tr("Live"), Hueloft::POrvGuiTheme::colorLightRed);
    auto* layout = new QVBoxLayout(group);
    layout->addWidget(bar);
    return group;
}

} // namespace

HelpersPage::HelpersPage(QWidget* parent) : QWidget(parent)
{
    auto* layout = new QVBoxLayout(this);
    layout->setSpacing(16);
    layout->addWidget(createTexts());
    layout->addWidget(createOrder());
    layout->addWidget(createNumbers());
    layout->addWidget(createDesktop(this));
    layout->addWidget(createToolBar());
    layout->addStretch();
}

} // namespace Gallery
