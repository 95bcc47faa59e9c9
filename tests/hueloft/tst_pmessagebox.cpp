// SPDX-License-Identifier: MIT
#include "testsupport.h"

#include <Hueloft/PMessageBox>

#include <QScreen>

using Hueloft::PMessageBox;

class TestPMessageBox : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void returnsPressedButton()
    {
        const QString title = u"Update"_s;
        const QString text = u"First line\nSecond line"_s;
        const QString more = u"More"_s;
        const QString all = u"Everything"_s;
        using enum QMessageBox::StandardButton;
        QWidget parent;
        for (const auto& [kind, show, buttons, byDefault] :
             {std::tuple(QMessageBox::Critical, &PMessageBox::Critical, Retry | Cancel, Cancel),
              {QMessageBox::Warning, &PMessageBox::Warning, Retry | Cancel, Retry},
              {QMessageBox::Information, &PMessageBox::Information, Ok | Ok, Ok},
              {QMessageBox::Question, nullptr, Yes | No, No}}) {
            whenShown<QMessageBox>(
                this, [&, icon = kind, expected = buttons, chosen = byDefault](QMessageBox& box) {
                    QCOMPARE(box.icon(), icon);
                    QCOMPARE(box.standardButtons(), expected);
                    QVERIFY(box.isModal());
                    QCOMPARE(box.parentWidget(), &parent);
                    const QStringList texts{box.windowTitle(), box.text(), box.informativeText(),
                                            box.detailedText()};
                    QCOMPARE(texts, QStringList({title, text, more, all}));
                    QCOMPARE(box.defaultButton(), box.button(chosen));
                    box.defaultButton()->click();
                });
            QCOMPARE(show ? show(&parent, title, text, buttons, byDefault, more, all)
                          : PMessageBox::Question(&parent, title, text, byDefault, more, all),
                     int(byDefault));
        }
        QVERIFY2(parent.children().isEmpty(), "the boxes are deleted");
    }

    void escapeAnswersNo()
    {
        whenShown<QMessageBox>(this,
                               [](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); });
        QCOMPARE(PMessageBox::Question(nullptr, u"Update"_s, u"Restart now?"_s),
                 int(QMessageBox::No));
    }

    void showsMarkupAsText()
    {
        const QString hostile = u"<b>bold</b> <img src=\"http://203.0.113.1/x.png\">"_s;
        whenShown<QMessageBox>(this, [&hostile](QMessageBox& box) {
            int shown = 0;
            for (const QLabel* label : box.findChildren<QLabel*>())
                shown += label->text() == hostile && label->textFormat() == Qt::PlainText;
            QCOMPARE(shown, 2);
            box.button(QMessageBox::Ok)->click();
        });
        PMessageBox::Warning(nullptr, u"Update"_s, hostile, QMessageBox::Ok, QMessageBox::Ok,
                             hostile);
    }

    void longTextsStaySmall()
    {
        const std::pair<QString, bool> rows[] = {
            {u"line\n"_s.repeated(500), true},
            {u"word "_s.repeated(5000), true},
            {QString(700, u'x'), false},
            {u"\U0001F4F7"_s.repeated(399) + u"x\U0001F4F7yz"_s, true},
        };
        for (const auto& [text, shortened] : rows) {
            whenShown<QMessageBox>(this, [&, detailed = shortened ? text : QString()](auto& box) {
                const QSize screen = box.screen()->availableSize();
                QVERIFY(box.width() <= screen.width() && box.width() <= 1000);
                QVERIFY(box.height() <= screen.height() / 2);
                QCOMPARE(box.detailedText(), detailed);
                QVERIFY2(box.text().isValidUtf16(), "no character is cut in two");
                box.button(QMessageBox::Ok)->click();
            });
            QCOMPARE(PMessageBox::Critical(nullptr, u"Update"_s, text), int(QMessageBox::Ok));
        }
    }

    void parentMayGo()
    {
        QPointer<QWidget> parent = new QWidget;
        whenShown<QMessageBox>(this, [&parent](QMessageBox&) { delete parent; });
        QCOMPARE(PMessageBox::Question(parent, u"Update"_s, u"Restart now?"_s),
                 int(QMessageBox::NoButton));
        QVERIFY(!parent);
    }
};

QTEST_MAIN(TestPMessageBox)
#include "tst_pmessagebox.moc"
