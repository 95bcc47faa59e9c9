// SPDX-License-Identifier: MIT
#include "pfilechecklineedit.h"

#include "typedfile.h"

#include <Hueloft/POrvGuiTheme>

#include <QDir>
#include <QEvent>

namespace CorvelGui {

struct PFileCheckLineEdit::Private
{
    bool isJudged = false;
    bool isWrong = false;
    QString directory; ///< of the last file that existed
};

PFileCheckLineEdit::PFileCheckLineEdit(QWidget* parent)
    : QLineEdit(parent), d(std::make_unique<Private>())
{
    connect(this, &QLineEdit::textChanged, this, &PFileCheckLineEdit::slotFileNameChanged);
}

PFileCheckLineEdit::~PFileCheckLineEdit() = default;

void PFileCheckLineEdit::changeEvent(QEvent* event)
{
    QLineEdit::changeEvent(event);
    // A style sheet that goes takes back the palette that it found.
    if (d->isJudged && event->type() == QEvent::StyleChange)
        showVerdict();
}

void PFileCheckLineEdit::slotFileNameChanged(const QString& text)
{
    const QFileInfo file = typedFile(text);
    d->isJudged = true;
    d->isWrong = !file.isFile();
    if (!d->isWrong)
        d->directory = file.dir().path();
    showVerdict();
}

void PFileCheckLineEdit::showVerdict()
{
    QPalette own; // what it leaves out is that of the look
    if (d->isWrong) {
        const QColor red = Hueloft::POrvGuiTheme::statusRed();
        own.setColor(QPalette::Base, red);
        // The text of the look need not stand out from a red made to stand out from its base.
        own.setColor(QPalette::Text, qGray(red.rgb()) < 128 ? Qt::white : Qt::black);
    }
    setPalette(own);
}

} // namespace CorvelGui
