// SPDX-License-Identifier: MIT
#include "countrycodelineedit.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace CorvelGui {

CountryCodeLineEdit::CountryCodeLineEdit(QWidget* parent) : ValidateBaseLineEdit(parent) {}

CountryCodeLineEdit::~CountryCodeLineEdit() = default;

void CountryCodeLineEdit::Validate()
{
    static const QRegularExpression code(QRegularExpression::anchoredPattern(u"^[A-Z]{2}$"_s));
    setError(!code.match(text()).hasMatch());
}

} // namespace CorvelGui
