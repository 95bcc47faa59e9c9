#include "testsupport.h"

#include <CorvelGui/Zoomer>

#include <QAccessible>
#include <QCoreApplication>
#include <QPointer>
#include <QSlider>
#include <QTest>
#include <QToolButton>
#include <QTranslator>

#include <functional>
#include <utility>

using namespace CorvelGui;
using namespace Qt::StringLiterals;

namespace {

constexpr int widest = 8;

class LoggedZoomer : public Zoomer
{
public:
    LoggedZoomer() : Zoomer(widest)
    {
        show();
        connect(this, &Zoomer::zoomerIn, this,
                [this](int level, double anchor) { log << u"in %1 %2"_s.arg(level).arg(anchor); });
        connect(this, &Zoomer::zoomerOut, this,
                [this](int level, double anchor) { log << u"out %1 %2"_s.arg(level).arg(anchor); });
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
    void firstLevels();
    void buttonsReportTwice();
    void sliderReportsEachValue();
    void followsWithoutEcho();
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

void TestZoomer::firstLevels()
{
    LoggedZoomer zoomer;
    QCOMPARE(zoomer.slider()->value(), 0);
    zoomer.onChangeSliderPosition(1);
    QCOMPARE(zoomer.slider()->value(), 0);
    zoomer.clickIn();
    QCOMPARE(zoomer.takeLog(), QStringList());
    // Level 1 is current already, so only the button reports.
    zoomer.clickOut();
    QCOMPARE(zoomer.takeLog(), QStringList{u"out 1 0.5"_s});
    zoomer.onChangeSliderPosition(2);
    QCOMPARE(zoomer.slider()->value(), 2);
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

void TestZoomer::sliderReportsEachValue()
{
    LoggedZoomer zoomer;
    const auto press = [&](Qt::Key key) {
        QTest::keyClick(zoomer.slider(), key);
    };
    press(Qt::Key_End);
    press(Qt::Key_PageDown);
    press(Qt::Key_Left);
    press(Qt::Key_Home);
    QCOMPARE(zoomer.takeLog(),
             (QStringList{u"out 8 0.5"_s, u"in 7 0.5"_s, u"in 6 0.5"_s, u"in 0 0.5"_s}));
}

void TestZoomer::followsWithoutEcho()
{
    LoggedZoomer zoomer;
    const std::pair<int, int> levels[] = {{4, 4}, {99, widest}, {-3, 0}};
    for (const auto& [level, shown] : levels) {
        zoomer.onChangeSliderPosition(level);
        QCOMPARE(zoomer.slider()->value(), shown);
    }
    QCOMPARE(zoomer.takeLog(), QStringList());
}

void TestZoomer::textsFollowTheLanguage()
{
    LoggedZoomer zoomer;
    const auto texts = [&] {
        QStringList result;
        for (QWidget* control :
             {static_cast<QWidget*>(zoomer.button(true)), static_cast<QWidget*>(zoomer.slider()),
              static_cast<QWidget*>(zoomer.button(false))}) {
            const QString name =
                QAccessible::queryAccessibleInterface(control)->text(QAccessible::Name);
            if (control->toolTip() == name)
                result << name;
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
    const auto click = [](LoggedZoomer& zoomer) {
        zoomer.clickOut();
    };
    const auto pressGroove = [](LoggedZoomer& zoomer) {
        QTest::mousePress(zoomer.slider(), Qt::LeftButton, {}, zoomer.slider()->rect().center());
    };
    const auto pressKey = [](LoggedZoomer& zoomer) {
        QTest::keyPress(zoomer.slider(), Qt::Key_End);
    };
    const struct
    {
        std::function<void(LoggedZoomer&)> move;
        int emission; // the one that deletes
    } cases[] = {{click, 1}, {click, 2}, {pressGroove, 1}, {pressKey, 1}};
    for (const auto& [move, emission] : cases) {
        QPointer<LoggedZoomer> zoomer = new LoggedZoomer;
        zoomer->onChangeSliderPosition(2);
        connect(zoomer.data(), &Zoomer::zoomerOut, this, [&, left = emission]() mutable {
            if (--left == 0)
                delete zoomer.data();
        });
        move(*zoomer);
        QVERIFY(!zoomer);
    }
}

QTEST_MAIN(TestZoomer)
#include "tst_zoomer.moc"
