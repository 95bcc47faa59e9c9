// SPDX-License-Identifier: MIT
#include "pictures.h"

#include "console.h"
#include "gallerywindow.h"
#include "pages.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QEventLoop>
#include <QPixmap>
#include <QProcess>
#include <QProcessEnvironment>
#include <QWindow>

using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

void complain(const QString& message)
{
    Console::printError(u"corvel-gallery: %1\n"_s.arg(message));
}

bool showAndWait(GalleryWindow& window)
{
    window.show();
    window.activateWindow();
    const QDeadlineTimer deadline(10'000);
    while (!window.windowHandle()->isExposed() && !deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 50);
    return window.windowHandle()->isExposed();
}

// Styles and layouts settle over several rounds of events.
void settle()
{
    for (int round = 0; round < 5; ++round) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
}

} // namespace

bool writePictures(GalleryWindow& window, const QList<int>& pageIndexes, const QString& folder)
{
    if (!QDir().mkpath(folder)) {
        complain(u"cannot make the folder %1"_s.arg(folder));
        return false;
    }
    if (!showAndWait(window)) {
        complain(u"the window did not appear"_s);
        return false;
    }
    const QSize pictureSize = window.size();
    const int scale = qRound(window.devicePixelRatioF());
    for (const bool dark : {true, false}) {
        window.setDark(dark);
        for (const int index : pageIndexes) {
            window.resize(pictureSize);
            window.showPage(index);
            settle();
            window.growToPage();
            settle();
            const QString path = QDir(folder).filePath(
                u"%1-%2-%3x.png"_s
                    .arg(pages()[size_t(index)].title.toLower().replace(u' ', u'-'),
                         dark ? u"dark"_s : u"light"_s)
                    .arg(scale));
            if (!window.grab().save(path, "PNG")) {
                complain(u"cannot write %1"_s.arg(path));
                return false;
            }
        }
    }
    return true;
}

bool writePicturesAtEveryScale(const QStringList& arguments)
{
    for (const int scale : {1, 2}) {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        // The screen's own scale must not multiply ours.
        environment.insert(u"QT_ENABLE_HIGHDPI_SCALING"_s, u"0"_s);
        environment.insert(u"QT_SCALE_FACTOR"_s, QString::number(scale));

        QProcess process;
        process.setProcessEnvironment(environment);
        process.setProcessChannelMode(QProcess::ForwardedChannels);
        process.start(QCoreApplication::applicationFilePath(),
                      arguments + QStringList{u"--"_s + QLatin1StringView(oneScaleOption)});
        if (!process.waitForFinished(120'000) || process.exitStatus() != QProcess::NormalExit ||
            process.exitCode() != 0) {
            complain(u"no pictures at scale %1"_s.arg(scale));
            return false;
        }
    }
    return true;
}

} // namespace Gallery
