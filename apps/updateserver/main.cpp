// SPDX-License-Identifier: MIT
#include "options.h"
#include "updatesite.h"

#include <console.h>
#include <httpserver.h>

using namespace Qt::StringLiterals;

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    UpdateServer::Options options;
    switch (options.parse(QCoreApplication::arguments())) {
    case UpdateServer::Options::Outcome::Answered:
        Console::print(options.message);
        return 0;
    case UpdateServer::Options::Outcome::Refused:
        Console::printError(options.message + u'\n');
        return 2;
    case UpdateServer::Options::Outcome::Run:
        break;
    }

    LocalHttp::HttpServer server([&](const LocalHttp::Request& request) {
        Console::printError(QString::fromUtf8(request.method + ' ' + request.target + '\n'));
        const UpdateServer::UpdateSite site(options.offer, server.address({}).toString());
        return site.answer(request);
    });
    if (!server.start(options.port)) {
        Console::printError(server.errorString() + u'\n');
        return 1;
    }
    const QString base = server.address({}).toString();
    Console::printError(u"Version file channel: %1/\n"
                        "Internal channel:     %1/internal/\n"
                        "News feed:            %1/feed.xml\n"
                        "Update queries:       %1\n"_s.arg(base));
    return QCoreApplication::exec();
}
