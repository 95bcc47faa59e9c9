// SPDX-License-Identifier: MIT
#include "testsupport.h"

#include <Corvel/Host>
#include <CorvelGui/NetworkInterfaceComboBox>
#include <CorvelGui/PClickableLabel>
#include <CorvelGui/PColorButton>
#include <CorvelGui/PColorComboBox>
#include <CorvelGui/PErrorLabel>
#include <CorvelGui/PFilterButton>
#include <CorvelGui/PLastActionToolButton>
#include <CorvelGui/PMainWindow>
#include <CorvelGui/PRecentComboBox>
#include <CorvelGui/PStringComboBox>
#include <CorvelGui/SubNetMaskComboBox>
#include <Hueloft/POrvGuiTheme>

#include <QAbstractItemView>
#include <QColorDialog>
#include <QContextMenuEvent>
#include <QMenu>
#include <QStyleOptionComboBox>

using namespace CorvelGui;

namespace {

/// The dialog must begin with @p initial.
void chooseInDialog(QWidget* owner, const QColor& initial, const QColor& color, bool hasAlpha)
{
    owner->show();
    whenShown<QColorDialog>(owner, [=](QColorDialog& dialog) {
        QCOMPARE(dialog.windowTitle(), u"Choose a colour"_s);
        QCOMPARE(dialog.currentColor(), initial);
        QCOMPARE(dialog.testOption(QColorDialog::ShowAlphaChannel), hasAlpha);
        dialog.setCurrentColor(color);
        dialog.accept();
    });
}

QString entriesOf(const QComboBox& box)
{
    QStringList texts;
    for (int i = 0; i < box.count(); ++i)
        texts.append(box.itemText(i));
    return texts.join(u' ');
}

class InterfaceBox : public NetworkInterfaceComboBox
{
public:
    using NetworkInterfaceComboBox::initStyleOption;
    using NetworkInterfaceComboBox::showInterfaces;
};

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
        QVERIFY(box.model()->flags(box.model()->index(2, 0)).testFlag(Qt::ItemIsEnabled));

        box.setCurrentColor(QColor());
        box.setCurrentColor(QColor(1, 2, 3, 128));
        QCOMPARE(box.currentText(), u"#80010203"_s);
        box.setCurrentColor(Qt::green);
        box.addColor(Qt::cyan, u"Cyan"_s);
        QCOMPARE(entriesOf(box), u"#ff0000 Blue Cyan #00ff00 Other colour…"_s);
        chooseInDialog(&box, Qt::green, QColor(9, 8, 7), false);
        box.setCurrentIndex(4);
        Q_EMIT box.activated(4);
        QCOMPARE(box.currentColor(), QColor(Qt::green));
        QTRY_COMPARE(box.currentText(), u"#090807"_s);
        QTRY_VERIFY(!box.findChild<QColorDialog*>());
        box.setCurrentIndex(0);
        Q_EMIT box.activated(0);
        QVERIFY(!box.findChild<QColorDialog*>());
        QCOMPARE(changed.count(), 6);

        PColorComboBox bare;
        bare.setOtherColors(true);
        chooseInDialog(&bare, Qt::white, Qt::red, false);
        Q_EMIT bare.activated(0);
        QTRY_COMPARE(entriesOf(bare), u"#ff0000 Other colour…"_s);
        bare.setOtherColors(false);
        bare.setCurrentColor(Qt::blue);
        QCOMPARE(entriesOf(bare), u"#0000ff"_s);
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
        for (const bool hasAlpha : {false, true}) {
            button.setAlphaEnabled(hasAlpha);
            const QColor next(hasAlpha ? Qt::cyan : Qt::yellow);
            chooseInDialog(&button, button.color(), next, hasAlpha);
            button.click();
            QTRY_COMPARE(button.color(), next);
            QTRY_VERIFY(!button.findChild<QColorDialog*>());
        }
        QCOMPARE(changed.count(), 5);
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
        const QList<PStringComboBox::Entry> unnamed{{u""_s, u"All"_s}};
        box.show();
        const int width = box.sizeHint().width();
        box.setEntries(unnamed); // an empty key is not the lack of one
        QVERIFY(box.sizeHint().width() != width);
        QCOMPARE(changed.count(), 5);
        QCOMPARE(box.entries(), unnamed);
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
        for (const QString& left : {u"two"_s, QString()}) {
            QCOMPARE(box.view()->currentIndex().row(), left.isEmpty() ? 0 : 1);
            QTest::keyClick(box.view(), Qt::Key_Delete);
            QCOMPARE(entriesOf(box), left);
            QCOMPARE(box.view()->isVisible(), !left.isEmpty());
        }
        box.readUserSettings(store);
        QCOMPARE(box.recentTexts().size(), 3);
        box.view()->setCurrentIndex({});
        QTest::keyClick(box.view(), Qt::Key_Delete);
        QCOMPARE(box.recentTexts().size(), 3);
        box.setCurrentIndex(1);
        Q_EMIT box.activated(1);
        QTRY_COMPARE(entriesOf(box), u"four two three"_s);
        // What stands in the field stays as it is.
        box.lineEdit()->setCursorPosition(1);
        QSignalSpy edited(&box, &QComboBox::editTextChanged);
        box.setRecentTexts({u"one"_s, u"four"_s});
        QCOMPARE(box.currentText(), u"four"_s);
        QCOMPARE(box.currentIndex(), 1);
        QCOMPARE(box.lineEdit()->cursorPosition(), 1);
        QCOMPARE(edited.count(), 0);

        box.setLineEdit(new QLineEdit);
        box.setEditText(u"four"_s);
        QTest::keyClick(box.lineEdit(), Qt::Key_Return);
        QCOMPARE(entriesOf(box), u"four one"_s);
        for (const bool hasTexts : {true, false}) {
            QContextMenuEvent asked(QContextMenuEvent::Keyboard, {}, {});
            QCoreApplication::sendEvent(box.lineEdit(), &asked);
            auto* menu = box.lineEdit()->findChild<QMenu*>();
            QAction* forget = menu->actions().constLast();
            QCOMPARE(forget->isEnabled(), hasTexts);
            menu->setActiveAction(forget);
            QTest::keyClick(menu, Qt::Key_Return);
            menu->close();
            QCOMPARE(box.count(), 0);
            QTRY_VERIFY(!box.lineEdit()->findChild<QMenu*>());
        }

        const QString longest(2000, u'x');
        store.setValue(u"RecentTexts"_s,
                       QStringList{u"a"_s, {}, u"a"_s, longest + u'x', longest, u"c"_s, u"d"_s});
        box.readUserSettings(store);
        QCOMPARE(box.recentTexts(), (QStringList{u"a"_s, longest, u"c"_s}));
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
        QCOMPARE(button.toolTip(), u"<p>Only:\u00a0Motion,\u00a0R&amp;D</p>"_s);

        // By mouse and space bar, with the menu staying open, and by Enter.
        QMenu* menu = button.menu();
        menu->popup({});
        const QList<QAction*> actions = menu->actions();
        QCOMPARE(actions[3]->text(), u"R&&D"_s);
        QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(actions[2]).center());
        menu->setActiveAction(actions[3]);
        QTest::keyClick(menu, Qt::Key_Space);
        QVERIFY(menu->isVisible() && !button.isFiltering());
        QTest::keyClick(menu, Qt::Key_Return);
        QVERIFY(!menu->isVisible());
        QCOMPARE(changed.count(), 3);
        button.setFilters({{u"z"_s, u"Z"_s}, {u"d"_s, u"D"_s}});
        QCOMPARE(button.checkedFilters(), QStringList{u"d"_s});
        // To show all is a choice that closes the menu.
        button.setCheckedFilters({u"z"_s, u"d"_s});
        menu->popup({});
        QVERIFY(actions[0]->isEnabled());
        QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(actions[0]).center());
        QVERIFY(!menu->isVisible() && !actions[0]->isEnabled());
        QVERIFY(!button.isFiltering() && button.text().isEmpty());
        // A name that the client gave stays.
        button.setAccessibleName(u"Kind"_s);
        QEvent change(QEvent::LanguageChange);
        QCoreApplication::sendEvent(&button, &change);
        QCOMPARE(button.accessibleName(), u"Kind"_s);
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
        QCOMPARE(button.text(), u"Second"_s);
        button.writeUserSettings(store);
        QVERIFY(store.allKeys().isEmpty());
        button.readUserSettings(store);
        button.setLastAction(nullptr);

        third->trigger(); // in its menu, or the menu bar
        QSignalSpy thirdAgain(third, &QAction::triggered);
        button.setLastAction(third);
        QCOMPARE(changed.takeFirst().first().value<QAction*>(), third);
        QVERIFY(changed.isEmpty());
        QAction stranger;
        button.setLastAction(&stranger);
        button.click();
        QCOMPARE(thirdAgain.count(), 1);
        third->setText(u"Dritte"_s);
        third->setToolTip(u"The third"_s);
        third->setIcon(QPixmap(16, 16));
        QVERIFY(!button.icon().isNull());
        QCOMPARE(button.text() + u' ' + button.toolTip(), u"Dritte The third"_s);
        store.setValue(u"LastAction"_s, u"second"_s);
        button.readUserSettings(store);
        QCOMPARE(button.text(), u"Second"_s);
        button.setLastAction(third);
        button.writeUserSettings(store);
        third->setVisible(false);
        QCOMPARE(button.text(), u"Second"_s);

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
        // Not with other keys held, and once for a key that stays down.
        label.setEnabled(true);
        for (const auto& [held, repeats] : {std::pair(Qt::KeypadModifier, false),
                                            {Qt::ControlModifier, false},
                                            {Qt::NoModifier, true}}) {
            QKeyEvent key(QEvent::KeyPress, Qt::Key_Enter, held, {}, repeats);
            QCoreApplication::sendEvent(&label, &key);
            QCOMPARE(clicked.count(), 6);
            QCOMPARE(key.isAccepted(), held != Qt::ControlModifier);
        }
        QTest::mouseRelease(&label, Qt::LeftButton);
        QCOMPARE(clicked.count(), 6);
        QAccessibleActionInterface* actions = link->actionInterface();
        for (const bool enabled : {false, true}) {
            label.setEnabled(enabled);
            QCOMPARE(actions->actionNames().contains(actions->pressAction()), enabled);
        }
        actions->doAction(actions->setFocusAction());
        QCOMPARE(label.window()->focusWidget(), &label);
        label.setAccessibleName({});
        for (const auto& [format, name] : {std::pair(Qt::AutoText, u"a &amp;  b"_s),
                                           {Qt::PlainText, u"a &amp;  b"_s},
                                           {Qt::RichText, u"a & b"_s}}) {
            label.setTextFormat(format);
            label.setText(u"a &amp;  b"_s);
            QCOMPARE(link->text(QAccessible::Name), name);
            QCOMPARE(link->text(QAccessible::Description), QString());
        }
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

    void masks()
    {
        SubNetMaskComboBox box;
        QCOMPARE(box.count(), 30);
        QCOMPARE(box.getSubNetMaskAsPrefixLength(), u"15"_s);
        QCOMPARE(box.itemText(0), u"128.0.0.0 /1"_s);
        QCOMPARE(box.itemText(29), u"255.255.255.252 /30"_s);
        for (const unsigned int unknown : {0U, 31U, 32U, 0xFFFFFFFFU}) {
            box.setSubNetMask(24);
            QCOMPARE(box.currentText(), u"255.255.255.0 /24"_s);
            QCOMPARE(box.getSubNetMaskAsDotDecimal(), u"255.255.255.0"_s);
            box.setSubNetMask(unknown);
            QCOMPARE(box.currentText(), u"255.255.0.0 /16"_s);
            QVERIFY(SubNetMaskComboBox::getMaskAsString(int(unknown)).startsWith(u"Error: "_s));
        }
    }

    void interfaces()
    {
        const QList<Corvel::NetworkInterfaceData> two{
            {QHostAddress(u"192.168.1.20"_s), u"192.168.1.255"_s, u"255.255.255.0"_s, u"Hall %2"_s},
            {QHostAddress(u"10.8.0.6"_s), QString(), u"255.255.255.255"_s, u"Tunnel"_s}};
        InterfaceBox box;
        const auto isOnBase = [&box] {
            QStyleOptionComboBox drawn;
            box.initStyleOption(&drawn);
            return drawn.palette.color(QPalette::Button) == drawn.palette.color(QPalette::Base);
        };
        QVERIFY(!isOnBase());
        QSignalSpy changed(&box, &QComboBox::currentIndexChanged);
        QVERIFY(!box.showInterfaces({}, QString()));
        QCOMPARE(box.currentText(), u"No Network Connection"_s);
        QVERIFY(box.getCurrentHostAddress().isNull());
        QCOMPARE(box.styleSheet(), u"QComboBox{color: red;font: bold;}"_s);
        QVERIFY(isOnBase());

        QVERIFY(box.showInterfaces(two, u"172.16.0.1"_s));
        QVERIFY(box.styleSheet().isEmpty() && !isOnBase());
        QCOMPARE(box.count(), 2);
        QCOMPARE(box.currentText(), u"Hall %2 (192.168.1.20)"_s);
        QCOMPARE(box.getCurrentBroadCastAddress(), QHostAddress(u"192.168.1.255"_s));
        const QStringList data{u"192.168.1.20"_s, u"Hall %2"_s, u"192.168.1.255"_s,
                               u"255.255.255.0"_s};
        for (int role = 0; role < data.size(); ++role)
            QCOMPARE(box.itemData(0, Qt::UserRole + role).toString(), data[role]);
        QCOMPARE(changed.count(), 0);

        QVERIFY(box.showInterfaces(two, u"10.8.0.6"_s));
        QCOMPARE(changed, (QList<QVariantList>{{1}}));
        QCOMPARE(box.getCurrentHostAddress(), QHostAddress(u"10.8.0.6"_s));
        QVERIFY(box.getCurrentBroadCastAddress().isNull());

        // Whatever this machine has, the answer and the items agree.
        const auto machine = Corvel::Host().getNetworkInterfaceList().getList();
        QCOMPARE(box.InitNetworkFilter(QString()), !machine.isEmpty());
        QCOMPARE(box.count(), qMax(machine.size(), 1));
    }
};

QTEST_MAIN(TestSmallInputs)
#include "tst_smallinputs.moc"
