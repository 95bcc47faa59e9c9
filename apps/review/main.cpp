// SPDX-License-Identifier: MIT
#include "console.h"
#include "look/languages.h"
#include "options/settingsstore.h"
#include "video/picturefile.h"
#include "window/clientoptions.h"
#include "window/commandline.h"
#include "window/reviewwindow.h"

#include <CorvelGui/IPasswordStore>

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QDir>
#include <QImage>
#include <QLoggingCategory>
#include <QPixmap>

#include <optional>

using namespace Qt::StringLiterals;
using namespace Review;

namespace {

enum ExitCode { Success = 0, Failure = 1, BadUsage = 2 };

int fail(ExitCode code, const QString& message)
{
    Console::printError(QCoreApplication::applicationName() + u": "_s + message + u'\n');
    return code;
}

// A picture shows the same on every machine.
QString settingsFile(const Arguments& arguments)
{
    if (!arguments.settings.isEmpty() || !arguments.picture.isEmpty())
        return arguments.settings;
    return SettingsStore::userFile();
}

/// What ends the program before it has a window: an answer, or a refusal.
std::optional<ExitCode> answer(CommandLine& commandLine, const QStringList& arguments)
{
    switch (commandLine.parse(arguments)) {
    case CommandLine::Outcome::Answered:
        Console::print(commandLine.message());
        return Success;
    case CommandLine::Outcome::Refused:
        return ExitCode(fail(BadUsage, commandLine.message()));
    case CommandLine::Outcome::Run:
        break;
    }
    return {};
}

ReviewSettings settingsFor(const Arguments& arguments, SettingsStore& store)
{
    ReviewSettings settings = store.settings();
    settings.zone = arguments.zone.value_or(settings.zone);
    settings.dark = arguments.dark.value_or(settings.dark);
    settings.language = arguments.language.value_or(settings.language);
    store.assume(settings);
    return settings;
}

int writePictureOf(QWidget& window, const QString& path)
{
    // What is asked for only by now, such as the place for lanes that have just appeared.
    QCoreApplication::sendPostedEvents();
    const QString error = writePicture(window.grab().toImage(), path);
    if (error.isEmpty())
        return Success;
    return fail(Failure, QApplication::translate("Review", "Cannot write %1: %2")
                             .arg(QDir::toNativeSeparators(path), error));
}

/// Leaves a picture of the window, once it shows what it loaded, and ends the program.
void takePicture(ReviewWindow& window, const Arguments& arguments)
{
    const auto finish = [&window, path = arguments.picture] {
        QApplication::exit(writePictureOf(window, path));
    };
    // Layouts and markers come to rest in several steps.
    const auto finishWhenIdle = [&window, finish] {
        QObject::connect(QAbstractEventDispatcher::instance(),
                         &QAbstractEventDispatcher::aboutToBlock, &window, finish,
                         Qt::ConnectionType(Qt::QueuedConnection | Qt::SingleShotConnection));
    };
    if (window.isBusy())
        QObject::connect(&window, &ReviewWindow::settled, &window, finishWhenIdle,
                         Qt::SingleShotConnection);
    else
        finishWhenIdle();
}

void begin(ReviewWindow& window, const Arguments& arguments)
{
    QObject::connect(
        &window, &ReviewWindow::loaded, &window,
        [&window, &arguments](const QString& error) {
            if (!error.isEmpty())
                return QApplication::exit(fail(BadUsage, error));
            // The sample looks best from close by; of a user's own files everything is shown.
            const bool isSample = arguments.files.isEmpty();
            if (isSample)
                window.showMiddleDay();
            if (arguments.follow)
                window.follow();
            if (!arguments.picture.isEmpty())
                takePicture(window, arguments);
            else if (isSample)
                window.play();
        },
        Qt::SingleShotConnection);
    window.load(arguments.files);
}

} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication::setApplicationName(u"corvel-review"_s);
    QCoreApplication::setApplicationVersion(QStringLiteral(CORVELGUI_VERSION));
    QGuiApplication::setDesktopFileName(QCoreApplication::applicationName());
    QLoggingCategory::setFilterRules(
        u"corvelgui.*.debug=false"_s); // which QT_LOGGING_RULES can undo
    CommandLine commandLine;
    {
        // Help and refusals need no display.
        const QCoreApplication console(argc, argv);
        Languages::useForPrinting();
        if (const auto code = answer(commandLine, QCoreApplication::arguments()))
            return *code;
    }
    const Arguments& arguments = commandLine.arguments();

    // The busy indicator has a native window; what it covers needs none.
    QCoreApplication::setAttribute(Qt::AA_DontCreateNativeWidgetSiblings);
    const QApplication application(argc, argv);
    SettingsStore store(settingsFile(arguments));
    const ReviewSettings settings = settingsFor(arguments, store);

    ReviewWindow window(settings.zone, settings.dark);
    window.setCenterPosAndResize();
    const auto passwords = CorvelGui::IPasswordStore::ofSystem(QCoreApplication::applicationName());
    const ClientOptions options(store, window, *passwords);
    if (!arguments.size.isEmpty())
        window.resize(arguments.size);
    else if (!arguments.picture.isEmpty())
        window.resize(1200, 700);
    window.show();
    begin(window, arguments);
    return QApplication::exec();
}
