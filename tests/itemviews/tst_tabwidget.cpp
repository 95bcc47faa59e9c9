// SPDX-License-Identifier: MIT
#include "testsupport.h"

#include <CorvelGui/PTabWidget>

#include <QCloseEvent>
#include <QDialog>
#include <QShortcut>
#include <QTabBar>

namespace {

class Page : public QWidget
{
public:
    bool mayGo = true;

protected:
    void closeEvent(QCloseEvent* event) override { event->setAccepted(mayGo); }
};

class Tabs : public PTabWidget
{
public:
    Tabs()
    {
        for (const QString& name : {u"One"_s, u"Two"_s, u"R&&D"_s})
            addTab(new Page, name);
        resize(500, 200);
        show();
        activateWindow();
    }
    QLineEdit* editor() const
    {
        for (auto* edit : tabBar()->findChildren<QLineEdit*>())
            if (edit->isVisible())
                return edit;
        return nullptr;
    }
    void doubleClick(int index)
    {
        QTest::mouseDClick(tabBar(), Qt::LeftButton, {}, tabBar()->tabRect(index).center());
    }
    /// Types over what is selected, and strikes a key if there is one.
    void type(const QString& text, Qt::Key key = {}) const
    {
        QTest::keyClicks(editor(), text);
        if (key)
            QTest::keyClick(editor(), key);
    }
};

} // namespace

class TestTabWidget : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void renames()
    {
        Tabs tabs;
        QVERIFY(QTest::qWaitForWindowActive(&tabs));
        QSignalSpy renamed(&tabs, &PTabWidget::tabRenamed);
        tabs.doubleClick(1);
        QVERIFY(tabs.editor() && tabs.tabBar()->tabRect(1).contains(tabs.editor()->geometry()));
        tabs.type(u" Q&A "_s, Qt::Key_Return);
        QCOMPARE(tabs.editor(), nullptr);
        QCOMPARE(tabs.tabText(1), u"Q&&A"_s);
        QCOMPARE(renamed.takeFirst(), (QVariantList{1, u"Q&A"_s}));

        tabs.setCurrentIndex(2);
        QTest::keyClick(tabs.tabBar(), Qt::Key_F2);
        QCOMPARE(tabs.editor()->text(), u"R&D"_s);
        tabs.type({}, Qt::Key_Enter); // the same name
        QCOMPARE(tabs.tabName(2), u"R&D"_s);
        QCOMPARE(renamed.count(), 0);

        // A click elsewhere takes the name.
        QTest::keyClick(tabs.tabBar(), Qt::Key_F2);
        tabs.type(u"Left"_s);
        QTest::mouseClick(tabs.tabBar(), Qt::LeftButton, {}, tabs.tabBar()->tabRect(0).center());
        QCOMPARE(tabs.tabName(2), u"Left"_s);

        for (const auto& [text, name] : {std::pair(u"&File"_s, u"File"_s), {u"A&"_s, u"A"_s}}) {
            tabs.setTabText(0, text);
            QCOMPARE(tabs.tabName(0), name);
        }
        tabs.setTabName(0, u" "_s);
        QCOMPARE(tabs.tabName(0), u"A"_s);
        tabs.setTabEnabled(2, false);
        tabs.editTabName(2);
        tabs.editTabName(3);
        QTest::keyClick(tabs.tabBar(), Qt::Key_F2, Qt::ShiftModifier);
        QCOMPARE(tabs.editor(), nullptr);
        for (const int length : {100, 150}) {
            tabs.setTabName(0, QString(length, u'x'));
            tabs.editTabName(0);
            QCOMPARE(tabs.editor()->maxLength(), length);
            QCOMPARE(tabs.editor()->placeholderText().size(), length);
            QCOMPARE(tabs.editor()->accessibleName(), u"Name of the tab"_s);
            // Its own menu does not end it.
            QFocusEvent toMenu(QEvent::FocusOut, Qt::PopupFocusReason);
            QCoreApplication::sendEvent(tabs.editor(), &toMenu);
            QVERIFY(tabs.editor());
            tabs.type({}, Qt::Key_Escape);
            QVERIFY(tabs.tabBar()->hasFocus());
        }

        tabs.setTabsRenamable(false);
        tabs.doubleClick(0);
        QTest::keyClick(tabs.tabBar(), Qt::Key_F2);
        QCOMPARE(tabs.editor(), nullptr);
    }

    void refusesAndCancels()
    {
        // Neither Enter nor Escape reaches the dialog around it.
        QDialog dialog;
        auto* tabs = new Tabs;
        (new QVBoxLayout(&dialog))->addWidget(tabs);
        const QShortcut shortcut(Qt::Key_Escape, &dialog);
        const QSignalSpy taken(&shortcut, &QShortcut::activated);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));

        QSignalSpy renamed(tabs, &PTabWidget::tabRenamed);
        tabs->doubleClick(0);
        tabs->type(u"  "_s, Qt::Key_Return);
        QVERIFY(tabs->editor());
        tabs->type(u"Other"_s, Qt::Key_Escape);
        QCOMPARE(tabs->editor(), nullptr);
        tabs->doubleClick(0);
        tabs->type(u" "_s);
        tabs->tabBar()->setFocus();
        QCOMPARE(tabs->editor(), nullptr);
        QCOMPARE(tabs->tabName(0), u"One"_s);
        QCOMPARE(renamed.count() + taken.count(), 0);
        QVERIFY(dialog.isVisible());
    }

    void editorFollowsItsTab()
    {
        Tabs tabs;
        tabs.doubleClick(0);
        tabs.type(u"First"_s);
        tabs.insertTab(0, new Page, u"A long name before it"_s);
        QTRY_COMPARE(tabs.editor()->geometry(), tabs.tabBar()->tabRect(1));
        tabs.tabBar()->moveTab(1, 2);
        QTRY_COMPARE(tabs.editor()->geometry(), tabs.tabBar()->tabRect(2));
        tabs.type({}, Qt::Key_Return);
        QCOMPARE(tabs.tabName(2), u"First"_s);

        tabs.editTabName(2);
        tabs.type(u"Too late"_s);
        delete tabs.widget(2);
        QCOMPARE(tabs.editor(), nullptr);
        QCOMPARE(tabs.tabName(2), u"R&D"_s);
    }

    void closes()
    {
        Tabs tabs;
        QSignalSpy closed(&tabs, &PTabWidget::tabClosed);
        const QPointer<QWidget> page = tabs.widget(1);
        static_cast<Page*>(tabs.widget(0))->mayGo = false;
        for (const int index : {0, 1}) {
            QTest::mouseClick(tabs.tabBar()->tabButton(index, QTabBar::RightSide), Qt::LeftButton);
            QCOMPARE(tabs.count(), 3 - index);
        }

        QCOMPARE(tabs.tabName(1), u"R&D"_s);
        QCOMPARE(closed.takeFirst(), QVariantList{1});
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!page);
    }

    void survivesItsReceivers()
    {
        const auto typed = [](Tabs& tabs, Qt::Key key) {
            tabs.doubleClick(0);
            tabs.type(u"Last"_s, key);
        };
        for (const auto& act : std::initializer_list<std::function<void(Tabs&)>>{
                 [](Tabs& tabs) { tabs.closeTab(1); },
                 [&](Tabs& tabs) { typed(tabs, Qt::Key_Return); },
                 [&](Tabs& tabs) { typed(tabs, Qt::Key()), tabs.setCurrentIndex(1); },
             })
            QVERIFY(isDeletedBy(act, &PTabWidget::tabRenamed, &PTabWidget::tabClosed));
    }
};

QTEST_MAIN(TestTabWidget)
#include "tst_tabwidget.moc"
