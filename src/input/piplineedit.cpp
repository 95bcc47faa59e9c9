// SPDX-License-Identifier: MIT
#include "piplineedit.h"

#include "wrongentrysheet.h"

#include <QRegularExpressionValidator>

using namespace Qt::StringLiterals;

namespace CorvelGui {

namespace {

QRegularExpression dottedAddress()
{
    const QString octet = u"(?:[0-1]?[0-9]?[0-9]|2[0-4][0-9]|25[0-5])"_s;
    return QRegularExpression(u'^' + QStringList(4, octet).join("\\."_L1) + u'$');
}

} // namespace

struct PIpLineEdit::Private
{
    bool quietAtFirst = false;
    bool isTouched = false;
};

PIpLineEdit::PIpLineEdit(QWidget* parent) : QLineEdit(parent), d(std::make_unique<Private>())
{
    setValidator(new QRegularExpressionValidator(dottedAddress(), this));
    connect(this, &QLineEdit::textChanged, this, [this] { d->isTouched = true; });
    connect(this, &QLineEdit::textChanged, this, &PIpLineEdit::checkEntry);
    checkEntry({});
}

PIpLineEdit::~PIpLineEdit() = default;

void PIpLineEdit::checkEntry(const QString&)
{
    const bool quiet = d->quietAtFirst && !d->isTouched;
    markWrongEntry(this, !hasAcceptableInput() && !quiet);
}

bool PIpLineEdit::isQuietAtFirst() const
{
    return d->quietAtFirst;
}

void PIpLineEdit::setQuietAtFirst(bool quiet)
{
    d->quietAtFirst = quiet;
    checkEntry({});
}

} // namespace CorvelGui
