// SPDX-License-Identifier: MIT
#include "commandline.h"

#include "footage/pathpattern.h"
#include "look/languages.h"

#include <Corvel/TimeZoneHelper>

#include <QCommandLineParser>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace Review {

namespace {

/// What is left without the options that the toolkit takes for itself when it opens a display. They
/// are read here before there is one.
QStringList withoutToolkitOptions(const QStringList& arguments)
{
    static const QStringList flags{u"reverse"_s, u"widgetcount"_s};
    static const QStringList withValue{u"display"_s,
                                       u"geometry"_s,
                                       u"icon"_s,
                                       u"platform"_s,
                                       u"platformpluginpath"_s,
                                       u"platformtheme"_s,
                                       u"plugin"_s,
                                       u"qwindowgeometry"_s,
                                       u"qwindowicon"_s,
                                       u"qwindowtitle"_s,
                                       u"session"_s,
                                       u"style"_s,
                                       u"stylesheet"_s,
                                       u"title"_s};
    QStringList left;
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        static const QRegularExpression option(u"^--?([a-z]+)(=.*)?$"_s);
        const QRegularExpressionMatch match = option.match(arguments[i]);
        if (withValue.contains(match.captured(1)))
            i += match.hasCaptured(2) ? 0 : 1;
        else if (!flags.contains(match.captured(1)))
            left.append(arguments[i]);
    }
    return left;
}

} // namespace

CommandLine::Outcome CommandLine::parse(const QStringList& arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        tr("Shows recordings on a timeline. Without files it shows a sample.\n"
           "Files are CSV with a header line; times are ISO 8601 with Z or an offset."));
    const QCommandLineOption help = parser.addHelpOption();
    const QCommandLineOption version = parser.addVersionOption();
    parser.addOptions(options());
    parser.addPositionalArgument(
        u"paths"_s,
        tr("A folder with those CSV files, or with a folder of clips and pictures per "
           "camera; or single clips and pictures."),
        u"[paths...]"_s);
    const bool parsed = parser.parse(withoutToolkitOptions(arguments));
    if (parsed && parser.isSet(help)) {
        m_message = parser.helpText();
        return Outcome::Answered;
    }
    if (parsed && parser.isSet(version)) {
        m_message = QCoreApplication::applicationName() + u' ' +
                    QCoreApplication::applicationVersion() + u'\n';
        return Outcome::Answered;
    }
    m_message = parsed ? takeArguments(parser) : parser.errorText();
    return m_message.isEmpty() ? Outcome::Run : Outcome::Refused;
}

// In the order of the help.
QList<QCommandLineOption> CommandLine::options()
{
    const QString file = tr("file");
    return {
        {u"recordings"_s,
         tr("Recorded spans, in the columns camera, begin, end and, for those with pictures, file "
            "and "
            "offset: seconds into the file at begin."),
         file},
        {u"events"_s,
         tr("Events, in the columns time, kind, text and, if there are any, camera, duration in "
            "seconds and severity."),
         file},
        {u"deployments"_s,
         tr("Periods in which the cameras were in service, in the columns camera, begin, end. "
            "Without one, a camera was from its first to its last recording."),
         file},
        {u"pattern"_s,
         tr("How the paths of clips and pictures say when they were recorded, such as "
            "{camera}/{yyyy}-{MM}-{dd}/{HH}/{mm}.{ss}.mp4. Without one, the common ways are "
            "known."),
         tr("pattern")},
        {u"follow"_s, tr("Follows what is being recorded.")},
        {u"zone"_s, tr("Time zone, such as Europe/Brussels."), tr("name")},
        {u"look"_s, tr("Look of the window: dark or light."), tr("look")},
        {u"language"_s, tr("Language of the window: de or en."), tr("key")},
        {u"settings"_s, tr("File that keeps the settings. Default: the one of this user."), file},
        {u"picture"_s, tr("Writes a PNG picture of the window and exits."), file},
        {u"size"_s, tr("Size of the window, such as 1200x700."), tr("size")}};
}

// Returns what is wrong with them, or an empty string.
QString CommandLine::takeArguments(const QCommandLineParser& parser)
{
    const QStringList paths = parser.positionalArguments();
    for (const QString& option : parser.optionNames()) {
        if (option != "follow"_L1 && parser.value(option).isEmpty())
            return tr("The option --%1 needs a value.").arg(option);
    }

    ReviewFiles& files = m_arguments.files;
    if (!paths.isEmpty())
        files = ReviewFiles::named(paths);
    for (const auto& [option, file] :
         {std::pair(u"recordings"_s, &files.recordings), std::pair(u"events"_s, &files.events),
          std::pair(u"deployments"_s, &files.deployments)}) {
        if (parser.isSet(option))
            *file = parser.value(option);
    }
    files.pattern = parser.value(u"pattern"_s);
    if (!files.pattern.isEmpty() && !PathPattern(files.pattern).isValid())
        return tr("Bad pattern “%1”: it needs {yyyy}, {MM} and {dd}, and {camera} at most once.")
            .arg(files.pattern);
    m_arguments.follow = parser.isSet(u"follow"_s);
    m_arguments.picture = parser.value(u"picture"_s);
    m_arguments.settings = parser.value(u"settings"_s);
    if (const QString zone = parser.value(u"zone"_s); !zone.isEmpty()) {
        if (Corvel::TimeZoneHelper::getTimeZone(zone).isEmpty())
            return tr("Unknown time zone “%1”.").arg(zone);
        m_arguments.zone = zone;
    }
    if (const QString look = parser.value(u"look"_s); !look.isEmpty()) {
        if (look != "dark"_L1 && look != "light"_L1)
            return tr("Unknown look “%1”: it is dark or light.").arg(look);
        m_arguments.dark = look == "dark"_L1;
    }
    if (const QString language = parser.value(u"language"_s); !language.isEmpty()) {
        if (!Languages::keys().contains(language))
            return tr("Unknown language “%1”: it is de or en.").arg(language);
        m_arguments.language = language;
    }
    const QString size = parser.value(u"size"_s);
    return size.isEmpty() ? QString() : takeSize(size);
}

QString CommandLine::takeSize(const QString& text)
{
    constexpr QSize smallest(480, 300);
    constexpr QSize largest(8'000, 8'000);
    static const QRegularExpression pattern(u"^([0-9]{1,5})x([0-9]{1,5})$"_s);
    const QRegularExpressionMatch match = pattern.match(text);
    const QSize size(match.captured(1).toInt(), match.captured(2).toInt());
    if (size.boundedTo(largest).expandedTo(smallest) != size) {
        return tr("Bad size “%1”: it is WIDTHxHEIGHT, from %2x%3 to %4x%5.")
            .arg(text)
            .arg(smallest.width())
            .arg(smallest.height())
            .arg(largest.width())
            .arg(largest.height());
    }
    m_arguments.size = size;
    return {};
}

} // namespace Review
