// SPDX-License-Identifier: MIT
#include "options.h"

#include <QCommandLineParser>

using namespace Qt::StringLiterals;

namespace UpdateServer {

namespace {

constexpr qint64 largestInstaller = 500'000'000;

} // namespace

Options::Outcome Options::parse(const QStringList& arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        tr("Offers an update on this machine, to try the update checks with."));
    const QCommandLineOption help = parser.addHelpOption();
    const QCommandLineOption portOption(u"port"_s, tr("Port to listen on; 0 takes any."),
                                        tr("number"), QString::number(port));
    const QCommandLineOption version(u"offer"_s, tr("Version to offer."), tr("version"),
                                     offer.version.toString());
    const QCommandLineOption size(u"installer-size"_s, tr("Size of the installer."), tr("bytes"),
                                  QString::number(offer.installerSize));
    const QCommandLineOption internal(u"internal"_s,
                                      tr("Offers the internal release channel as well."));
    const QCommandLineOption how(u"misbehave"_s,
                                 tr("One of %1.").arg(LocalHttp::misbehaviourNames().join(u", "_s)),
                                 tr("how"), u"none"_s);
    const QCommandLineOption only(
        u"only"_s, tr("Misbehaves with one content only: %1.").arg(contentNames().join(u", "_s)),
        tr("content"));
    parser.addOptions({portOption, version, size, internal, how, only});

    const auto refuse = [this](const QString& text) {
        message = text;
        return Outcome::Refused;
    };
    if (!parser.parse(arguments))
        return refuse(parser.errorText());
    if (parser.isSet(help)) {
        message = parser.helpText();
        return Outcome::Answered;
    }
    if (const QStringList extra = parser.positionalArguments(); !extra.isEmpty())
        return refuse(tr("Unexpected argument “%1”.").arg(extra.first()));

    bool isNumber = false;
    port = parser.value(portOption).toUShort(&isNumber);
    if (!isNumber)
        return refuse(tr("Bad port “%1”.").arg(parser.value(portOption)));
    qsizetype end = 0;
    offer.version = QVersionNumber::fromString(parser.value(version), &end);
    if (offer.version.isNull() || end != parser.value(version).size())
        return refuse(tr("Bad version “%1”.").arg(parser.value(version)));
    offer.installerSize = parser.value(size).toLongLong(&isNumber);
    if (!isNumber || offer.installerSize < 0 || offer.installerSize > largestInstaller)
        return refuse(tr("Bad size “%1”.").arg(parser.value(size)));
    offer.internalChannel = parser.isSet(internal);
    const auto misbehaviour = LocalHttp::misbehaviourNamed(parser.value(how));
    if (!misbehaviour)
        return refuse(tr("Unknown misbehaviour “%1”.").arg(parser.value(how)));
    offer.misbehaviour = *misbehaviour;
    offer.only = parser.value(only);
    if (parser.isSet(only) && !contentNames().contains(offer.only))
        return refuse(tr("Unknown content “%1”.").arg(offer.only));
    return Outcome::Run;
}

} // namespace UpdateServer
