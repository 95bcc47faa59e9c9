// SPDX-License-Identifier: MIT
// Entries that judge what is typed: "Save" waits for all of them. A range of addresses has a
// dialog.
#include <CorvelGui/CheckDirLineEdit>
#include <CorvelGui/IpLineEdit>
#include <CorvelGui/NotEmptyLineEdit>
#include <CorvelGui/PBaseDialog>
#include <CorvelGui/PIpRangeDialog>
#include <CorvelGui/UrlLineEdit>

#include <QApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QFormLayout>
#include <QPushButton>

#include <algorithm>

using namespace CorvelGui;

int main(int argc, char** argv)
{
    QApplication app(argc, argv);

    PBaseDialog dialog;
    dialog.setWindowTitle("Recorder");
    dialog.resize(420, 0);
    auto* name = new NotEmptyLineEdit;
    auto* address = new IpLineEdit;
    auto* server = new UrlLineEdit;
    auto* folder = new CheckDirLineEdit;
    auto* range = new QPushButton("Choose...");
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Save | QDialogButtonBox::Cancel);
    auto* form = new QFormLayout(&dialog);
    form->addRow("Name:", name);
    form->addRow("Address:", address);
    form->addRow("Web interface:", server);
    form->addRow("Folder:", folder);
    form->addRow("Cameras:", range);
    form->addRow(buttons);

    const QList<ValidateBaseLineEdit*> entries{name, address, server, folder};
    const auto judge = [=] {
        const bool valid = std::all_of(entries.begin(), entries.end(),
                                       [](const auto* entry) { return entry->isValid(); });
        buttons->button(QDialogButtonBox::Save)->setEnabled(valid);
    };
    for (ValidateBaseLineEdit* entry : entries)
        QObject::connect(entry, &ValidateBaseLineEdit::signalValidate, buttons, judge);
    name->setText("Gate");
    address->setText("192.168.0.20");
    server->setText("http://192.168.0.20/");
    folder->setText(QDir::homePath());

    QObject::connect(range, &QPushButton::clicked, &dialog, [&] {
        PIpRangeDialog addresses(&dialog);
        if (addresses.exec() == QDialog::Accepted)
            range->setText(QString("%1 / %2").arg(addresses.getIp()).arg(addresses.getMask()));
    });
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);

    dialog.show();
    return app.exec();
}
