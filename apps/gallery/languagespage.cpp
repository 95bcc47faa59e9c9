// SPDX-License-Identifier: MIT
#include "languagespage.h"

#include <CorvelGui/PLanguage>
#include <CorvelGui/PLanguageDialog>

#include <QCoreApplication>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

using CorvelGui::PLanguage;
using CorvelGui::PLanguageDialog;
using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

// Beside the program in the build tree and in an installation alike.
QString translations()
{
    return QCoreApplication::applicationDirPath() + u"/../share/CorvelGui/translations"_s;
}

PLanguageDialog* createDialog(const QString& prefix, bool apply, QWidget* parent)
{
    auto* dialog = new PLanguageDialog(parent, prefix, translations(), u"de"_s, apply);
    dialog->addSupportedLanguageKey(u"de"_s);
    return dialog;
}

} // namespace

LanguagesPage::LanguagesPage(QWidget* parent) : QWidget(parent)
{
    auto* layout = new QVBoxLayout(this);
    const auto embed = [&](const QString& caption, const QString& prefix) {
        layout->addWidget(new QLabel(caption));
        PLanguageDialog* dialog = createDialog(prefix, false, this);
        const QSize size = dialog->size();
        dialog->setWindowFlags(Qt::Widget);
        dialog->setFixedSize(size.expandedTo(dialog->minimumSizeHint()));
        layout->addWidget(dialog);
        // Left to itself it looks later, too late for the pictures.
        QMetaObject::invokeMethod(dialog, "slotInitLanguages");
        // Its buttons must not take it off the page.
        connect(dialog, &QDialog::finished, dialog, &QWidget::show);
    };
    embed(tr("With a translation"), u"corvelgui"_s);
    embed(tr("Without any"), u"other"_s);

    auto* open = new QPushButton(tr("&Choose the language…"));
    connect(open, &QPushButton::clicked, this, [this] {
        auto* dialog = createDialog(u"corvelgui"_s, true, this);
        dialog->setAttribute(Qt::WA_DeleteOnClose);
        dialog->open();
    });
    auto* back = new QPushButton(tr("&Untranslated"));
    connect(back, &QPushButton::clicked, this,
            [this] { PLanguage::SetLanguage(this, QString(), translations()); });
    auto* row = new QHBoxLayout;
    row->addWidget(open);
    row->addWidget(back);
    row->addStretch();
    layout->addLayout(row);
    layout->addStretch();
}

} // namespace Gallery
