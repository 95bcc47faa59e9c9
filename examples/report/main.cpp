// SPDX-License-Identifier: MIT
// A report with a table that goes over several pages: looked at, printed, and saved as PDF.
#include <CorvelGui/TextCursor>

#include <QApplication>
#include <QFileDialog>
#include <QLabel>
#include <QMessageBox>
#include <QProgressDialog>
#include <QPushButton>
#include <QVBoxLayout>

using CorvelGui::TextCursor;

int main(int argc, char** argv)
{
    QApplication app(argc, argv);

    QWidget window;
    window.setWindowTitle("Report");

    TextCursor report;
    report.insertTitle("Events of the week", "Gate and car park");
    report.insertKeyValues({{"From", "24 March 2026"}, {"To", "30 March 2026"}, {"Events", "200"}});
    report.insertHeading("Events", 2);
    TextCursor::Table table;
    table.header = QStringList{"Time", "Camera", "What happened"};
    table.widths = {2, 2, 5};
    table.rows = 200;
    table.row = [](qsizetype row) {
        const QTime time = QTime(6, 0).addSecs(int(row) * 311);
        return QList<TextCursor::Cell>{{.text = time.toString("hh:mm:ss")},
                                       {.text = row % 3 ? "Gate" : "Car park"},
                                       {.text = row % 7 ? "Motion" : "Gate opened"}};
    };
    report.insertTable(table);

    auto* page = new QLabel;
    page->setPixmap(QPixmap::fromImage(report.pageImage(0, 45)));
    auto* look = new QPushButton(QString("Look at %1 pages...").arg(report.pageCount()));
    auto* save = new QPushButton("Save as PDF...");
    auto* layout = new QVBoxLayout(&window);
    layout->addWidget(page);
    layout->addWidget(look);
    layout->addWidget(save);

    QObject::connect(look, &QPushButton::clicked, &window, [&] { report.preview(&window); });
    QObject::connect(save, &QPushButton::clicked, &window, [&] {
        const QString path = QFileDialog::getSaveFileName(&window, {}, {}, "PDF (*.pdf)");
        if (path.isEmpty())
            return;
        QProgressDialog progress("Saving...", "Cancel", 0, 0, &window);
        progress.setWindowModality(Qt::WindowModal);
        QObject::connect(&report, &TextCursor::progressed, &progress, [&](int done, int total) {
            progress.setMaximum(total);
            progress.setValue(done);
        });
        QObject::connect(&progress, &QProgressDialog::canceled, &report, &TextCursor::cancel);
        if (report.savePdf(path) == TextCursor::Outcome::Failed)
            QMessageBox::warning(&window, "Report", report.errorText());
    });

    window.show();
    return app.exec();
}
