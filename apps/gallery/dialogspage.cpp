// SPDX-License-Identifier: MIT
#include "dialogspage.h"

#include <CorvelGui/PAskRefreshDialog>
#include <CorvelGui/PIpRangeDialog>
#include <CorvelGui/PPasswordInputDialog>

#include <QDateTime>
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

/// Runs the dialog and deletes it. The parent may be gone before.
template <typename Dialog>
QString resultOf(Dialog* created, QString (*describe)(const Dialog& dialog, bool accepted))
{
    const QPointer<Dialog> dialog(created);
    const bool accepted = dialog->exec() == QDialog::Accepted;
    if (!dialog)
        return {};
    const QString result = describe(*dialog, accepted);
    delete dialog;
    return result;
}

QString askIpRange(QWidget* parent)
{
    return resultOf<PIpRangeDialog>(new PIpRangeDialog(parent), [](const PIpRangeDialog& dialog,
                                                                   bool accepted) {
        return accepted ? u"%1 /%2"_s.arg(dialog.getIp()).arg(dialog.getMask()) : u"Cancelled"_s;
    });
}

QString askPassword(QWidget* parent)
{
    return resultOf<PPasswordInputDialog>(new PPasswordInputDialog(u"corvel"_s, parent),
                                          [](const PPasswordInputDialog& dialog, bool accepted) {
                                              if (!accepted)
                                                  return u"Cancelled"_s;
                                              return dialog.useEncryptPasswordNextTime()
                                                         ? u"Right, to be remembered"_s
                                                         : u"Right"_s;
                                          });
}

QString askRefresh(QWidget* parent)
{
    const QDateTime lastUpdate(QDate(2024, 3, 30), QTime(7, 15));
    return resultOf<PAskRefreshDialog>(new PAskRefreshDialog(parent, lastUpdate, true),
                                       [](const PAskRefreshDialog& dialog, bool accepted) {
                                           return (accepted ? u"Refresh"_s : u"No refresh"_s) +
                                                  (dialog.ShowNextTime() ? u", ask again"_s
                                                                         : u", do not ask again"_s);
                                       });
}

struct Entry
{
    QString title;
    QString (*open)(QWidget* parent); ///< shows the dialog and says what came of it
};

const Entry entries[] = {
    {u"IP range"_s, askIpRange},
    {u"Password (\"corvel\")"_s, askPassword},
    {u"Ask for refresh"_s, askRefresh},
};

} // namespace

DialogsPage::DialogsPage(QWidget* parent) : QWidget(parent)
{
    auto* grid = new QGridLayout(this);
    grid->setHorizontalSpacing(16);
    int row = 0;
    for (const Entry& entry : entries) {
        auto* button = new QPushButton(entry.title);
        auto* result = new QLabel(tr("Not opened yet"));
        result->setTextFormat(Qt::PlainText);
        connect(button, &QPushButton::clicked, result, [this, &entry, shown = QPointer(result)] {
            const QString text = entry.open(this);
            if (shown)
                shown->setText(text);
        });
        grid->addWidget(button, row, 0);
        grid->addWidget(result, row, 1);
        ++row;
    }
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(row, 1);
}

} // namespace Gallery
