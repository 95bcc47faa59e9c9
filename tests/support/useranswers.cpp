// SPDX-License-Identifier: MIT
#include "useranswers.h"

#include <QApplication>
#include <QDesktopServices>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QMetaEnum>
#include <QPlainTextEdit>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

constexpr const char* schemes[] = {"http", "https", "file"};

} // namespace

UserAnswers::UserAnswers()
{
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    for (const char* scheme : schemes)
        QDesktopServices::setUrlHandler(QString::fromLatin1(scheme), this, "open");
    connect(&m_timer, &QTimer::timeout, this, &UserAnswers::answer);
    m_timer.start(0);
}

UserAnswers::~UserAnswers()
{
    for (const char* scheme : schemes)
        QDesktopServices::unsetUrlHandler(QString::fromLatin1(scheme));
}

void UserAnswers::deleteAt(const QString& begin, QObject* object)
{
    before = [this, begin, object](const QDialog&) {
        if (m_said.last().startsWith(begin))
            delete object;
    };
}

void UserAnswers::answer()
{
    const QPointer<QDialog> dialog(qobject_cast<QDialog*>(QApplication::activeModalWidget()));
    if (!dialog || !dialog->isVisible() || dialog == m_answered)
        return;
    m_answered = dialog;
    const auto note = [&](const QString& kind, const QString& text) {
        m_said.append(kind + u": "_s + dialog->windowTitle() + u": "_s + text);
    };

    auto* box = qobject_cast<QMessageBox*>(dialog);
    auto* files = qobject_cast<QFileDialog*>(dialog);
    auto* message = dialog->findChild<QPlainTextEdit*>();
    if (!box && !files && !message)
        return; // none of those that wait for an answer
    const bool replaces = box && qobject_cast<QFileDialog*>(box->parent());
    if (replaces) {
        box->button(QMessageBox::Yes)->click();
        return;
    }
    if (box)
        note(QString::fromLatin1(QMetaEnum::fromType<QMessageBox::Icon>().valueToKey(box->icon())),
             box->text());
    else if (files)
        note(u"Save"_s, files->findChild<QLineEdit*>(u"fileNameEdit"_s)->text());
    else
        note(u"Offer"_s, message->toPlainText());

    if (before)
        before(*dialog);
    if (!dialog)
        return;
    if (box && box->button(QMessageBox::Yes)) {
        box->button(opensFolder ? QMessageBox::Yes : QMessageBox::No)->click();
    } else if (files && !savePath.isEmpty()) {
        files->findChild<QLineEdit*>(u"fileNameEdit"_s)->setText(savePath);
        // It asks again, in a loop of its own, before it replaces a file.
        QMetaObject::invokeMethod(files, "accept", Qt::QueuedConnection);
    } else {
        dialog->done(!files && (box || wantsDownload) ? QDialog::Accepted : QDialog::Rejected);
    }
}
