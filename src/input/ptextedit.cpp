// SPDX-License-Identifier: MIT
#include "ptextedit.h"

#include "base/whilealive.h"
#include "weblinks.h"

#include <Hueloft/POrvGuiTheme>

#include <QAbstractTextDocumentLayout>
#include <QDesktopServices>
#include <QHelpEvent>
#include <QLabel>
#include <QLocale>
#include <QMimeData>
#include <QMouseEvent>
#include <QScrollBar>
#include <QSyntaxHighlighter>
#include <QTextBlock>
#include <QToolTip>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace CorvelGui {

namespace {

class LinkHighlighter : public QSyntaxHighlighter
{
public:
    explicit LinkHighlighter(QTextEdit* edit) : QSyntaxHighlighter(edit->document()), m_edit(edit)
    {}

protected:
    void highlightBlock(const QString& text) override
    {
        QTextCharFormat format;
        format.setFontUnderline(true);
        format.setForeground(m_edit->palette().color(QPalette::Link));
        for (const WebLink& link : webLinks(text))
            setFormat(int(link.begin), int(link.length), format);
    }

private:
    const QTextEdit* const m_edit;
};

/// The begin of @p text, with @p room characters at most, and no half of a pair at its end.
QString fitting(const QString& text, qsizetype room)
{
    room = std::max<qsizetype>(room, 0);
    if (room >= text.size())
        return text;
    const bool splits = room > 0 && text[room].isLowSurrogate();
    return text.first(splits ? room - 1 : room);
}

bool isEnter(const QKeyEvent& event)
{
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

/// Whether the key adds a character to the text. With Ctrl alone it is a shortcut, and with Alt as
/// well what AltGr types.
bool inserts(const QKeyEvent& event)
{
    if (event.matches(QKeySequence::InsertParagraphSeparator) ||
        event.matches(QKeySequence::InsertLineSeparator))
        return true;
    const bool isShortcut = (event.modifiers() & ~Qt::ShiftModifier) == Qt::ControlModifier;
    return !isShortcut && !event.text().isEmpty() && event.text().front().isPrint();
}

/// The address around a position of the document; empty without one.
QUrl addressAt(const QTextDocument& document, int position)
{
    const QTextBlock block = document.findBlock(position);
    const int place = position - block.position();
    const QString text = block.text();
    for (const WebLink& link : webLinks(text)) {
        if (place >= link.begin && place <= link.begin + link.length)
            return QUrl(text.mid(link.begin, link.length));
    }
    return {};
}

} // namespace

struct PTextEdit::Private
{
    int maximumLength = 0;
    bool openExternalLinks = false;
    QLabel* counter = nullptr;
    LinkHighlighter* links = nullptr;
};

PTextEdit::PTextEdit(QWidget* parent) : QTextEdit(parent), d(std::make_unique<Private>())
{
    setAcceptRichText(false);
    setTabChangesFocus(true);
    setMouseTracking(true);
    d->links = new LinkHighlighter(this);
    d->counter = new QLabel(this);
    d->counter->setAlignment(Qt::AlignTrailing | Qt::AlignVCenter);
    d->counter->setBackgroundRole(QPalette::Base);
    d->counter->setForegroundRole(QPalette::PlaceholderText);
    d->counter->setAutoFillBackground(true);
    d->counter->setContentsMargins(4, 0, 6, 2);
    d->counter->hide();
    connect(this, &QTextEdit::textChanged, this, &PTextEdit::keepLimit);
}

PTextEdit::~PTextEdit() = default;

int PTextEdit::maximumLength() const
{
    return d->maximumLength;
}

void PTextEdit::setMaximumLength(int length)
{
    length = std::max(length, 0);
    if (length == d->maximumLength)
        return;
    d->maximumLength = length;
    d->counter->setVisible(length > 0);
    placeCounter();
    if (whileAlive(this, [this] { keepLimit(); }))
        Q_EMIT maximumLengthChanged(length);
}

bool PTextEdit::openExternalLinks() const
{
    return d->openExternalLinks;
}

void PTextEdit::setOpenExternalLinks(bool open)
{
    if (open == d->openExternalLinks)
        return;
    d->openExternalLinks = open;
    Q_EMIT openExternalLinksChanged(open);
}

// The first receiver of textChanged(), so that no other sees a text that is too long. What users
// insert is cut before; this is for what a client sets.
void PTextEdit::keepLimit()
{
    const QString text = toPlainText();
    if (d->maximumLength == 0 || text.size() <= d->maximumLength) {
        showCount();
        return;
    }
    QTextCursor cut(document());
    cut.setPosition(int(fitting(text, d->maximumLength).size()));
    cut.movePosition(QTextCursor::End, QTextCursor::KeepAnchor);
    cut.removeSelectedText();
    document()->clearUndoRedoStacks(); // undone, the text would be too long
    Q_EMIT textCut();
}

/// As much of @p text as may be inserted at the cursor in place of some more characters.
QString PTextEdit::cutToRoom(const QString& text, int replaced)
{
    if (d->maximumLength == 0)
        return text;
    const QTextCursor cursor = textCursor();
    const qsizetype kept = toPlainText().size() - (cursor.selectionEnd() - cursor.selectionStart());
    return fitting(text, d->maximumLength - kept + replaced);
}

void PTextEdit::showCount()
{
    if (d->maximumLength == 0)
        return;
    const auto length = int(toPlainText().size());
    const QLocale locale;
    const QString used = locale.toString(length);
    const QString most = locale.toString(d->maximumLength);
    d->counter->setText(tr("%1 / %2").arg(used, most));
    setAccessibleDescription(tr("%1 of %2 characters").arg(used, most));
    QPalette colors; // otherwise those of the look
    if (length >= d->maximumLength)
        colors.setColor(d->counter->foregroundRole(), Hueloft::POrvGuiTheme::statusRed());
    d->counter->setPalette(colors);
}

void PTextEdit::placeCounter()
{
    const int height = d->maximumLength > 0 ? d->counter->sizeHint().height() : 0;
    setViewportMargins(0, 0, 0, height);
    const QRect text = viewport()->geometry();
    d->counter->setGeometry(text.left(), text.bottom() + 1, text.width(), height);
}

bool PTextEdit::viewportEvent(QEvent* event)
{
    if (event->type() == QEvent::ToolTip) {
        const auto* help = static_cast<QHelpEvent*>(event);
        if (linkAt(help->pos()).isValid()) {
            QToolTip::showText(help->globalPos(),
                               isReadOnly() ? tr("Click opens the address")
                                            : tr("Ctrl+click opens the address"),
                               viewport());
            return true;
        }
    }
    return QTextEdit::viewportEvent(event);
}

void PTextEdit::changeEvent(QEvent* event)
{
    QTextEdit::changeEvent(event);
    switch (event->type()) {
    case QEvent::PaletteChange:
    case QEvent::StyleChange:
        d->links->rehighlight();
        [[fallthrough]];
    case QEvent::LanguageChange:
    case QEvent::LocaleChange:
    case QEvent::FontChange:
        showCount();
        placeCounter();
        break;
    default:
        break;
    }
}

void PTextEdit::keyPressEvent(QKeyEvent* event)
{
    if (isEnter(*event) && (event->modifiers() & ~Qt::KeypadModifier) == Qt::ControlModifier) {
        const QUrl address = addressAt(*document(), textCursor().position());
        event->setAccepted(address.isValid()); // else the dialog around it may have it
        if (address.isValid())
            openLink(address);
        return;
    }
    if (!isReadOnly() && inserts(*event) && cutToRoom(u"x"_s).isEmpty()) {
        event->accept();
        Q_EMIT textCut();
        return;
    }
    QTextEdit::keyPressEvent(event);
}

void PTextEdit::inputMethodEvent(QInputMethodEvent* event)
{
    const QString committed = event->commitString();
    const QString taken = cutToRoom(committed, event->replacementLength());
    if (taken != committed)
        event->setCommitString(taken, event->replacementStart(), event->replacementLength());
    QTextEdit::inputMethodEvent(event);
    if (taken != committed)
        Q_EMIT textCut();
}

void PTextEdit::insertFromMimeData(const QMimeData* source)
{
    const QString text = source->text().replace(u"\r\n"_s, u"\n"_s);
    const QString taken = cutToRoom(text);
    insertPlainText(taken);
    ensureCursorVisible();
    if (taken != text)
        Q_EMIT textCut();
}

void PTextEdit::mouseMoveEvent(QMouseEvent* event)
{
    QTextEdit::mouseMoveEvent(event);
    const bool opens = opensByClick(*event) && linkAt(event->position().toPoint()).isValid();
    viewport()->setCursor(opens ? Qt::PointingHandCursor : Qt::IBeamCursor);
}

void PTextEdit::mouseReleaseEvent(QMouseEvent* event)
{
    QTextEdit::mouseReleaseEvent(event);
    // Who selects a link wants to copy it.
    if (event->button() != Qt::LeftButton || !opensByClick(*event) || textCursor().hasSelection())
        return;
    openLink(linkAt(event->position().toPoint()));
}

void PTextEdit::resizeEvent(QResizeEvent* event)
{
    QTextEdit::resizeEvent(event);
    placeCounter();
}

QUrl PTextEdit::linkAt(QPoint position) const
{
    const QPoint scrolled =
        position + QPoint(horizontalScrollBar()->value(), verticalScrollBar()->value());
    const int hit = document()->documentLayout()->hitTest(scrolled, Qt::ExactHit);
    return hit < 0 ? QUrl() : addressAt(*document(), hit);
}

bool PTextEdit::opensByClick(const QMouseEvent& event) const
{
    return isReadOnly() || event.modifiers().testFlag(Qt::ControlModifier);
}

void PTextEdit::openLink(const QUrl& address)
{
    if (!address.isValid())
        return;
    if (d->openExternalLinks)
        QDesktopServices::openUrl(address);
    else
        Q_EMIT linkActivated(address);
}

} // namespace CorvelGui
