#include "pointer.h"
#include "testsupport.h"

#include <CorvelGui/Zoomer>

#include <QAccessible>
#include <QCoreApplication>
#include <QPointer>
#include <QSlider>
#include <QTest>
#include <QToolButton>
#include <QTranslator>

#include <utility>

using namespace CorvelGui;
using namespace Qt::StringLiterals;

namespace {

class LoggedZoomer : public Zoomer
{
public:
    LoggedZoomer() : Zoomer(8)
    {
        show();
        const auto logged = [this](const QString& direction) {
            return [=, this](int level, double anchor) {
                log << direction + u" %1 %2"_s.arg(level).arg(anchor);
            };
        };
        connect(this, &Zoomer::zoomerIn, this, logged(u"in"_s));
        connect(this, &Zoomer::zoomerOut, this, logged(u"out"_s));
    }

    QSlider* slider() const { return findChild<QSlider*>(); }
    // The buttons stand at the two ends.
    QToolButton* button(bool in) const
    {
        for (QToolButton* button : findChildren<QToolButton*>())
            if ((button->x() < slider()->x()) == in)
                return button;
        return nullptr;
    }
    void clickIn() { QTest::mouseClick(button(true), Qt::LeftButton); }
    void clickOut() { QTest::mouseClick(button(false), Qt::LeftButton); }
    QStringList takeLog() { return std::exchange(log, {}); }

    QStringList log;
};

/// Writes every text in capitals.
class CapitalTranslator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char*, const char* source, const char*, int) const override
    {
        return QString::fromUtf8(source).toUpper();
    }
};

} // namespace

class TestZoomer : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void size();
    void levels();
    void buttonsReportTwice();
    void textsFollowTheLanguage();
    void deletionWithinASignal();
};

void TestZoomer::size()
{
    LoggedZoomer zoomer;
    zoomer.resize(400, 100);
    QCOMPARE(zoomer.size(), QSize(150, 15));
    for (const QWidget* child : zoomer.findChildren<QWidget*>()) {
        QVERIFY(zoomer.rect().contains(child->geometry()));
        QCOMPARE(child->cursor().shape(), Qt::PointingHandCursor);
    }
    for (const bool in : {true, false})
        QVERIFY(!zoomer.button(in)->icon().pixmap(15).isNull());
}

void TestZoomer::levels()
{
    LoggedZoomer zoomer;
    zoomer.onChangeSliderPosition(1);
    QCOMPARE(zoomer.slider()->value(), 0);
    zoomer.clickIn();
    QCOMPARE(zoomer.takeLog(), QStringList());
    // Level 1 is current already, so only the button reports.
    zoomer.clickOut();
    QCOMPARE(zoomer.takeLog(), QStringList{u"out 1 0.5"_s});
    for (const auto& [level, shown] : {std::pair(2, 2), {99, 8}, {-3, 0}}) {
        zoomer.onChangeSliderPosition(level);
        QCOMPARE(zoomer.slider()->value(), shown);
    }
    QCOMPARE(zoomer.takeLog(), QStringList());
    for (const Qt::Key key : {Qt::Key_End, Qt::Key_PageDown, Qt::Key_Left, Qt::Key_Home})
        QTest::keyClick(zoomer.slider(), key);
    QCOMPARE(zoomer.takeLog(),
             (QStringList{u"out 8 0.5"_s, u"in 7 0.5"_s, u"in 6 0.5"_s, u"in 0 0.5"_s}));
}

void TestZoomer::buttonsReportTwice()
{
    LoggedZoomer zoomer;
    zoomer.onChangeSliderPosition(7);
    zoomer.clickOut();
    zoomer.clickOut(); // there is no level 9
    QCOMPARE(zoomer.takeLog(), (QStringList{u"out 8 0.5"_s, u"out 8 0.5"_s}));
    zoomer.clickIn();
    QCOMPARE(zoomer.takeLog(), (QStringList{u"in 7 0.5"_s, u"in 7 0.5"_s}));

    // Also when the receiver refuses at once.
    connect(&zoomer, &Zoomer::zoomerOut, &zoomer, [&] { zoomer.onChangeSliderPosition(7); });
    zoomer.clickOut();
    QCOMPARE(zoomer.takeLog(), (QStringList{u"out 8 0.5"_s, u"out 8 0.5"_s}));
    QCOMPARE(zoomer.slider()->value(), 7);
}

void TestZoomer::textsFollowTheLanguage()
{
    LoggedZoomer zoomer;
    const auto texts = [&] {
        QStringList result;
        const QList<QWidget*> controls{zoomer.button(true), zoomer.slider(), zoomer.button(false)};
        for (QWidget* control : controls) {
            const auto* accessible = QAccessible::queryAccessibleInterface(control);
            if (control->toolTip() == accessible->text(QAccessible::Name))
                result << control->toolTip();
        }
        return result;
    };
    const QStringList expected{u"Zoom in"_s, u"Zoom level"_s, u"Zoom out"_s};
    QCOMPARE(texts(), expected);
    CapitalTranslator translator;
    QCoreApplication::installTranslator(&translator);
    QCoreApplication::sendPostedEvents();
    QCOMPARE(texts(), expected.join(u'|').toUpper().split(u'|'));
}

void TestZoomer::deletionWithinASignal()
{
    // Both emissions of a click, a press on the groove, and a key; at once and later.
    for (int i = 0; i < 8; ++i) {
        const int way = 1 + i % 4;
        QPointer<LoggedZoomer> zoomer = new LoggedZoomer;
        zoomer->onChangeSliderPosition(2);
        const QPointer<QSlider> slider = zoomer->slider();
        bool outlives = false;
        int left = way == 2 ? 2 : 1;
        connect(zoomer.data(), &Zoomer::zoomerOut, this, [&] {
            if (--left == 0) {
                deleteWithin(zoomer, i >= 4);
                outlives = slider;
            }
        });
        if (way <= 2)
            zoomer->clickOut();
        else if (way == 3)
            QTest::mousePress(slider, Qt::LeftButton, {}, slider->rect().center());
        else
            QTest::keyPress(slider, Qt::Key_End);
        QVERIFY(!zoomer && outlives);
    }
}

QTEST_MAIN(TestZoomer)
#include "tst_zoomer.moc"
