#include "checkfilenamelineedit.h"

#include <QFileInfo>

namespace CorvelGui {

CheckFileNameLineEdit::CheckFileNameLineEdit(QWidget* parent) : ValidateBaseLineEdit(parent) {}

CheckFileNameLineEdit::~CheckFileNameLineEdit() = default;

void CheckFileNameLineEdit::Validate()
{
    setError(!QFileInfo::exists(text()));
}

} // namespace CorvelGui
