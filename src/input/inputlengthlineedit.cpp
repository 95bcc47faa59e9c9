// SPDX-License-Identifier: MIT
#include "inputlengthlineedit.h"

namespace CorvelGui {

struct InputLengthLineEdit::Private
{
    int minimumLength = 0;
    int maximumLength = 0;
};

InputLengthLineEdit::InputLengthLineEdit(QWidget* parent)
    : ValidateBaseLineEdit(parent), d(std::make_unique<Private>())
{}

InputLengthLineEdit::~InputLengthLineEdit() = default;

void InputLengthLineEdit::setInputLengthRange(int minimum, int maximum)
{
    d->minimumLength = minimum;
    d->maximumLength = maximum;
}

int InputLengthLineEdit::minimumInputLength() const
{
    return d->minimumLength;
}

void InputLengthLineEdit::setMinimumInputLength(int minimum)
{
    d->minimumLength = minimum;
}

int InputLengthLineEdit::maximumInputLength() const
{
    return d->maximumLength;
}

void InputLengthLineEdit::setMaximumInputLength(int maximum)
{
    d->maximumLength = maximum;
}

void InputLengthLineEdit::Validate()
{
    const qsizetype length = text().size();
    setError(length < d->minimumLength || length > d->maximumLength);
}

} // namespace CorvelGui
