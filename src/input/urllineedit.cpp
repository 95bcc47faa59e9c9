// SPDX-License-Identifier: MIT
#include "urllineedit.h"

#include <Corvel/UrlChecker>

namespace CorvelGui {

struct UrlLineEdit::Private
{
    QString host;
    int port = 0;
};

UrlLineEdit::UrlLineEdit(QWidget* parent)
    : ValidateBaseLineEdit(parent), d(std::make_unique<Private>())
{}

UrlLineEdit::~UrlLineEdit() = default;

QString UrlLineEdit::getHost()
{
    return d->host;
}

int UrlLineEdit::getPort() const
{
    return d->port;
}

void UrlLineEdit::Validate()
{
    setError(!Corvel::UrlChecker::IsUrlValid(text(), d->host, d->port));
}

} // namespace CorvelGui
