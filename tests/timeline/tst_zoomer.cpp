#include "testsupport.h"

#include <CorvelGui/Zoomer>

#include <QSlider>

using namespace CorvelGui;

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
    QWidget* button(bool in) const { return childAt(in ? 7 : width() - 7, 7); }
    void clickIn() { QTest::mouseClick(button(true), Qt::LeftButton); }
    void clickOut() { QTest::mouseClick(button(false), Qt::LeftButton); }

    QStringList takeLog() { return std::exchange(log, {}); }

    QStringList log;
};

} // namespace

class TestZoomer : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void parts()
    {
        LoggedZoomer zoomer;
        zoomer.resize(400, 100);
        QCOMPARE(zoomer.size(), QSize(150, 15));
        const std::pair<QWidget*, QString> parts[] = {{zoomer.button(true), u"Zoom in"_s},
                                                      {zoomer.slider(), u"Zoom level"_s},
                                                      {zoomer.button(false), u"Zoom out"_s}};
        for (const auto& [part, name] : parts) {
            QVERIFY(zoomer.rect().contains(part->geometry()));
            QCOMPARE(part->cursor().shape(), Qt::PointingHandCursor);
            QCOMPARE(part->toolTip(), name);
            QCOMPARE(part->accessibleName(), name);
        }
    }

    void levels()
    {
        LoggedZoomer zoomer;
        zoomer.onChangeSliderPosition(1);
        QCOMPARE(zoomer.slider()->value(), 0);
        // There is no level below. Level 1 is current already, so only the button reports.
        zoomer.clickIn();
        zoomer.clickOut();
        QCOMPARE(zoomer.takeLog(), QStringList{u"out 1 0.5"_s});
        for (const auto& [level, shown] : {std::pair(2, 2), {99, 8}, {-3, 0}}) {
            zoomer.onChangeSliderPosition(level);
            QCOMPARE(zoomer.slider()->value(), shown);
        }
        for (const Qt::Key key : {Qt::Key_End, Qt::Key_PageDown, Qt::Key_Left, Qt::Key_Home})
            QTest::keyClick(zoomer.slider(), key);
        QCOMPARE(zoomer.takeLog(),
                 (QStringList{u"out 8 0.5"_s, u"in 7 0.5"_s, u"in 6 0.5"_s, u"in 0 0.5"_s}));

        // Buttons report twice.
        zoomer.onChangeSliderPosition(7);
        zoomer.clickOut();
        zoomer.clickOut(); // there is no level 9
        zoomer.clickIn();
        // Also when the receiver refuses at once.
        connect(&zoomer, &Zoomer::zoomerOut, &zoomer, [&] { zoomer.onChangeSliderPosition(7); });
        zoomer.clickOut();
        QCOMPARE(zoomer.takeLog(), (QStringList{u"out 8 0.5"_s, u"out 8 0.5"_s, u"in 7 0.5"_s,
                                                u"in 7 0.5"_s, u"out 8 0.5"_s, u"out 8 0.5"_s}));
        QCOMPARE(zoomer.slider()->value(), 7);
    }

    void deletionWithinASignal()
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
};

QTEST_MAIN(TestZoomer)
#include "tst_zoomer.moc"
