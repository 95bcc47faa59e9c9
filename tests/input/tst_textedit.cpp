// SPDX-License-Identifier: MIT
#include "input/weblinks.h"
#include "testsupport.h"
#include "useranswers.h"

#include <CorvelGui/PTextEdit>

#include <QHelpEvent>
#include <QMimeData>
#include <QToolTip>

using namespace CorvelGui;

namespace {

class NoteEdit : public PTextEdit
{
public:
    using PTextEdit::insertFromMimeData;
};

} // namespace

class TestTextEdit : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void links()
    {
        const std::pair<QString, QStringList> rows[] = {
            {u"http:// https://a_b.example/x?y=1#z, http://10.0.0.1:81."_s,
             {u"https://a_b.example/x?y=1#z"_s, u"http://10.0.0.1:81"_s}},
            {u"(http://a.example/b_(c)) <HTTPS://b.example>\"http://c.example\""_s,
             {u"http://a.example/b_(c)"_s, u"HTTPS://b.example"_s, u"http://c.example"_s}},
            {u"[http://a.example/[b]] {http://b.example/x}.\u200bhttp://c.example\u0007)"_s,
             {u"http://a.example/[b]"_s, u"http://b.example/x"_s, u"http://c.example"_s}},
            {u"http,http://a.example/http://b.example"_s, {u"http://a.example/http://b.example"_s}},
            {u"javascript:http file:///etc xhttp://a.example http://-bad http://a..b"_s, {}},
            {u"http://"_s + QString(9000, u'a'), {}},
        };
        for (const auto& [text, expected] : rows) {
            QStringList found;
            for (const WebLink& link : webLinks(text))
                found.append(text.mid(link.begin, link.length));
            QCOMPARE(found, expected);
        }
    }

    void limit()
    {
        NoteEdit edit;
        edit.resize(400, 120);
        edit.show();
        const auto* counter = edit.findChild<QLabel*>(QString(), Qt::FindDirectChildrenOnly);
        const int whole = edit.viewport()->height();
        QVERIFY(!counter->isVisible());
        QSignalSpy cut(&edit, &PTextEdit::textCut);
        edit.setMaximumLength(10);
        bool sawTooLong = false;
        connect(&edit, &QTextEdit::textChanged, &edit,
                [&] { sawTooLong |= edit.toPlainText().size() > 10; });
        edit.setPlainText(u"01234567"_s);
        edit.moveCursor(QTextCursor::Start);
        QMimeData pasted;
        pasted.setHtml(u"<b>rich</b>"_s);
        edit.insertFromMimeData(&pasted);
        pasted.setText(u"\r\nabcd"_s);
        edit.insertFromMimeData(&pasted);
        QCOMPARE(edit.toPlainText(), u"\na01234567"_s);
        QInputMethodEvent input;
        input.setCommitString(u"\u4f60"_s, -1, 1);
        QCoreApplication::sendEvent(&edit, &input);
        input.setCommitString(u"\u4f60\u597d"_s);
        QCoreApplication::sendEvent(&edit, &input);
        QCOMPARE(edit.toPlainText(), u"\n\u4f6001234567"_s);
        QCOMPARE(cut.count(), 2);
        edit.moveCursor(QTextCursor::Right, QTextCursor::KeepAnchor);
        pasted.setText(u"xyz"_s);
        edit.insertFromMimeData(&pasted);
        QCOMPARE(edit.toPlainText(), u"\n\u4f60x1234567"_s);
        while (edit.document()->isUndoAvailable())
            edit.undo();
        QCOMPARE(edit.toPlainText(), u"01234567"_s);

        const auto counted = [&] {
            return counter->text() + u'|' + edit.accessibleDescription();
        };
        edit.setPlainText(u"012345678\U0001F600"_s);
        QCOMPARE(edit.toPlainText(), u"012345678"_s);
        QVERIFY(!edit.document()->isUndoAvailable());
        QCOMPARE(counted(), u"9 / 10|9 of 10 characters"_s);
        edit.setMaximumLength(4);
        QCOMPARE(edit.toPlainText(), u"0123"_s);
        QCOMPARE(counted(), u"4 / 4|4 of 4 characters"_s);
        QVERIFY(!sawTooLong);
        edit.setMaximumLength(-1);
        QCOMPARE(edit.maximumLength(), 0);
        QVERIFY(!counter->isVisible());
        QCOMPARE(edit.viewport()->height(), whole);
        edit.setPlainText(u"012345"_s);
        edit.insertFromMimeData(&pasted);
        QCOMPARE(edit.toPlainText().size(), 9);
    }

    /// A key does what it does in any field, or nothing where the text would become too long.
    void keys()
    {
        const std::pair<Qt::Key, Qt::KeyboardModifiers> keys[] = {
            {Qt::Key_X, {}},
            {Qt::Key_X, Qt::ShiftModifier},
            {Qt::Key_Q, Qt::AltModifier},
            {Qt::Key_Q, Qt::ControlModifier | Qt::AltModifier}, // as AltGr
            {Qt::Key_B, Qt::ControlModifier},
            {Qt::Key_B, Qt::ControlModifier | Qt::ShiftModifier},
            {Qt::Key_Return, {}},
            {Qt::Key_Enter, Qt::KeypadModifier},
            {Qt::Key_Return, Qt::ShiftModifier},
            {Qt::Key_Return, Qt::AltModifier},
            {Qt::Key_Left, {}},
            {Qt::Key_Right, Qt::ShiftModifier},
            {Qt::Key_Backspace, {}},
            {Qt::Key_Space, {}}};
        QRandomGenerator random(1);
        for (int step = 0; step < 600; ++step) {
            const auto [key, held] = keys[random.bounded(int(std::size(keys)))];
            NoteEdit edit;
            QTextEdit plain;
            edit.setMaximumLength(3);
            edit.setReadOnly(step % 10 == 0);
            plain.setReadOnly(edit.isReadOnly());
            const QString text = u"ab\n"_s.left(random.bounded(4));
            const int from = int(random.bounded(text.size() + 1));
            const int to = int(random.bounded(text.size() + 1));
            for (QTextEdit* field : {static_cast<QTextEdit*>(&edit), &plain}) {
                field->setPlainText(text);
                QTextCursor cursor = field->textCursor();
                cursor.setPosition(from);
                cursor.setPosition(to, QTextCursor::KeepAnchor);
                field->setTextCursor(cursor);
            }
            const QSignalSpy cut(&edit, &PTextEdit::textCut);
            QTest::keyClick(&edit, key, held);
            QTest::keyClick(&plain, key, held);
            const bool fits = plain.toPlainText().size() <= 3;
            QCOMPARE(edit.toPlainText(), fits ? plain.toPlainText() : text);
            QCOMPARE(cut.count(), fits ? 0 : 1);
            QVERIFY(fits || edit.textCursor().anchor() == from);
        }
    }

    void opening()
    {
        const UserAnswers user;
        NoteEdit edit;
        edit.resize(400, 120);
        edit.show();
        edit.setPlainText(u"x http://a.example y"_s);
        const QUrl address(u"http://a.example"_s);
        QSignalSpy opened(&edit, &PTextEdit::linkActivated);
        const auto click = [&](Qt::KeyboardModifiers held, QPoint at) {
            QTest::mouseClick(edit.viewport(), Qt::LeftButton, held, at);
            return std::exchange(static_cast<QList<QVariantList>&>(opened), {}).size();
        };
        const auto shape = [&](Qt::KeyboardModifiers held, QPoint at) {
            QMouseEvent move(QEvent::MouseMove, at, edit.viewport()->mapToGlobal(at), Qt::NoButton,
                             Qt::NoButton, held);
            QCoreApplication::sendEvent(edit.viewport(), &move);
            return edit.viewport()->cursor().shape();
        };
        const auto tip = [&](QPoint at) {
            QToolTip::showText({}, u"none"_s);
            QHelpEvent help(QEvent::ToolTip, at, edit.viewport()->mapToGlobal(at));
            QCoreApplication::sendEvent(edit.viewport(), &help);
            return QToolTip::text();
        };
        QTextCursor inLink = edit.textCursor();
        inLink.setPosition(8);
        const QPoint there = edit.cursorRect(inLink).center();
        const QPoint beside(380, 100);
        for (const bool readOnly : {false, true}) {
            edit.setReadOnly(readOnly);
            QCOMPARE(click({}, there), readOnly ? 1 : 0);
            QCOMPARE(click(Qt::ControlModifier, there), 1);
            QTest::mouseRelease(edit.viewport(), Qt::RightButton, Qt::ControlModifier, there);
            QCOMPARE(opened.count(), 0);
            QCOMPARE(click(Qt::ControlModifier, beside), 0);
            QCOMPARE(shape({}, there), readOnly ? Qt::PointingHandCursor : Qt::IBeamCursor);
            QCOMPARE(shape(Qt::ControlModifier, there), Qt::PointingHandCursor);
            QCOMPARE(shape(Qt::ControlModifier, beside), Qt::IBeamCursor);
            QCOMPARE(tip(there),
                     readOnly ? u"Click opens the address"_s : u"Ctrl+click opens the address"_s);
            QCOMPARE(tip(beside), u"none"_s);
            // Who selects wants to copy.
            QTest::mousePress(edit.viewport(), Qt::LeftButton, Qt::ControlModifier,
                              there - QPoint(30, 0));
            moveMouse(*edit.viewport(), there, Qt::LeftButton);
            QTest::mouseRelease(edit.viewport(), Qt::LeftButton, Qt::ControlModifier, there);
            QCOMPARE(opened.count(), 0);
        }

        edit.setOpenExternalLinks(true);
        QCOMPARE(click({}, there), 0);
        QCOMPARE(user.opened(), QStringList{address.toString()});
        edit.setOpenExternalLinks(false);
        edit.setReadOnly(false);
        for (const auto& [position, opens] :
             {std::pair(1, false), {2, true}, {18, true}, {19, false}}) {
            QTextCursor cursor = edit.textCursor();
            cursor.setPosition(position);
            edit.setTextCursor(cursor);
            for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
                QKeyEvent enter(QEvent::KeyPress, key, Qt::ControlModifier | Qt::KeypadModifier);
                QCoreApplication::sendEvent(&edit, &enter);
                QCOMPARE(enter.isAccepted(), opens); // else the dialog around it may have it
                QCOMPARE(opened, QList<QVariantList>(opens ? 1 : 0, {address}));
                opened.clear();
            }
        }
    }
};

QTEST_MAIN(TestTextEdit)
#include "tst_textedit.moc"
