#include "validatebaselineedit.h"

#include "wrongentrysheet.h"

namespace CorvelGui {

ValidateBaseLineEdit::ValidateBaseLineEdit(QWidget* parent) : QLineEdit(parent)
{
    connect(this, &QLineEdit::textChanged, this, &ValidateBaseLineEdit::slotChanged);
    connect(this, &QLineEdit::textEdited, this, &ValidateBaseLineEdit::slotChanged);
}

ValidateBaseLineEdit::~ValidateBaseLineEdit() = default;

bool ValidateBaseLineEdit::isValid() const
{
    return !m_validationActive || !m_error;
}

void ValidateBaseLineEdit::setValidationActive(bool active)
{
    m_validationActive = active;
    slotChanged();
}

bool ValidateBaseLineEdit::validationActive() const
{
    return m_validationActive;
}

void ValidateBaseLineEdit::setError(bool error)
{
    m_error = error;
    markWrongEntry(this, m_error && m_validationActive);
    update();
}

void ValidateBaseLineEdit::slotChanged()
{
    if (!m_validationActive)
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
