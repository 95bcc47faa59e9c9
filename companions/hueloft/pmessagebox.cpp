// SPDX-License-Identifier: MIT
#include "pmessagebox.h"

#include "iconshapes.h"
#include "porvguitheme.h"
#include "vectoricon.h"

#include <QLabel>
#include <QPainter>
#include <QPointer>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace Hueloft {

namespace {

constexpr qsizetype maxShownLength = 800;
constexpr qsizetype maxShownLines = 16;
constexpr qsizetype maxWordLength = 80;
constexpr int iconSize = 48;

QString shortened(const QString& text)
{
    QString shown = text.section(u'\n', 0, maxShownLines - 1);
    if (shown.size() > maxShownLength) {
        shown.truncate(maxShownLength);
        if (shown.back().isHighSurrogate())
            shown.chop(1);
    }
    return shown.size() == text.size() ? text : shown + u'\x2026';
}

// A label wraps at blanks only: a long path would make the box as wide as itself.
QString breakable(const QString& text)
{
    constexpr QChar zeroWidthSpace(0x200B);
    QString result;
    qsizetype wordLength = 0;
    for (const QChar character : text) {
        wordLength = character.isSpace() ? 0 : wordLength + 1;
        if (wordLength > maxWordLength && !character.isLowSurrogate() && !character.isMark()) {
            result += zeroWidthSpace;
            wordLength = 1;
        }
        result += character;
    }
    return result;
}

QPixmap symbol(QMessageBox::Icon kind, qreal devicePixelRatio)
{
    IconShape shape = IconShapes::information;
    QColor color = POrvGuiTheme::colorBlue;
    switch (kind) {
    case QMessageBox::Critical:
        shape = IconShapes::failure;
        color = POrvGuiTheme::statusRed();
        break;
    case QMessageBox::Warning:
        shape = IconShapes::warning;
        color = POrvGuiTheme::colorOrange;
        break;
    case QMessageBox::Question:
        shape = IconShapes::question;
        break;
    default:
        break;
    }

    const int side = qRound(iconSize * devicePixelRatio);
    QPixmap pixmap(side, side);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(shape(IconGrid(side)), color);
    painter.end();
    pixmap.setDevicePixelRatio(devicePixelRatio);
    return pixmap;
}

void setTexts(QMessageBox& box, const QString& text, const QString& informativeText,
              const QString& detailedText)
{
    const QString shownText = shortened(text);
    const QString shownInformation = shortened(informativeText);
    QStringList details;
    if (shownText != text)
        details << text;
    if (shownInformation != informativeText)
        details << informativeText;
    if (!detailedText.isEmpty())
        details << detailedText;

    box.setTextFormat(Qt::PlainText);
    box.setText(breakable(shownText));
    box.setInformativeText(breakable(shownInformation));
    // The text format of a message box does not reach its second label.
    if (auto* label = box.findChild<QLabel*>(u"qt_msgbox_informativelabel"_s))
        label->setTextFormat(Qt::PlainText);
    box.setDetailedText(details.join(u"\n\n"_s));
}

int ask(QMessageBox::Icon kind, QWidget* parent, const QString& title, const QString& text,
        QMessageBox::StandardButtons buttons, QMessageBox::StandardButton defaultButton,
        const QString& informativeText, const QString& detailedText)
{
    const QPointer<QMessageBox> box = new QMessageBox(kind, title, QString(), buttons, parent);
    setTexts(*box, text, informativeText, detailedText);
    box->setDefaultButton(defaultButton);
    box->setTextInteractionFlags(Qt::TextSelectableByMouse);
    // Only the picture is ours: the box keeps its kind, by which it sounds and speaks to assistive
    // technology.
    if (auto* label = box->findChild<QLabel*>(u"qt_msgboxex_icon_label"_s))
        label->setPixmap(symbol(kind, box->devicePixelRatioF()));

    const int pressed = box->exec();
    if (!box)
        return QMessageBox::NoButton;
    delete box;
    return pressed;
}

} // namespace

int PMessageBox::Critical(QWidget* parent, const QString& title, const QString& text,
                          QFlags<QMessageBox::StandardButton> buttons,
                          QMessageBox::StandardButton defaultButton, const QString& informativeText,
                          const QString& detailedText)
{
    return ask(QMessageBox::Critical, parent, title, text, buttons, defaultButton, informativeText,
               detailedText);
}

int PMessageBox::Warning(QWidget* parent, const QString& title, const QString& text,
                         QFlags<QMessageBox::StandardButton> buttons,
                         QMessageBox::StandardButton defaultButton, const QString& informativeText,
                         const QString& detailedText)
{
    return ask(QMessageBox::Warning, parent, title, text, buttons, defaultButton, informativeText,
               detailedText);
}

int PMessageBox::Information(QWidget* parent, const QString& title, const QString& text,
                             QFlags<QMessageBox::StandardButton> buttons,
                             QMessageBox::StandardButton defaultButton,
                             const QString& informativeText, const QString& detailedText)
{
    return ask(QMessageBox::Information, parent, title, text, buttons, defaultButton,
               informativeText, detailedText);
}

int PMessageBox::Question(QWidget* parent, const QString& title, const QString& text,
                          QMessageBox::StandardButton defaultButton, const QString& informativeText,
                          const QString& detailedText)
{
    return ask(QMessageBox::Question, parent, title, text, QMessageBox::Yes | QMessageBox::No,
               defaultButton, informativeText, detailedText);
}

} // namespace Hueloft
