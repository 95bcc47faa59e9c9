#include "inputlengthlineedit.h"

namespace CorvelGui {

InputLengthLineEdit::InputLengthLineEdit(QWidget* parent) : ValidateBaseLineEdit(parent) {}

InputLengthLineEdit::~InputLengthLineEdit() = default;

void InputLengthLineEdit::setInputLengthRange(int minimum, int maximum)
{
    m_minimumLength = minimum;
    m_maximumLength = maximum;
}

void InputLengthLineEdit::Validate()
{
    const qsizetype length = text().size();
    setError(length < m_minimumLength || length > m_maximumLength);
}

} // namespace CorvelGui
