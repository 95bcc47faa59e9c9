// SPDX-License-Identifier: MIT
// The dialogs of the library: a table that is exported as CSV, a range of addresses, a password,
// and a question at the start.
#include <CorvelGui/PAskRefreshDialog>
#include <CorvelGui/PCsvDialog>
#include <CorvelGui/PIpRangeDialog>
#include <CorvelGui/PPasswordInputDialog>
#include <CorvelGui/PTableWidget>

#include <QApplication>
#include <QDateTime>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

using namespace CorvelGui;

int main(int argc, char** argv)
{
    QApplication app(argc, argv);

    QWidget window;
    window.setWindowTitle("Dialogs");
    auto* table = new PTableWidget(3, 2);
    table->setHorizontalHeaderLabels({"Camera", "Address"});
    table->horizontalHeader()->setStretchLastSection(true);
    const QStringList names{"Gate", "Car park", "Roof"};
    for (int row = 0; row < names.size(); ++row) {
        table->setItem(row, 0, new QTableWidgetItem(names[row]));
        table->setItem(row, 1, new QTableWidgetItem(QString("10.0.0.%1").arg(2 + row)));
    }
    auto* answer = new QLabel;
    auto* layout = new QVBoxLayout(&window);
    layout->addWidget(table);
    layout->addWidget(answer);
    const auto add = [&](const QString& text, const auto& run) {
        auto* button = new QPushButton(text);
        layout->addWidget(button);
        QObject::connect(button, &QPushButton::clicked, &window, run);
    };

    add("Export all rows...", [&] {
        table->selectAll(); // what is not selected is not written
        PCsvDialog dialog(table);
        answer->setText(dialog.exec() == QDialog::Accepted ? "Exported" : "Not exported");
    });
    add("Range of addresses...", [&] {
        PIpRangeDialog dialog(&window);
        dialog.setMask(24);
        if (dialog.exec() == QDialog::Accepted)
            answer->setText(QString("%1 / %2").arg(dialog.getIp()).arg(dialog.getMask()));
    });
    add("Password (\"secret\")...", [&] {
        PPasswordInputDialog dialog("secret", &window);
        const bool known = dialog.exec() == QDialog::Accepted;
        answer->setText(!known                                ? "Given up"
                        : dialog.useEncryptPasswordNextTime() ? "Known, to be remembered"
                                                              : "Known");
    });
    add("Refresh?", [&] {
        PAskRefreshDialog dialog(&window, QDateTime::currentDateTime().addDays(-1), true);
        const bool now = dialog.exec() == QDialog::Accepted;
        answer->setText(QString("%1, %2").arg(
            now ? "Refresh" : "Later", dialog.ShowNextTime() ? "ask again" : "never ask again"));
    });

    window.show();
    return app.exec();
}
