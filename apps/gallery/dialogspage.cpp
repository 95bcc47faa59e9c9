// SPDX-License-Identifier: MIT
#include "dialogspage.h"

#include <CorvelGui/PAskRefreshDialog>
#include <CorvelGui/PIpRangeDialog>
#include <CorvelGui/PPasswordInputDialog>

#include <QDateTime>
#include <QDialog>
#include <QGridLayout>
#include <QLabel>
#include <QPointer>
#include <QPushButton>

using CorvelGui::PAskRefreshDialog;
using CorvelGui::PIpRangeDialog;
using CorvelGui::PPasswordInputDialog;
using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

/// What came of a dialog that was accepted or not.
using Description = QString (*)(const QDialog& dialog, bool accepted);

struct Entry
{
    QString title;
    QDialog* (*create)(QWidget* parent);
    Description describe;
};

const Entry entries[] = {
    {u"IP range"_s, [](QWidget* parent) -> QDialog* { return new PIpRangeDialog(parent); },
     [](const QDialog& dialog, bool accepted) {
         const auto& range = static_cast<const PIpRangeDialog&>(dialog);
         return accepted ? u"%1 /%2"_s.arg(range.getIp()).arg(range.getMask()) : u"Cancelled"_s;
     }},
    {u"Password (\"corvel\")"_s,
     [](QWidget* parent) -> QDialog* { return new PPasswordInputDialog(u"corvel"_s, parent); },
     [](const QDialog& dialog, bool accepted) {
         const auto& password = static_cast<const PPasswordInputDialog&>(dialog);
         if (!accepted)
             return u"Cancelled"_s;
         return password.useEncryptPasswordNextTime() ? u"Right, to be remembered"_s : u"Right"_s;
     }},
    {u"Ask for refresh"_s,
     [](QWidget* parent) -> QDialog* {
         return new PAskRefreshDialog(parent, QDateTime(QDate(2024, 3, 30), QTime(7, 15)), true);
     },
     [](const QDialog& dialog, bool accepted) {
         const bool again = static_cast<const PAskRefreshDialog&>(dialog).ShowNextTime();
         return (accepted ? u"Refresh"_s : u"No refresh"_s) +
                (again ? u", ask again"_s : u", do not ask again"_s);
     }},
};

} // namespace

DialogsPage::DialogsPage(QWidget* parent) : QWidget(parent)
{
    auto* grid = new QGridLayout(this);
    grid->setSpacing(16);
    int row = 0;
    for (const Entry& entry : entries) {
        auto* button = new QPushButton(entry.title);
        auto* result = new QLabel(tr("Not answered yet"));
        result->setTextFormat(Qt::PlainText);
        connect(button, &QPushButton::clicked, result, [this, &entry, result] {
            const QPointer shown(result);
            const QPointer dialog(entry.create(this));
            const bool accepted = dialog->exec() == QDialog::Accepted;
            if (shown && dialog)
                result->setText(entry.describe(*dialog, accepted));
            delete dialog;
        });

        QDialog* part = entry.create(this);
        part->setWindowFlags(Qt::Widget);
        // Its buttons must not take it off the page.
        connect(part, &QDialog::finished, result, [part, result, &entry](int code) {
            result->setText(entry.describe(*part, code == QDialog::Accepted));
            part->show();
        });
        grid->addWidget(button, row, 0, Qt::AlignTop);
        grid->addWidget(part, row, 1, Qt::AlignTop);
        grid->addWidget(result, row, 2, Qt::AlignTop);
        ++row;
    }
    grid->setColumnStretch(2, 1);
    grid->setRowStretch(row, 1);
}

} // namespace Gallery
