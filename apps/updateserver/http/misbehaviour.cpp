// SPDX-License-Identifier: MIT
#include "misbehaviour.h"

using namespace Qt::StringLiterals;

namespace LocalHttp {

QStringList misbehaviourNames()
{
    return {u"none"_s, u"never"_s, u"slow"_s,          u"endless"_s,       u"cut"_s,   u"length"_s,
            u"404"_s,  u"500"_s,   u"redirect-loop"_s, u"redirect-file"_s, u"portal"_s};
}

std::optional<Misbehaviour> misbehaviourNamed(const QString& name)
{
    const qsizetype index = misbehaviourNames().indexOf(name);
    return index < 0 ? std::nullopt : std::optional(Misbehaviour(index));
}

Answer misbehave(Misbehaviour how, const Request& request, Answer answer)
{
    const qint64 length = answer.body.size();
    switch (how) {
    case Misbehaviour::None:
        break;
    case Misbehaviour::Never:
        answer.pace = Answer::Pace::Never;
        break;
    case Misbehaviour::Slow:
        answer.pace = Answer::Pace::Slow;
        break;
    case Misbehaviour::Endless:
        answer.pace = Answer::Pace::Endless;
        answer.announcedLength = -1;
        break;
    case Misbehaviour::Cut:
        answer.announcedLength = length;
        answer.body.truncate(length / 2);
        break;
    case Misbehaviour::Length:
        answer.announcedLength = length + 1;
        break;
    case Misbehaviour::NotFound:
        return Answer::error(404, "Not Found");
    case Misbehaviour::ServerError:
        return Answer::error(500, "Internal Server Error");
    case Misbehaviour::RedirectLoop:
        return Answer::redirect(request.target);
    case Misbehaviour::RedirectFile:
        return Answer::redirect("file:///etc/hostname");
    case Misbehaviour::Portal:
        return Answer::ok("<html><body><h1>Welcome to our guest network</h1></body></html>",
                          "text/html");
    }
    return answer;
}

} // namespace LocalHttp
