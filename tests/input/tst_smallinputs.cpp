#include "input/weblinks.h"
#include "testsupport.h"

#include <CorvelGui/PClickableLabel>
#include <CorvelGui/PColorButton>
#include <CorvelGui/PColorComboBox>
#include <CorvelGui/PErrorLabel>
#include <CorvelGui/PFilterButton>
#include <CorvelGui/PLastActionToolButton>
#include <CorvelGui/PMainWindow>
#include <CorvelGui/PRecentComboBox>
#include <CorvelGui/PStringComboBox>
#include <CorvelGui/PTextEdit>
#include <Hueloft/POrvGuiTheme>

#include <QAbstractItemView>
#include <QColorDialog>
#include <QMenu>
#include <QMimeData>

using namespace CorvelGui;

namespace {

class NoteEdit : public PTextEdit
{
public:
    using PTextEdit::insertFromMimeData;
};

void chooseInDialog(QObject* context, const QColor& color)
{
    whenShown<QColorDialog>(context, [color](QColorDialog& dialog) {
        dialog.setCurrentColor(color);
        dialog.accept();
    });
}

} // namespace

class TestSmallInputs : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void colorBox()
    {
        PColorComboBox box;
        QSignalSpy changed(&box, &PColorComboBox::currentColorChanged);
        box.setOtherColors(true);
        QVERIFY(!box.currentColor().isValid() && box.currentIndex() == -1);
        box.addColor(Qt::red);
        box.addColor(Qt::blue, u"Blue"_s);
        box.addColor(QColor(255, 0, 0));
        QCOMPARE(box.count(), 3);
        QCOMPARE(box.currentColor(), QColor(Qt::red));
        QCOMPARE(box.currentText(), u"#ff0000"_s);

        // No key and no turn of the wheel leads to the dialog.
        for (int i = 0; i < 4; ++i)
            QTest::keyClick(&box, Qt::Key_Down);
        turnWheel(&box, QPointF(5, 5), {0, -480});
        QTest::keyClick(&box, Qt::Key_End);
        QCOMPARE(box.currentText(), u"Blue"_s);
        QVERIFY(!QApplication::activeModalWidget());

        box.setCurrentColor(QColor());
        box.setCurrentColor(QColor(1, 2, 3, 128));
        QCOMPARE(box.currentText(), u"#80010203"_s);
        box.setCurrentColor(Qt::green);
        QCOMPARE(box.count(), 4);
        box.show();
        chooseInDialog(&box, QColor(9, 8, 7));
        box.setCurrentIndex(3);
        Q_EMIT box.activated(3);
        QCOMPARE(box.currentColor(), QColor(Qt::green));
        QTRY_COMPARE(box.currentText(), u"#090807"_s);
        box.setCurrentIndex(0);
        QCOMPARE(changed.count(), 6);
    }

    void colorButton()
    {
        PColorButton button;
        QSignalSpy changed(&button, &PColorButton::colorChanged);
        button.setColor(QColor());
        button.setColor(QColor(1, 2, 3, 4));
        QCOMPARE(button.color(), QColor(1, 2, 3));
        button.setAlphaEnabled(true);
        button.setColor(QColor(1, 2, 3, 4));
        QCOMPARE(button.text(), u"#04010203"_s);
        button.setAlphaEnabled(false);
        QCOMPARE(button.text(), u"#010203"_s);
        button.show();
        chooseInDialog(&button, Qt::cyan);
        button.click();
        QTRY_COMPARE(button.color(), QColor(Qt::cyan));
        QCOMPARE(changed.count(), 4);
    }

    void stringBox()
    {
        PStringComboBox box;
        QSignalSpy changed(&box, &PStringComboBox::currentKeyChanged);
        box.setEntries({{u"a"_s, u"One"_s}, {u"b"_s, u"Two"_s}, {u"a"_s, u"Again"_s}});
        box.setCurrentKey(u"b"_s);
        box.setCurrentKey(u"unknown"_s);
        box.setEntries({{u"b"_s, u"Zwei"_s}, {u"a"_s, u"Eins"_s}});
        QCOMPARE(box.currentText(), u"Zwei"_s);
        QCOMPARE(changed, (QList<QVariantList>{{u"a"_s}, {u"b"_s}}));
        box.setEntries({{u"c"_s, u"Drei"_s}});
        box.setEntries({});
        QCOMPARE(changed.mid(2), (QList<QVariantList>{{u"c"_s}, {QString()}}));
    }

    void recentBox()
    {
        const QTemporaryDir dir;
        QSettings store(dir.filePath(u"recent.ini"_s), QSettings::IniFormat);
        PRecentComboBox box;
        QSignalSpy changed(&box, &PRecentComboBox::recentTextsChanged);
        box.setMaxCount(3);
        for (const auto& text : {u"one"_s, u"two"_s, u" "_s, u"three"_s, u"four"_s, u" two "_s}) {
            box.setEditText(text);
            QTest::keyClick(box.lineEdit(), Qt::Key_Return);
            QCOMPARE(box.currentText(), text);
        }
        QCOMPARE(box.recentTexts(), (QStringList{u"two"_s, u"four"_s, u"three"_s}));
        QCOMPARE(changed.count(), 5);
        box.writeUserSettings(store);

        box.show();
        box.setEditText(u"typed"_s);
        box.showPopup();
        box.view()->setCurrentIndex(box.model()->index(1, 0));
        QTest::keyClick(box.view(), Qt::Key_Delete);
        QCOMPARE(box.recentTexts(), (QStringList{u"two"_s, u"three"_s}));
        QCOMPARE(box.currentText(), u"typed"_s);
        box.hidePopup();
        box.readUserSettings(store);
        QCOMPARE(box.recentTexts().size(), 3);

        store.setValue(
            u"RecentTexts"_s,
            QStringList{u"a"_s, {}, u"a"_s, QString(5000, u'x'), u"b"_s, u"c"_s, u"d"_s});
        box.readUserSettings(store);
        QCOMPARE(box.recentTexts(), (QStringList{u"a"_s, u"b"_s, u"c"_s}));
        box.forgetTexts();
        box.writeUserSettings(store);
        box.setRecentTexts({u"a"_s});
        box.readUserSettings(store);
        QCOMPARE(box.count(), 0);
    }

    void filterButton()
    {
        PFilterButton button;
        QSignalSpy changed(&button, &PFilterButton::checkedFiltersChanged);
        button.setFilters({{u"m"_s, u"Motion"_s}, {u"d"_s, u"R&D"_s}, {u"m"_s, u"Again"_s}});
        button.setCheckedFilters({u"d"_s, u"x"_s, u"m"_s});
        QCOMPARE(changed.takeFirst(), (QVariantList{QStringList{u"m"_s, u"d"_s}}));
        QCOMPARE(button.text(), u"2"_s);
        QCOMPARE(button.accessibleDescription(), u"Only: Motion, R&D"_s);
        const QImage funnel = button.icon().pixmap(QSize(64, 64), 1.0).toImage();
        QVERIFY(qAlpha(funnel.pixel(14, 14)) > 0 && qAlpha(funnel.pixel(14, 50)) == 0);

        // By mouse and space bar, with the menu staying open, and by Enter.
        QMenu* menu = button.menu();
        menu->popup({});
        const QList<QAction*> actions = menu->actions();
        QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(actions[2]).center());
        menu->setActiveAction(actions[3]);
        QTest::keyClick(menu, Qt::Key_Space);
        QVERIFY(menu->isVisible() && !button.isFiltering());
        QTest::keyClick(menu, Qt::Key_Return);
        QVERIFY(!menu->isVisible());
        QCOMPARE(changed.count(), 3);
        button.setFilters({{u"z"_s, u"Z"_s}, {u"d"_s, u"D"_s}});
        QCOMPARE(button.checkedFilters(), QStringList{u"d"_s});
        actions[0]->trigger();
        QVERIFY(!button.isFiltering() && button.text().isEmpty());
    }

    void lastAction()
    {
        const QTemporaryDir dir;
        QSettings store(dir.filePath(u"last.ini"_s), QSettings::IniFormat);
        const auto fill = [](PLastActionToolButton& button) {
            QMenu* menu = button.menu();
            menu->addAction(u"&First"_s)->setEnabled(false);
            menu->addSeparator();
            menu->addAction(u"&Second"_s)->setObjectName(u"second"_s);
            menu->addMenu(u"More"_s)->addAction(u"Third"_s)->setObjectName(u"third"_s);
            QCoreApplication::processEvents();
            return menu->actions()[3]->menu()->actions()[0];
        };
        PLastActionToolButton button;
        QAction* third = fill(button);
        QSignalSpy changed(&button, &PLastActionToolButton::lastActionChanged);
        QSignalSpy triggered(button.menu(), &QMenu::triggered);
        QCOMPARE(button.text(), u"Second"_s);
        button.writeUserSettings(store);
        QVERIFY(store.allKeys().isEmpty());

        third->trigger(); // in its menu, or the menu bar
        QSignalSpy thirdAgain(third, &QAction::triggered);
        button.setLastAction(third);
        QAction stranger;
        button.setLastAction(&stranger);
        button.click();
        QCOMPARE(thirdAgain.count(), 1);
        third->setText(u"Dritte"_s);
        QCOMPARE(button.text(), u"Dritte"_s);
        button.writeUserSettings(store);

        PLastActionToolButton later;
        later.readUserSettings(store);
        QAction* restored = fill(later);
        QCOMPARE(later.lastAction(), restored);
        // Disabled, it is not replaced by another one: a click shows the menu.
        restored->setEnabled(false);
        later.show();
        QTimer::singleShot(0, later.menu(), [&later] { later.menu()->close(); });
        QSignalSpy shown(later.menu(), &QMenu::aboutToShow);
        later.click();
        QCOMPARE(shown.count(), 1);
        delete restored;
        QCoreApplication::processEvents();
        later.click();
        QCOMPARE(later.text(), u"Second"_s);
    }

    void labels()
    {
        PClickableLabel label(u"<b>More</b>…"_s);
        label.resize(100, 20);
        label.show();
        QSignalSpy clicked(&label, &PClickableLabel::clicked);
        QTest::mouseClick(&label, Qt::LeftButton);
        for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter, Qt::Key_A})
            QTest::keyClick(&label, key);
        QAccessibleInterface* link = QAccessible::queryAccessibleInterface(&label);
        QCOMPARE(link->role(), QAccessible::Link);
        QCOMPARE(link->text(QAccessible::Name), u"More…"_s);
        label.setAccessibleName(u"More about it"_s);
        QCOMPARE(link->text(QAccessible::Name), u"More about it"_s);
        link->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(clicked.count(), 5);
        // Not by another button, nor when the mouse has left, nor disabled.
        for (const char* warning :
             {"Mouse event \"MousePress\" not accepted by receiving widget",
              "Mouse event \"MouseRelease\" not accepted by receiving widget"})
            QTest::ignoreMessage(QtWarningMsg, warning);
        QTest::mouseClick(&label, Qt::RightButton);
        QTest::mousePress(&label, Qt::LeftButton);
        QTest::mouseRelease(&label, Qt::LeftButton, {}, {200, 5});
        label.setEnabled(false);
        label.click();
        QTest::mouseClick(&label, Qt::LeftButton);
        QCOMPARE(clicked.count(), 5);
        QVERIFY(isDeletedBy<PClickableLabel>(
            [](PClickableLabel& gone) { QTest::mouseClick(&gone, Qt::LeftButton); },
            &PClickableLabel::clicked));

        PMainWindow window;
        window.show();
        auto* error = new PErrorLabel;
        error->setError(u"<i>No</i> address"_s);
        QVERIFY(!error->isVisible());
        error->setParent(&window);
        QTRY_VERIFY(error->isVisible());
        QAccessibleInterface* alert = QAccessible::queryAccessibleInterface(error);
        QCOMPARE(alert->role(), QAccessible::AlertMessage);
        QCOMPARE(alert->text(QAccessible::Name), u"<i>No</i> address"_s);
        for (const bool dark : {true, false}) {
            window.createDarkFusionStyle(dark);
            QCOMPARE(error->palette().color(QPalette::WindowText),
                     Hueloft::POrvGuiTheme::statusRed());
        }
        error->clearError();
        QVERIFY(!error->isVisible());
    }

    void links()
    {
        const std::pair<QString, QStringList> rows[] = {
            {u"http:// https://a_b.example/x?y=1#z, http://10.0.0.1:81."_s,
             {u"https://a_b.example/x?y=1#z"_s, u"http://10.0.0.1:81"_s}},
            {u"(http://a.example/b_(c)) <HTTPS://b.example>\"http://c.example\""_s,
             {u"http://a.example/b_(c)"_s, u"HTTPS://b.example"_s, u"http://c.example"_s}},
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

    void textEdit()
    {
        NoteEdit edit;
        edit.resize(400, 120);
        edit.show();
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
        pasted.setText(u"abcd"_s);
        edit.insertFromMimeData(&pasted);
        QCOMPARE(edit.toPlainText(), u"ab01234567"_s);
        QTest::keyClick(&edit, Qt::Key_X);
        QCOMPARE(edit.toPlainText(), u"ab01234567"_s);
        QInputMethodEvent input;
        input.setCommitString(u"\u4f60"_s, -1, 1);
        QCoreApplication::sendEvent(&edit, &input);
        input.setCommitString(u"\u4f60\u597d"_s);
        QCoreApplication::sendEvent(&edit, &input);
        QCOMPARE(edit.toPlainText(), u"a\u4f6001234567"_s);
        QCOMPARE(cut.count(), 3);
        edit.moveCursor(QTextCursor::Right, QTextCursor::KeepAnchor);
        QTest::keyClick(&edit, Qt::Key_X);
        QCOMPARE(edit.toPlainText(), u"a\u4f60x1234567"_s);
        while (edit.document()->isUndoAvailable())
            edit.undo();
        QCOMPARE(edit.toPlainText(), u"01234567"_s);
        edit.setPlainText(u"012345678\U0001F600"_s);
        QCOMPARE(edit.toPlainText(), u"012345678"_s);
        QCOMPARE(edit.accessibleDescription(), u"9 of 10 characters"_s);
        edit.setMaximumLength(4);
        QCOMPARE(edit.toPlainText(), u"0123"_s);
        QVERIFY(!sawTooLong);

        edit.setMaximumLength(-1);
        edit.setPlainText(u"http://a.example is there"_s);
        QSignalSpy opened(&edit, &PTextEdit::linkActivated);
        const QPoint there = edit.cursorRect(edit.textCursor()).center() + QPoint(20, 0);
        const auto click = [&](Qt::KeyboardModifiers held, QPoint at) {
            QTest::mouseClick(edit.viewport(), Qt::LeftButton, held, at);
        };
        click({}, there);
        click(Qt::ControlModifier, {380, 100});
        QCOMPARE(opened.count(), 0);
        click(Qt::ControlModifier, there);
        edit.moveCursor(QTextCursor::Start);
        QTest::keyClick(&edit, Qt::Key_Return, Qt::ControlModifier);
        edit.setReadOnly(true);
        click({}, there);
        QCOMPARE(opened, (QList<QVariantList>(3, {QUrl(u"http://a.example"_s)})));
    }
};

QTEST_MAIN(TestSmallInputs)
#include "tst_smallinputs.moc"
