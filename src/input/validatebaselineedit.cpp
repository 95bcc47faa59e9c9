// SPDX-License-Identifier: MIT
#include "validatebaselineedit.h"

#include "wrongentrysheet.h"

namespace CorvelGui {

struct ValidateBaseLineEdit::Private
{
    bool error = false;
    bool validationActive = true;
    bool quietAtFirst = false;
    bool isTouched = false;
};

ValidateBaseLineEdit::ValidateBaseLineEdit(QWidget* parent)
    : QLineEdit(parent), d(std::make_unique<Private>())
{
    connect(this, &QLineEdit::textChanged, this, [this] { d->isTouched = true; });
    connect(this, &QLineEdit::textChanged, this, &ValidateBaseLineEdit::slotChanged);
    connect(this, &QLineEdit::textEdited, this, &ValidateBaseLineEdit::slotChanged);
}

ValidateBaseLineEdit::~ValidateBaseLineEdit() = default;

bool ValidateBaseLineEdit::isValid() const
{
    return !d->validationActive || !d->error;
}

void ValidateBaseLineEdit::setValidationActive(bool active)
{
    d->validationActive = active;
    slotChanged();
}

bool ValidateBaseLineEdit::validationActive() const
{
    return d->validationActive;
}

void ValidateBaseLineEdit::setError(bool error)
{
    d->error = error;
    showVerdict();
    update();
}

bool ValidateBaseLineEdit::isQuietAtFirst() const
{
    return d->quietAtFirst;
}

void ValidateBaseLineEdit::setQuietAtFirst(bool quiet)
{
    d->quietAtFirst = quiet;
    showVerdict();
}

void ValidateBaseLineEdit::showVerdict()
{
    const bool quiet = d->quietAtFirst && !d->isTouched;
    markWrongEntry(this, d->error && d->validationActive && !quiet);
}

void ValidateBaseLineEdit::slotChanged()
{
    if (!d->validationActive)
        return;
    Validate();
    Q_EMIT signalValidate(isValid());
}

void ValidateBaseLineEdit::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    slotChanged();
}

} // namespace CorvelGui
