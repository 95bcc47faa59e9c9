#include "pfilechecklineedit.h"

#include "typedfile.h"

#include <Hueloft/POrvGuiTheme>

#include <QDir>

namespace CorvelGui {

PFileCheckLineEdit::PFileCheckLineEdit(QWidget* parent)
    : QLineEdit(parent), m_normalPalette(palette())
{
    m_errorPalette.setColor(QPalette::Base, Hueloft::POrvGuiTheme::statusRed());
    connect(this, &QLineEdit::textChanged, this, &PFileCheckLineEdit::slotFileNameChanged);
}

PFileCheckLineEdit::~PFileCheckLineEdit() = default;

void PFileCheckLineEdit::slotFileNameChanged(const QString& text)
{
    const QFileInfo file = typedFile(text);
    if (!file.isFile()) {
        setPalette(m_errorPalette);
        return;
    }
    setPalette(m_normalPalette);
    m_directory = file.dir().path();
}

} // namespace CorvelGui
