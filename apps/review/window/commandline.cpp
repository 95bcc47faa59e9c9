#include "commandline.h"

#include "look/languages.h"

#include <Corvel/TimeZoneHelper>

#include <QCommandLineParser>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace Review {

CommandLine::Outcome CommandLine::parse(const QStringList& arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        tr("Shows recordings on a timeline. Without files it shows a sample.\n"
           "Files are CSV with a header line; times are ISO 8601 with Z or an offset."));
    const QCommandLineOption help = parser.addHelpOption();
    const QCommandLineOption version = parser.addVersionOption();
    const QCommandLineOption recordings(
        u"recordings"_s, tr("Recorded spans, in the columns track, begin, end."), tr("file"));
    const QCommandLineOption events(
        u"events"_s, tr("Events, in the columns time, kind, text and, if there is one, track."),
        tr("file"));
    const QCommandLineOption deployments(
        u"deployments"_s,
        tr("Periods in which the tracks are described, in the columns track, begin, end. A track "
           "without one is described from its first to its last recording."),
        tr("file"));
    const QCommandLineOption zone(u"zone"_s, tr("Time zone, such as Europe/Brussels."), tr("name"));
    const QCommandLineOption look(u"look"_s, tr("Look of the window: dark or light."), tr("look"));
    const QCommandLineOption language(u"language"_s, tr("Language of the window: de or en."),
                                      tr("key"));
    const QCommandLineOption settings(
        u"settings"_s, tr("File that keeps the settings. Default: the one of this user."),
        tr("file"));
    const QCommandLineOption picture(
        u"picture"_s, tr("Writes a PNG picture of the window and exits."), tr("file"));
    const QCommandLineOption size(u"size"_s, tr("Size of the window, such as 1200x700."),
                                  tr("size"));
    const QList<QCommandLineOption> options{recordings, events,   deployments, zone, look,
                                            language,   settings, picture,     size};
    parser.addOptions(options);

    const auto refuse = [this](const QString& message) {
        m_message = message;
        return Outcome::Refused;
    };
    const bool parsed = parser.parse(arguments);
    if (parsed && parser.isSet(help)) {
        m_message = parser.helpText();
        return Outcome::Answered;
    }
    if (parsed && parser.isSet(version)) {
        m_message = QCoreApplication::applicationName() + u' ' +
                    QCoreApplication::applicationVersion() + u'\n';
        return Outcome::Answered;
    }
    if (!parsed)
        return refuse(parser.errorText());
    if (const QStringList extra = parser.positionalArguments(); !extra.isEmpty())
        return refuse(tr("Unexpected argument “%1”.").arg(extra.first()));
    for (const QCommandLineOption& option : options) {
        if (parser.isSet(option) && parser.value(option).isEmpty())
            return refuse(tr("The option --%1 needs a value.").arg(option.names().first()));
    }

    m_arguments.files = {.recordings = parser.value(recordings),
                         .events = parser.value(events),
                         .deployments = parser.value(deployments)};
    m_arguments.picture = parser.value(picture);
    m_arguments.settings = parser.value(settings);
    if (parser.isSet(zone)) {
        m_arguments.zone = parser.value(zone);
        if (Corvel::TimeZoneHelper::getTimeZone(*m_arguments.zone).isEmpty())
            return refuse(tr("Unknown time zone “%1”.").arg(*m_arguments.zone));
    }
    if (parser.isSet(look)) {
        m_arguments.dark = parser.value(look) == "dark"_L1;
        if (!*m_arguments.dark && parser.value(look) != "light"_L1)
            return refuse(tr("Unknown look “%1”: it is dark or light.").arg(parser.value(look)));
    }
    if (parser.isSet(language)) {
        m_arguments.language = parser.value(language);
        if (!Languages::keys().contains(*m_arguments.language))
            return refuse(tr("Unknown language “%1”: it is de or en.").arg(*m_arguments.language));
    }
    if (parser.isSet(size)) {
        if (const QString fault = readSize(parser.value(size)); !fault.isEmpty())
            return refuse(fault);
    }
    return Outcome::Run;
}

QString CommandLine::readSize(const QString& text)
{
    constexpr QSize smallest(900, 300);
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
