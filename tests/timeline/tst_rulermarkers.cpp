// SPDX-License-Identifier: MIT
#include "rulericonset.h"
#include "rulerscript.h"

#include <CorvelGui/RulerMarkerButton>

#include <QTextDocument>

using namespace CorvelGui;

namespace {

using Merge = RulerMarkerButton::Merge;

RulerMarker marker(qint64 offset, const QString& text = {})
{
    return {.identifier = QUuid::createUuid(), .time = timeAt(offset), .text = text};
}

/// One hour is in view: a pixel is 3.6 seconds.
constexpr qint64 pixel = 3600;

QList<RulerMarker> markersAtPixels(const QList<int>& pixels)
{
    QList<RulerMarker> markers;
    for (const int x : pixels)
        markers << marker((x - 10) * pixel, QString::number(x));
    return markers;
}

QList<RulerMarkerButton*> visibleButtons(const Ruler& ruler)
{
    QList<RulerMarkerButton*> buttons;
    for (auto* button : ruler.findChildren<RulerMarkerButton*>()) {
        if (button->isVisible())
            buttons << button;
    }
    std::sort(buttons.begin(), buttons.end(),
              [](auto* a, auto* b) { return a->centerX() < b->centerX(); });
    return buttons;
}

/// The symbols from left to right, each as its place and whether it stands for several markers.
QString symbols(const Ruler& ruler)
{
    QStringList result;
    for (const auto* button : visibleButtons(ruler))
        result << QString::number(button->centerX()) +
                      (button->merge() == Merge::Representative ? u"+"_s : QString());
    return result.join(u' ');
}

QColor middleColor(QWidget* button)
{
    return button->parentWidget()->grab().toImage().pixelColor(button->geometry().center());
}

/// Filled squares in a colour for each index; indices 1 and 2 share a key.
class Provider : public IRulerMarkerIconProvider
{
public:
    int iconKey(int iconIndex) override { return iconIndex == 2 ? 1 : iconIndex; }
    QIcon icon(int iconIndex) override
    {
        ++asked;
        QPixmap pixmap(64, 64);
        pixmap.fill(Qt::transparent);
        const int left = iconIndex == 0 ? 0 : 16;
        QPainter(&pixmap).fillRect(left, 0, 64 - 2 * left, 64, left == 0 ? Qt::magenta : Qt::cyan);
        return QIcon(pixmap);
    }
    QString text(const RulerMarker& marker) const override
    {
        return QString::number(marker.iconIndex);
    }
    RulerMarker marker(qint64 offset, int iconIndex, int kind = 3)
    {
        return {{}, timeAt(offset), kind, iconIndex, {}, this};
    }

    int asked = 0;
};

} // namespace

class TestRulerMarkers : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void symbolsFollowTheView()
    {
        LoggedRuler ruler;
        ruler.onAddMarkers(markersAtPixels({300, 302, 700}));
        for (const QString& view : {u"level 0 0.2903"_s, u"offset 0.0012585"_s, u"level 8"_s}) {
            play(&ruler, view);
            QCOMPARE(visibleButtons(ruler).size(), 1);
            QCOMPARE(symbols(ruler).count(u'+'), 1);
        }
        ruler.changeLevel(1, 0.0);
        QCOMPARE(symbols(ruler), u"300+ 700"_s);
    }

    void reportedOnce()
    {
        LoggedRuler ruler;
        ruler.onAddMarkers({marker(10 * minute), marker(2 * hour), marker(20 * minute)});
        QCOMPARE(ruler.takeLog(), QStringList{u"new 02 00:10, 02 00:20"_s});
        ruler.changeLevel(4, 1.0);
        QCOMPARE(ruler.takeLog().filter(u"new"_s), QStringList{u"new 02 02:00"_s});
        // An inactive ruler waits, but shows no longer what is gone.
        ruler.setActive(false, false);
        ruler.onAddMarkers({marker(15 * minute)});
        QCOMPARE(ruler.takeLog(), QStringList());
        ruler.setActive(true, false);
        QCOMPARE(ruler.takeLog(), QStringList{u"new 02 00:15"_s});
        ruler.setActive(false, false);
        ruler.onHideMarkers();
        QCOMPARE(symbols(ruler), QString());
    }

    void operations()
    {
        using Operation = RulerMarkerOperation;
        LoggedRuler ruler;
        const std::tuple<int, QList<int>, QString> steps[] = {
            {Operation::add, {400, 100, 200}, u"100 200 400"_s},
            {Operation::clear, {}, {}},
            {Operation::add, {300, 302, 304, 500}, u"302+ 500"_s},
            {Operation::clear, {}, {}},
            {Operation::add, {5, 1015}, u"5 1015"_s},
            {Operation::clear, {}, {}},
            {Operation::add, {4, 1016, -500, 5000}, {}},
            {Operation::add, {100, 200}, u"100 200"_s},
            {Operation::hide, {}, {}},
            {Operation::add, {100, 200}, {}},
            {0, {}, {}},
            {Operation::show, {}, u"100+ 200+"_s},
            {Operation::remove, {100, 200}, u"100 200"_s},
            {6, {}, u"100 200"_s}};
        for (const auto& [code, pixels, expected] : steps) {
            ruler.onMarkerOperation({.markers = markersAtPixels(pixels), .code = code});
            QCOMPARE(symbols(ruler), expected);
            if (code == Operation::clear)
                QVERIFY(ruler.findChildren<RulerMarkerButton*>().isEmpty());
        }
    }

    void pressAndDoubleClick()
    {
        LoggedRuler ruler;
        ruler.onAddMarkers({marker(10 * minute), marker(20 * minute)});
        ruler.takeLog();
        auto* button = visibleButtons(ruler).back();
        QTest::mouseClick(button, Qt::RightButton);
        QTest::mouseClick(button, Qt::LeftButton);
        QCOMPARE(ruler.takeLog(), QStringList{u"jump 02 00:20"_s});
        QTest::mouseDClick(button, Qt::LeftButton);
        QCOMPARE(ruler.takeLog(), QStringList{u"track jump 02 00:20"_s});
        pressByAssistiveTechnology(button);
        QTRY_COMPARE(ruler.log, QStringList{u"jump 02 00:20"_s});
        ruler.takeLog();
        // The handle of a range stands above it.
        play(&ruler, u"select drag; range 1200 2400"_s);
        QVERIFY(ruler.childAt(button->geometry().center()) != button);
        ruler.setActive(true, true);
        QTest::mouseClick(button, Qt::LeftButton);
        QCOMPARE(ruler.takeLog(), QStringList());
    }

    void hiddenMarkersAnswerTheMouse()
    {
        LoggedRuler ruler;
        ruler.onAddMarkers(markersAtPixels({300, 307, 314}));
        ruler.takeLog();
        const int y = visibleButtons(ruler).front()->geometry().center().y();
        // Left of the symbol is the first of its markers.
        moveMouse(ruler, QPoint(297, y));
        QCOMPARE(symbols(ruler), u"300 307+"_s);
        auto* hidden = visibleButtons(ruler).front();
        QCOMPARE(hidden->merge(), Merge::MergedAway);
        QCOMPARE(hidden->toolTip(), u"300"_s);
        QTest::mouseClick(hidden, Qt::LeftButton);
        QCOMPARE(ruler.takeLog(), QStringList{u"jump 02 00:17"_s});
        for (const auto& end : std::initializer_list<std::function<void(Ruler&)>>{
                 [&](Ruler& r) { moveMouse(r, QPoint(400, y)); },
                 [](Ruler& r) { leaveMouse(r); },
                 [](Ruler& r) { enterMouse(*visibleButtons(r).front()); },
             }) {
            moveMouse(ruler, QPoint(318, y));
            QCOMPARE(symbols(ruler), u"307+ 314"_s);
            end(ruler);
            QCOMPARE(symbols(ruler), u"307+"_s);
        }
        // It grows with the others.
        ruler.setIconSize(QSize(40, 40));
        moveMouse(ruler, QPoint(318, y));

        QCOMPARE(visibleButtons(ruler).back()->size(), visibleButtons(ruler).front()->size());
    }

    void toolTips()
    {
        LoggedRuler ruler;
        const auto firstToolTip = [&] {
            enterMouse(*visibleButtons(ruler).front());
            return visibleButtons(ruler).front()->toolTip();
        };

        ruler.onAddMarkers(markersAtPixels({300, 301, 302}));
        QCOMPARE(firstToolTip(), u"300\n301\n302"_s);
        // Under the mouse it follows what comes and goes.
        ruler.onAddMarkers(markersAtPixels({303}));
        QCOMPARE(visibleButtons(ruler).front()->toolTip(), u"300\n301\n302\n303"_s);
        ruler.onRemoveMarkers(markersAtPixels({303}));
        // What comes and goes far away changes no group.
        ruler.onAddMarkers({marker(-3 * hour, u"early"_s)});
        QCOMPARE(firstToolTip(), u"300\n301\n302"_s);
        ruler.onRemoveMarkers({marker(-3 * hour)});
        QCOMPARE(firstToolTip(), u"300\n301\n302"_s);
        for (int i = 0; i < 40; ++i)
            ruler.onAddMarkers({marker(10 * minute + i, QString::number(i))});
        const QStringList lines = firstToolTip().split(u'\n');
        QCOMPARE(lines.size(), 13);
        QCOMPARE(lines.front(), u"0"_s);
        QVERIFY(lines.back().contains(u"28"_s));

        // Zoomed in until the middle one stands alone, it has its own text, under the mouse or not.
        ruler.onClearMarkers();
        ruler.onAddMarkers(markersAtPixels({295, 300, 305}));
        QCOMPARE(firstToolTip(), u"295\n300\n305"_s);
        auto* middle = visibleButtons(ruler).front();
        ruler.changeLevel(0, 290.0 / 999);
        QCOMPARE(middle->toolTip(), u"300"_s);

        // Its text stays text.
        ruler.onClearMarkers();
        const QString markup = u"<b>bold</b> & <img>"_s;
        ruler.onAddMarkers({marker(20 * minute, markup)});
        QTextDocument document;
        QWidget* button = visibleButtons(ruler).front();
        document.setHtml(button->toolTip());
        QCOMPARE(document.toPlainText(), markup);
        // Assistive technology finds it, too.
        const QPoint center = button->mapToGlobal(button->rect().center());
        const auto* accessible = QAccessible::queryAccessibleInterface(&ruler);
        QCOMPARE(accessible->childAt(center.x(), center.y())->object(), button);
    }

    void iconsOfTheProvider()
    {
        Provider provider;
        LoggedRuler ruler;
        ruler.onAddMarkers({provider.marker(10 * minute, 0), provider.marker(20 * minute, 1),
                            provider.marker(30 * minute, 2), provider.marker(40 * minute, 0)});
        QCOMPARE(provider.asked, 2);
        const auto buttons = visibleButtons(ruler);
        QCOMPARE(buttons[1]->toolTip(), u"1"_s);
        QCOMPARE(middleColor(buttons[1]), QColor(Qt::cyan));
        QCOMPARE(middleColor(buttons[2]), QColor(Qt::cyan));

        auto* button = buttons.front();
        QCOMPARE(middleColor(button), QColor(Qt::magenta));
        enterMouse(*button);
        QVERIFY(middleColor(button) != QColor(Qt::magenta));
        leaveMouse(*button);
        QCOMPARE(middleColor(button), QColor(Qt::magenta));

        // Of another kind the same marker has the ruler's own icon.
        ruler.onClearMarkers();
        ruler.onAddMarkers({provider.marker(10 * minute, 0, 2)});
        QVERIFY(middleColor(visibleButtons(ruler)[0]) != QColor(Qt::magenta));
        QCOMPARE(provider.asked, 2);
    }

    void iconsAreSharedAtTheirSize()
    {
        const QIcon icon = Provider().icon(1);
        const RulerIconSet one(icon);
        const RulerIconSet other(icon);
        const auto picture = [](const RulerIconSet& icons, int size, qreal ratio) {
            return icons.picture(RulerIconSet::State::Normal, {size, size}, ratio);
        };
        QCOMPARE(one.visibleFraction({16, 16}, 1.0), 0.5);
        QCOMPARE(picture(one, 16, 1.0).cacheKey(), picture(other, 16, 1.0).cacheKey());
        QCOMPARE(picture(one, 16, 2.0).size(), QSize(32, 32));
        // None is enlarged.
        QCOMPARE(picture(one, 100, 1.0).size(), QSize(64, 64));
        QCOMPARE(picture(one, 16, 1.0).cacheKey(), picture(other, 16, 1.0).cacheKey());
        QVERIFY(picture(RulerIconSet(QIcon()), 16, 1.0).isNull());
    }

    void markerPreview()
    {
        // Others come and go, the marker stays; its button goes, perhaps to another marker.
        const QString ofMarker = u"preview 1044 at 299 marker"_s;
        const QString ofMouse = u"preview 1051 at 302"_s;
        const std::pair<std::function<void(Ruler&)>, QStringList> cases[] = {
            {[](Ruler& r) { r.onAddMarkers(markersAtPixels(QList<int>(2, 100))); },
             {ofMarker, ofMouse}},
            {[](Ruler& r) { r.onRemoveMarkers(markersAtPixels({200})); }, {ofMarker, ofMouse}},
            {[](Ruler& r) { r.onTimelineOffsetChanged(0.5); }, {u"preview 431251 at 302"_s}},
            {[](Ruler& r) { r.onClearMarkers(); }, {ofMouse}}};
        for (const auto& [change, log] : cases) {
            LoggedRuler ruler;
            ruler.onAddMarkers(markersAtPixels({200, 300}) << marker(5 * day));
            ruler.setPreviewEnabled(true);
            ruler.onPreviewVisible(true, false);
            auto* button = visibleButtons(ruler).back();
            enterMouse(*button);
            moveMouse(*button, QPoint(10, 8));
            change(ruler);
            QTRY_COMPARE(ruler.log.filter(u"preview"_s), log);
        }
    }

    void onlyInsideTheResultRange()
    {
        LoggedRuler ruler;
        ruler.onAddMarkers(markersAtPixels({100, 200, 300, 400}));
        const QDateTime from = timeAt(190 * pixel);
        const QDateTime to = timeAt(290 * pixel);
        ruler.setResultTimeRange(from, to, false, false, true, false);
        QCOMPARE(symbols(ruler), u"200 300"_s);
        ruler.setResultTimeRange(from, to, true, true, false, false);
        QCOMPARE(symbols(ruler), u"100 200 300 400"_s);
        ruler.takeLog();
        ruler.setResultTimeRange(from, to, true, true, true, true);
        QVERIFY(ruler.takeLog().contains(u"level 0"_s));
    }

    void manyMarkersNeedFewButtons()
    {
        LoggedRuler ruler;
        QList<RulerMarker> markers;
        for (int i = 0; i < 20'000; ++i)
            markers << marker(i * 40 * second);
        ruler.onAddMarkers(markers);
        for (int level = 0; level <= 8; ++level) {
            ruler.changeLevel(level, 0.5);
            ruler.onTimelineOffsetChanged(0.5);
            QVERIFY(!visibleButtons(ruler).isEmpty());
            QVERIFY(ruler.findChildren<RulerMarkerButton*>().size() <= 1020 / 6);
        }
    }

    void dragsThatBeginOnAButtonAreNotTheRulers()
    {
        LoggedRuler ruler;
        ruler.onTimelineOffsetChanged(0.5);
        ruler.onAddMarkers({marker(5 * day)});
        auto* button = visibleButtons(ruler).front();
        const quint64 begin = ruler.beginTime();
        // Outside a held button Qt hands the mouse on to its parent.
        QTest::mousePress(button, Qt::LeftButton);
        for (const int x : {40, 60, 90})
            moveMouse(*button, QPoint(x, 8), Qt::LeftButton);
        QTest::mouseRelease(button, Qt::LeftButton, {}, QPoint(90, 8));
        QCOMPARE(ruler.beginTime(), begin);
        QCOMPARE(ruler.getIndicatorMSecs(), at(0));
    }

    void clearingInsideSignals()
    {
        for (const auto& act : std::initializer_list<std::function<void(Ruler&)>>{
                 [](Ruler& r) { r.onClearMarkers(); },
                 [](Ruler& r) { qDeleteAll(r.findChildren<RulerMarkerButton*>()); },
                 [](Ruler& r) { qDeleteAll(r.findChildren<QAbstractButton*>()); },
                 [](Ruler& r) { delete &r; },
             }) {
            for (const bool twice : {false, true}) {
                QPointer<LoggedRuler> ruler = new LoggedRuler;
                ruler->onAddMarkers(markersAtPixels({300, 500}));
                QObject context;
                connect(ruler, twice ? &Ruler::jumpToTrackTime : &Ruler::jumpToTime, &context,
                        [&] { act(*ruler); });
                const auto click = twice ? QTest::MouseDClick : QTest::MousePress;
                QTest::mouseEvent(click, visibleButtons(*ruler).front(), Qt::LeftButton, {},
                                  {8, 8});

                if (!ruler)
                    continue;
                // What is left still works.
                ruler->setActive(true, false);
                ruler->changeLevel(2, 0.5);
                ruler->onAddMarkers(markersAtPixels({700}));
                QVERIFY(!visibleButtons(*ruler).isEmpty());
                delete ruler;
            }
        }
    }
};

QTEST_MAIN(TestRulerMarkers)
#include "tst_rulermarkers.moc"
