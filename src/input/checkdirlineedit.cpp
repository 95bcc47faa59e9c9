#include "checkdirlineedit.h"

#include <QFileInfo>

namespace CorvelGui {

CheckDirLineEdit::CheckDirLineEdit(QWidget* parent) : ValidateBaseLineEdit(parent) {}

CheckDirLineEdit::~CheckDirLineEdit() = default;

void CheckDirLineEdit::Validate()
{
    setError(!QFileInfo(text()).isDir());
}

} // namespace CorvelGui
