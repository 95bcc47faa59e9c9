#include "pfilechecklineedit.h"

#include "typedfile.h"

#include <Hueloft/POrvGuiTheme>

#include <QDir>

namespace CorvelGui {

PFileCheckLineEdit::PFileCheckLineEdit(QWidget* parent)
    : QLineEdit(parent), m_normalPalette(palette())
{
    const QColor red = Hueloft::POrvGuiTheme::statusRed();
    m_errorPalette.setColor(QPalette::Base, red);
    // The text of the look need not stand out from a red that is made to stand out from its base.
    m_errorPalette.setColor(QPalette::Text, qGray(red.rgb()) < 128 ? Qt::white : Qt::black);
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
