#include "testsupport.h"

#include <Hueloft/PMessageBox>

#include <QApplication>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QTimer>

#include <functional>

using Hueloft::PMessageBox;
using namespace Qt::StringLiterals;

namespace {

// Runs once a message box is shown, inside its event loop.
void whenShown(QObject* context, const std::function<void(QMessageBox&)>& act)
{
    auto* timer = new QTimer(context);
    QObject::connect(timer, &QTimer::timeout, context, [timer, act] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!box || !box->isVisible())
            return;
        timer->stop();
        timer->deleteLater();
        act(*box);
    });
    timer->start(0);
}

void press(QMessageBox& box, QMessageBox::StandardButton button)
{
    box.button(button)->click();
}

} // namespace

class TestPMessageBox : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void returnsPressedButton_data();
    void returnsPressedButton();
    void escapeAnswersNo();
    void questionShowsItsMark();
    void showsMarkupAsText();
    void longTextsStaySmall_data();
    void longTextsStaySmall();
    void parentMayGo();
};

void TestPMessageBox::returnsPressedButton_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QMessageBox::StandardButtons>("buttons");
    QTest::addColumn<QMessageBox::StandardButton>("defaultButton");
    QTest::addColumn<QMessageBox::StandardButton>("pressed");
    const QMessageBox::StandardButtons retry = QMessageBox::Retry | QMessageBox::Cancel;
    QTest::newRow("critical") << int(QMessageBox::Critical) << retry << QMessageBox::Cancel
                              << QMessageBox::Retry;
    QTest::newRow("warning") << int(QMessageBox::Warning) << retry << QMessageBox::Retry
                             << QMessageBox::Cancel;
    QTest::newRow("information") << int(QMessageBox::Information)
                                 << QMessageBox::StandardButtons(QMessageBox::Ok)
                                 << QMessageBox::NoButton << QMessageBox::Ok;
    QTest::newRow("question") << int(QMessageBox::Question) << (QMessageBox::Yes | QMessageBox::No)
                              << QMessageBox::No << QMessageBox::Yes;
}

void TestPMessageBox::returnsPressedButton()
{
    QFETCH(const int, kind);
    QFETCH(const QMessageBox::StandardButtons, buttons);
    QFETCH(const QMessageBox::StandardButton, defaultButton);
    QFETCH(const QMessageBox::StandardButton, pressed);

    QWidget parent;
    whenShown(this, [&](QMessageBox& box) {
        QCOMPARE(int(box.icon()), kind);
        QCOMPARE(box.standardButtons(), buttons);
        QVERIFY(box.isModal());
        QCOMPARE(box.parentWidget(), &parent);
        QCOMPARE(box.windowTitle(), u"Update"_s);
        QCOMPARE(box.text(), u"First line\nSecond line"_s);
        QCOMPARE(box.informativeText(), u"More"_s);
        QCOMPARE(box.detailedText(), u"Everything"_s);
        if (defaultButton != QMessageBox::NoButton)
            QVERIFY(box.defaultButton() == box.button(defaultButton));
        press(box, pressed);
    });

    const QString title = u"Update"_s;
    const QString text = u"First line\nSecond line"_s;
    int answer = -1;
    if (kind == QMessageBox::Question)
        answer =
            PMessageBox::Question(&parent, title, text, defaultButton, u"More"_s, u"Everything"_s);
    else if (kind == QMessageBox::Critical)
        answer = PMessageBox::Critical(&parent, title, text, buttons, defaultButton, u"More"_s,
                                       u"Everything"_s);
    else if (kind == QMessageBox::Warning)
        answer = PMessageBox::Warning(&parent, title, text, buttons, defaultButton, u"More"_s,
                                      u"Everything"_s);
    else
        answer = PMessageBox::Information(&parent, title, text, buttons, defaultButton, u"More"_s,
                                          u"Everything"_s);
    QCOMPARE(answer, int(pressed));
    QVERIFY2(parent.children().isEmpty(), "the box is deleted");
}

void TestPMessageBox::escapeAnswersNo()
{
    whenShown(this, [](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); });
    QCOMPARE(PMessageBox::Question(nullptr, u"Update"_s, u"Restart now?"_s), int(QMessageBox::No));
}

void TestPMessageBox::questionShowsItsMark()
{
    whenShown(this, [](QMessageBox& box) {
        const auto* label = box.findChild<QLabel*>(u"qt_msgboxex_icon_label"_s);
        const QImage mark = label->pixmap().toImage();
        const auto alphaAt = [&mark](double x, double y) {
            return qAlpha(mark.pixel(int(x * mark.width() / 16), int(y * mark.height() / 16)));
        };
        QCOMPARE(alphaAt(3, 8), 255);
        QVERIFY2(alphaAt(10.4, 6) < 100, "the hook");
        QVERIFY2(alphaAt(8, 11.8) < 100, "the dot");
        press(box, QMessageBox::No);
    });
    PMessageBox::Question(nullptr, u"Update"_s, u"Restart now?"_s);
}

void TestPMessageBox::showsMarkupAsText()
{
    const QString hostile = u"<b>bold</b> <img src=\"http://203.0.113.1/x.png\">"_s;
    whenShown(this, [&hostile](QMessageBox& box) {
        int shown = 0;
        for (const QLabel* label : box.findChildren<QLabel*>()) {
            if (label->text() != hostile)
                continue;
            QCOMPARE(label->textFormat(), Qt::PlainText);
            ++shown;
        }
        QCOMPARE(shown, 2);
        press(box, QMessageBox::Ok);
    });
    PMessageBox::Warning(nullptr, u"Update"_s, hostile, QMessageBox::Ok, QMessageBox::Ok, hostile);
}

void TestPMessageBox::longTextsStaySmall_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("shortened");
    QTest::newRow("many lines") << u"line\n"_s.repeated(500) << true;
    QTest::newRow("many words") << u"word "_s.repeated(5000) << true;
    QTest::newRow("one long word") << QString(700, u'x') << false;
    QTest::newRow("surrogates") << u"\U0001F4F7"_s.repeated(399) + u"x\U0001F4F7yz"_s << true;
}

void TestPMessageBox::longTextsStaySmall()
{
    QFETCH(const QString, text);
    QFETCH(const bool, shortened);
    whenShown(this, [&](QMessageBox& box) {
        const QSize screen = box.screen()->availableSize();
        QVERIFY(box.width() <= screen.width() && box.width() <= 1000);
        QVERIFY(box.height() <= screen.height() / 2);
        QCOMPARE(box.detailedText(), shortened ? text : QString());
        QVERIFY2(box.text().isValidUtf16(), "no character is cut in two");
        press(box, QMessageBox::Ok);
    });
    QCOMPARE(PMessageBox::Critical(nullptr, u"Update"_s, text), int(QMessageBox::Ok));
}

void TestPMessageBox::parentMayGo()
{
    QPointer<QWidget> parent = new QWidget;
    whenShown(this, [&parent](QMessageBox&) { delete parent; });
    QCOMPARE(PMessageBox::Question(parent, u"Update"_s, u"Restart now?"_s),
             int(QMessageBox::NoButton));
    QVERIFY(!parent);
}

QTEST_MAIN(TestPMessageBox)
#include "tst_pmessagebox.moc"
