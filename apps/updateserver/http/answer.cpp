// SPDX-License-Identifier: MIT
#include "answer.h"

#include <algorithm>

namespace LocalHttp {

QByteArray Request::header(const QByteArray& name) const
{
    const auto found = std::ranges::find_if(headers, [&name](const Header& header) {
        return header.name.compare(name, Qt::CaseInsensitive) == 0;
    });
    return found == headers.end() ? QByteArray() : found->value;
}

Answer Answer::ok(const QByteArray& body, const QByteArray& type)
{
    return {.headers = {{"Content-Type", type}}, .body = body, .announcedLength = {}};
}

Answer Answer::error(int status, const QByteArray& reason)
{
    Answer answer = ok(reason + '\n');
    answer.status = status;
    answer.reason = reason;
    return answer;
}

Answer Answer::redirect(const QByteArray& location)
{
    Answer answer = error(302, "Found");
    answer.headers.append({"Location", location});
    return answer;
}

QByteArray Answer::head() const
{
    QByteArray text = "HTTP/1.1 " + QByteArray::number(status) + ' ' + reason + "\r\n";
    for (const Header& header : headers)
        text += header.name + ": " + header.value + "\r\n";
    if (const qint64 length = announcedLength.value_or(body.size()); length >= 0)
        text += "Content-Length: " + QByteArray::number(length) + "\r\n";
    return text + "Connection: close\r\n\r\n";
}

} // namespace LocalHttp
