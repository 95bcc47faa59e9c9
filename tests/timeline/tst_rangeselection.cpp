// SPDX-License-Identifier: MIT
#include "lengthlabel.h"
#include "rangehandle.h"
#include "rulerscript.h"
#include "testsupport.h"

using namespace CorvelGui;

namespace {

bool isScrolling(const LoggedRuler& ruler)
{
    const auto timers = ruler.findChildren<QTimer*>();
    return std::any_of(timers.begin(), timers.end(),
                       [](const QTimer* timer) { return timer->isActive(); });
}

} // namespace

class TestRangeSelection : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void edgesScroll();
    void handlesForAssistiveTechnology();
    void handlesAndLengthStayInSight();
};

void TestRangeSelection::edgesScroll()
{
    // What is dragged to an end stays there while the view moves, and at the end there is a report.
    const QString drags[] = {u"select drag; hour 2; press 510; drag 1015"_s,
                             u"hour 2; place 9000; press indicator 510,5; drag indicator 1015,5"_s};
    for (const QString& drag : drags) {
        for (const bool on : {false, true}) {
            LoggedRuler ruler;
            ruler.setEdgeScrolling(on);
            play(&ruler, drag);
            const bool isRange = drag.startsWith(u"select");
            const quint64 before = ruler.beginTime();
            QCOMPARE(isScrolling(ruler), on || isRange);
            if (!isScrolling(ruler))
                continue;
            QTRY_VERIFY(ruler.beginTime() > before + quint64(minute));
            const qint64 held =
                isRange ? ruler.selectedRange().end : qint64(ruler.getIndicatorMSecs());
            QVERIFY(std::abs(ruler.xAt(held) - 1010) < 2);
            ruler.takeLog();
            play(&ruler, isRange ? u"key Esc"_s : u"release indicator 600,5"_s);
            QVERIFY(!isScrolling(ruler));
        }
    }
}

void TestRangeSelection::handlesForAssistiveTechnology()
{
    LoggedRuler ruler;
    play(&ruler, u"select shift"_s);
    const auto* accessible = QAccessible::queryAccessibleInterface(&ruler);
    QCOMPARE(accessible->childCount(), 3); // the arrows and the indicator
    play(&ruler, u"range 600 1800; press end 515; drag end 530"_s);
    QCOMPARE(accessible->childCount(), 5);
    play(&ruler, u"key Esc"_s);
    ruler.takeLog();
    const auto handles = ruler.findChildren<RangeHandle*>();
    const auto value = [](QWidget* widget) {
        return QAccessible::queryAccessibleInterface(widget)->valueInterface();
    };
    QAccessibleInterface* end = QAccessible::queryAccessibleInterface(handles[1]);
    QCOMPARE(end->text(QAccessible::Name), u"End of the selected range"_s);
    QVERIFY(end->text(QAccessible::Value).contains(u"20 min"_s));
    QCOMPARE(value(handles[0])->currentValue().toDouble(), double(at(10 * minute)));
    value(handles[0])->setCurrentValue(double(at(20 * minute)));
    QCOMPARE(ruler.takeLog().join(u' '), u"started range 1200 - 1800 ended"_s);

    // No further than the other end, and into view.
    const std::tuple<int, QString, QString> keys[] = {
        {0, u"Right"_s, u"started range 1260 - 1800 ended"_s},
        {0, u"Shift+Left"_s, u"started range 960 - 1800 ended"_s},
        {0, u"End"_s, u"started range 1799 - 1800 ended"_s},
        {0, u"Home"_s, u"started range 0 - 1800 ended"_s},
        {1, u"End"_s, u"started range 0 - 864000 ended center 0.9979 view 11 22:59 - 12 00:00"_s}};
    for (const auto& [handle, key, log] : keys) {
        const QKeyCombination pressed = QKeySequence(key)[0];
        QTest::keyClick(handles[handle], pressed.key(), pressed.keyboardModifiers());
        QCOMPARE(ruler.takeLog().join(u' '), log);
    }
    // Focus does not go away with a handle.
    handles[1]->setFocus();
    play(&ruler, u"key Del"_s);
    QVERIFY(ruler.hasFocus() && !handles[1]->isVisible());
}

void TestRangeSelection::handlesAndLengthStayInSight()
{
    LoggedRuler ruler;
    play(&ruler, u"select drag"_s);
    const auto* length = ruler.findChild<LengthLabel*>();
    const auto isInside = [&] {
        const QObjectList& stack = ruler.children();
        return length->isVisible() && ruler.rect().contains(length->geometry()) &&
               stack.indexOf(length) > stack.indexOf(ruler.findChildren<RangeHandle*>().last());
    };
    play(&ruler, u"press 30; drag 11"_s);
    QVERIFY(isInside());
    QCOMPARE(length->text(), u"1 min 8 s"_s);
    play(&ruler, u"release 11; press 1000; drag 960"_s);
    QVERIFY(isInside());
    play(&ruler, u"release 960"_s);
    QVERIFY(!length->isVisible());

    const auto handles = ruler.findChildren<RangeHandle*>();
    play(&ruler, u"range 600 1800; hour 2"_s);
    QVERIFY(!handles[0]->isVisible() && !handles[1]->isVisible());
}

QTEST_MAIN(TestRangeSelection)
#include "tst_rangeselection.moc"
