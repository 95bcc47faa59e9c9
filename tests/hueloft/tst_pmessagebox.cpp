#include "testsupport.h"
#include "whenshown.h"

#include <Hueloft/PMessageBox>

#include <QApplication>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QTest>

using Hueloft::PMessageBox;
using namespace Qt::StringLiterals;

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
        const QMessageBox::StandardButtons retry = QMessageBox::Retry | QMessageBox::Cancel;
        QWidget parent;
        const auto expect = [&](QMessageBox::Icon kind, QMessageBox::StandardButtons buttons,
                                QMessageBox::StandardButton byDefault) {
            whenShown<QMessageBox>(this, [=, &parent](QMessageBox& box) {
                QCOMPARE(box.icon(), kind);
                QCOMPARE(box.standardButtons(), buttons);
                QVERIFY(box.isModal());
                QCOMPARE(box.parentWidget(), &parent);
                const QStringList texts{box.windowTitle(), box.text(), box.informativeText(),
                                        box.detailedText()};
                QCOMPARE(texts, QStringList({title, text, more, all}));
                QCOMPARE(box.defaultButton(), qobject_cast<QPushButton*>(box.button(byDefault)));
                box.defaultButton()->click();
            });
        };
        expect(QMessageBox::Critical, retry, QMessageBox::Cancel);
        QCOMPARE(PMessageBox::Critical(&parent, title, text, retry, QMessageBox::Cancel, more, all),
                 int(QMessageBox::Cancel));
        expect(QMessageBox::Warning, retry, QMessageBox::Retry);
        QCOMPARE(PMessageBox::Warning(&parent, title, text, retry, QMessageBox::Retry, more, all),
                 int(QMessageBox::Retry));
        const auto ok = QMessageBox::Ok;
        expect(QMessageBox::Information, ok, ok);
        QCOMPARE(PMessageBox::Information(&parent, title, text, ok, ok, more, all), int(ok));
        expect(QMessageBox::Question, QMessageBox::Yes | QMessageBox::No, QMessageBox::No);
        QCOMPARE(PMessageBox::Question(&parent, title, text, QMessageBox::No, more, all),
                 int(QMessageBox::No));
        QVERIFY2(parent.children().isEmpty(), "the boxes are deleted");
    }

    void escapeAnswersNo()
    {
        whenShown<QMessageBox>(this, [](QMessageBox& box) {
            const auto* label = box.findChild<QLabel*>(u"qt_msgboxex_icon_label"_s);
            const QImage mark = label->pixmap().toImage();
            const auto alphaAt = [&mark](double x, double y) {
                return qAlpha(mark.pixel(int(x * mark.width() / 16), int(y * mark.height() / 16)));
            };
            QCOMPARE(alphaAt(3, 8), 255);
            QVERIFY2(alphaAt(10.4, 6) < 100, "the hook");
            QVERIFY2(alphaAt(8, 11.8) < 100, "the dot");
            QTest::keyClick(&box, Qt::Key_Escape);
        });
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
