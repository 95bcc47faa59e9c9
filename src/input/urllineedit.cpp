#include "urllineedit.h"

#include <Corvel/UrlChecker>

namespace CorvelGui {

UrlLineEdit::UrlLineEdit(QWidget* parent) : ValidateBaseLineEdit(parent) {}

UrlLineEdit::~UrlLineEdit() = default;

QString UrlLineEdit::getHost()
{
    return m_host;
}

int UrlLineEdit::getPort() const
{
    return m_port;
}

void UrlLineEdit::Validate()
{
    setError(!Corvel::UrlChecker::IsUrlValid(text(), m_host, m_port));
}

} // namespace CorvelGui
