// SPDX-License-Identifier: MIT
#include "csvdialogpage.h"

#include <CorvelGui/PCsvDialog>

#include <QDir>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QTreeWidget>

using CorvelGui::PCsvDialog;
using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

QTreeWidget* events()
{
    auto* tree = new QTreeWidget;
    tree->setHeaderLabels({u"Time"_s, u"Kind"_s, u"Text"_s});
    tree->setSelectionMode(QAbstractItemView::ExtendedSelection);
    const QString kinds[] = {u"Motion"_s, u"Door"_s, u"Alarm"_s};
    for (int hour = 8; hour < 20; ++hour) {
        auto* item = new QTreeWidgetItem(tree, {u"%1:15"_s.arg(hour, 2, 10, QLatin1Char('0')),
                                                kinds[hour % 3], u"Entrance north"_s});
        item->setSelected(hour % 4 == 0);
    }
    return tree;
}

/// The dialog as a part of the page; it goes away when it is accepted or rejected.
PCsvDialog* embedded(QTreeWidget* list, const QString& fileName)
{
    auto* dialog = new PCsvDialog;
    dialog->setWindowFlags(Qt::Widget);
    dialog->InitWithTreeWidget(list);
    dialog->findChild<QLineEdit*>(u"lineEditExportToFile"_s)->setText(fileName);
    return dialog;
}

} // namespace

CsvDialogPage::CsvDialogPage(QWidget* parent) : QWidget(parent)
{
    QTreeWidget* list = events();
    auto* open = new QPushButton(tr("Export…"));
    connect(open, &QPushButton::clicked, list, [list] {
        const QPointer<PCsvDialog> dialog(new PCsvDialog(list));
        dialog->exec();
        delete dialog;
    });

    const QString fileName = QDir::toNativeSeparators(QDir::temp().filePath(u"events.csv"_s));
    auto* grid = new QGridLayout(this);
    grid->setSpacing(16);
    grid->addWidget(list, 0, 0, 1, 2);
    grid->addWidget(open, 1, 0, Qt::AlignLeft);
    grid->addWidget(new QLabel(tr("Ready to export")), 2, 0);
    grid->addWidget(embedded(list, fileName), 3, 0);
    grid->addWidget(new QLabel(tr("Without a file")), 2, 1);
    grid->addWidget(embedded(list, QString()), 3, 1);
    grid->setRowStretch(0, 1);
}

} // namespace Gallery
