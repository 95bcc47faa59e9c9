// SPDX-License-Identifier: MIT
// Looks for a newer release at a server, offers it, and downloads its installer. "./dev
// run-update-server" starts a server to try it with.
#include <CorvelGui/PCheckVersionUpdate>
#include <CorvelGui/PFractionalProgressBar>

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

using namespace CorvelGui;

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    app.setApplicationName("Example");
    const QString server = app.arguments().value(1, "http://127.0.0.1:8480/");

    QWidget window;
    window.setWindowTitle("Updates");
    auto* check = new QPushButton("Check for updates");
    auto* notes = new QPushButton("Show change log");
    auto* progress = new PFractionalProgressBar;
    auto* layout = new QVBoxLayout(&window);
    layout->addWidget(new QLabel("This is version 1.0. Updates come from " + server));
    layout->addWidget(check);
    layout->addWidget(notes);
    layout->addWidget(progress);
    progress->hide();

    // Of its own release channel and of the public server; here they are the same.
    PCheckVersionUpdate update(&window, "1.0", server, server + "internal/", false);
    QObject::connect(check, &QPushButton::clicked, &update, [&] {
        if (!update.isBusy())
            update.checkVersion(true);
    });
    QObject::connect(notes, &QPushButton::clicked, &update, &PCheckVersionUpdate::checkChangeLog);
    QObject::connect(&update, &PCheckVersionUpdate::signalDownloadProgress, progress,
                     [=](qint64 received, qint64 total) {
                         progress->setVisible(received != total || total < 0);
                         progress->setRange(0, total > 0 ? 1000 : 0);
                         progress->setValue(total > 0 ? int(1000 * received / total) : 0);
                     });

    window.show();
    return app.exec();
}
