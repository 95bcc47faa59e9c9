#include "loggedruler.h"
#include "testsupport.h"

#include <CorvelGui/RulerMarkerButton>
#include <Hueloft/POrvGuiTheme>

#include <QApplication>
#include <QPainter>
#include <QPointer>
#include <QTest>

using namespace CorvelGui;
using Hueloft::POrvGuiTheme;
using namespace Qt::StringLiterals;

namespace {

using Merge = RulerMarkerButton::Merge;

RulerMarker marker(qint64 offset, const QString& text = {})
{
    return {.identifier = QUuid::createUuid(), .time = timeAt(offset), .text = text};
}

/// One hour is in view: a pixel is 3.6 seconds.
constexpr qint64 pixel = 3600;

QList<RulerMarker> markersAtPixels(std::initializer_list<int> pixels)
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

void send(QWidget* widget, QEvent::Type type, QPoint position)
{
    if (type == QEvent::Leave) {
        QEvent event(type);
        QApplication::sendEvent(widget, &event);
    } else if (type == QEvent::Enter) {
        QEnterEvent event(position, widget->mapTo(widget->window(), position),
                          widget->mapToGlobal(position));
        QApplication::sendEvent(widget, &event);
    } else {
        QMouseEvent event(type, position, widget->mapToGlobal(position), Qt::NoButton, {}, {});
        QApplication::sendEvent(widget, &event);
    }
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
        QPainter painter(&pixmap);
        painter.fillRect(iconIndex == 0 ? QRect(0, 0, 64, 64) : QRect(16, 0, 32, 64),
                         iconIndex == 0 ? Qt::magenta : Qt::cyan);
        return QIcon(pixmap);
    }

    int asked = 0;
};

} // namespace

class TestRulerMarkers : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_ruler.reset(); }
    void symbolsInView_data();
    void symbolsInView();
    void symbolsFollowTheView();
    void reportedOnce();
    void operations();
    void removalTakesTheFirstOfATime();
    void pressAndDoubleClick();
    void hiddenMarkersAnswerTheMouse();
    void mergedToolTipListsItsMarkers();
    void textsStayText();
    void iconsOfTheProvider();
    void hoverColors();
    void markerPreview();
    void iconSizes();
    void markerAreaLeavesRoomForTexts();
    void onlyInsideTheResultRange();
    void inactiveRulerWaits();
    void manyMarkersNeedFewButtons();
    void clearingInsideSignals_data();
    void clearingInsideSignals();

private:
    std::unique_ptr<LoggedRuler> m_ruler;
};

void TestRulerMarkers::init()
{
    WarningFreeTest::init();
    m_ruler = std::make_unique<LoggedRuler>();
    QVERIFY(QTest::qWaitForWindowExposed(m_ruler.get()));
    QCoreApplication::processEvents();
    m_ruler->setTimeLimits(at(0), at(10 * day));
    m_ruler->takeLog();
}

void TestRulerMarkers::symbolsInView_data()
{
    QTest::addColumn<QList<RulerMarker>>("markers");
    QTest::addColumn<QString>("expected");

    QTest::newRow("apart") << markersAtPixels({400, 100, 200}) << u"100 200 400"_s;
    QTest::newRow("three at one place") << markersAtPixels({300, 300, 300}) << u"300+"_s;
    QTest::newRow("crowded and alone") << markersAtPixels({300, 302, 304, 500}) << u"302+ 500"_s;
    QTest::newRow("at the edges") << markersAtPixels({5, 1015}) << u"5 1015"_s;
    QTest::newRow("beyond the edges") << markersAtPixels({4, 1016}) << QString();
    QTest::newRow("out of view") << markersAtPixels({-500, 5000}) << QString();
    QTest::newRow("without a time") << QList<RulerMarker>{RulerMarker()} << QString();
}

void TestRulerMarkers::symbolsInView()
{
    QFETCH(QList<RulerMarker>, markers);
    m_ruler->onAddMarkers(markers);
    QTEST(symbols(*m_ruler), "expected");
}

void TestRulerMarkers::symbolsFollowTheView()
{
    m_ruler->onAddMarkers(markersAtPixels({300, 302, 700}));
    QCOMPARE(symbols(*m_ruler), u"300+ 700"_s);
    m_ruler->changeLevel(0, 290.0 / 999);
    QCOMPARE(visibleButtons(*m_ruler).size(), 1);
    m_ruler->onTimelineOffsetChanged(302.0 * pixel / (10 * day));
    QCOMPARE(visibleButtons(*m_ruler).size(), 1);
    m_ruler->changeLevel(8, 0.5);
    QCOMPARE(visibleButtons(*m_ruler).size(), 1);
    QCOMPARE(visibleButtons(*m_ruler).front()->merge(), Merge::Representative);
    m_ruler->changeLevel(1, 0.0);
    QCOMPARE(symbols(*m_ruler), u"300+ 700"_s);
}

void TestRulerMarkers::reportedOnce()
{
    m_ruler->onAddMarkers({marker(10 * minute), marker(2 * hour), marker(20 * minute)});
    QCOMPARE(m_ruler->takeLog(), QStringList{u"new 02 00:10, 02 00:20"_s});
    m_ruler->onTimelineOffsetChanged(2.0 * hour / (10 * day));
    QVERIFY(m_ruler->takeLog().contains(u"new 02 02:00"_s));
    m_ruler->changeLevel(4, 1.0);
    m_ruler->onAddMarkers({marker(15 * minute)});
    QCOMPARE(m_ruler->takeLog().filter(u"new"_s), QStringList{u"new 02 00:15"_s});
}

void TestRulerMarkers::operations()
{
    const QList<RulerMarker> markers = markersAtPixels({100, 200});
    const auto perform = [&](int code) {
        m_ruler->onMarkerOperation({.markers = markers, .code = code});
    };
    perform(0);
    perform(6);
    QCOMPARE(symbols(*m_ruler), QString());
    perform(4);
    QCOMPARE(symbols(*m_ruler), u"100 200"_s);
    perform(2);
    QCOMPARE(symbols(*m_ruler), QString());
    perform(2);
    perform(4);
    QCOMPARE(symbols(*m_ruler), QString());
    perform(1);
    QCOMPARE(symbols(*m_ruler), u"100+ 200+"_s);
    perform(5);
    QCOMPARE(symbols(*m_ruler), u"100 200"_s);
    perform(3);
    QCOMPARE(m_ruler->findChildren<RulerMarkerButton*>().size(), 0);
}

void TestRulerMarkers::removalTakesTheFirstOfATime()
{
    m_ruler->onAddMarkers({marker(minute, u"first"_s), marker(minute, u"second"_s)});
    m_ruler->onRemoveMarkers({marker(minute), marker(2 * minute)});
    QCOMPARE(visibleButtons(*m_ruler).size(), 1);
    QCOMPARE(visibleButtons(*m_ruler).front()->marker().text, u"second"_s);
}

void TestRulerMarkers::pressAndDoubleClick()
{
    m_ruler->onAddMarkers({marker(10 * minute), marker(20 * minute)});
    m_ruler->takeLog();
    auto* button = visibleButtons(*m_ruler).back();
    QTest::mouseClick(button, Qt::RightButton);
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(m_ruler->takeLog(), QStringList{u"jump 02 00:20"_s});
    QTest::mouseDClick(button, Qt::LeftButton);
    QCOMPARE(m_ruler->takeLog(), QStringList{u"track jump 02 00:20"_s});
    m_ruler->setActive(true, true);
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(m_ruler->takeLog(), QStringList());
}

void TestRulerMarkers::hiddenMarkersAnswerTheMouse()
{
    m_ruler->onAddMarkers(markersAtPixels({300, 307, 314}));
    m_ruler->takeLog();
    QCOMPARE(symbols(*m_ruler), u"307+"_s);
    const int y = visibleButtons(*m_ruler).front()->geometry().center().y();

    // Left of the symbol is the first of its markers.
    send(m_ruler.get(), QEvent::MouseMove, QPoint(297, y));
    QCOMPARE(symbols(*m_ruler), u"300 307+"_s);
    auto* hidden = visibleButtons(*m_ruler).front();
    QCOMPARE(hidden->merge(), Merge::MergedAway);
    QCOMPARE(hidden->toolTip(), u"300"_s);
    QTest::mouseClick(hidden, Qt::LeftButton);
    QCOMPARE(m_ruler->takeLog(), QStringList{u"jump 02 00:17"_s});

    send(m_ruler.get(), QEvent::MouseMove, QPoint(318, y));
    QCOMPARE(symbols(*m_ruler), u"307+ 314"_s);
    send(m_ruler.get(), QEvent::MouseMove, QPoint(400, y));
    QCOMPARE(symbols(*m_ruler), u"307+"_s);
}

void TestRulerMarkers::mergedToolTipListsItsMarkers()
{
    m_ruler->onAddMarkers(markersAtPixels({300, 301, 302}));
    auto* button = visibleButtons(*m_ruler).front();
    send(button, QEvent::Enter, QPoint(8, 8));
    QCOMPARE(button->toolTip(), u"300\n301\n302"_s);

    QList<RulerMarker> many;
    for (int i = 0; i < 40; ++i)
        many << marker(10 * minute + i, QString::number(i));
    m_ruler->onAddMarkers(many);
    button = visibleButtons(*m_ruler).front();
    send(button, QEvent::Enter, QPoint(8, 8));
    const QStringList lines = button->toolTip().split(u'\n');
    QCOMPARE(lines.size(), 13);
    QCOMPARE(lines.front(), u"0"_s);
    QVERIFY(lines.back().contains(u"28"_s));
}

void TestRulerMarkers::textsStayText()
{
    m_ruler->onAddMarkers({marker(minute, u"<b>bold</b> & <img src=x>"_s)});
    const QString toolTip = visibleButtons(*m_ruler).front()->toolTip();
    QVERIFY(!toolTip.contains(u"<b>"_s));
    QVERIFY(toolTip.contains(u"&lt;b&gt;bold&lt;/b&gt;"_s));
    QVERIFY(toolTip.contains(u"&lt;img"_s));
}

void TestRulerMarkers::iconsOfTheProvider()
{
    Provider provider;
    const auto provided = [&](qint64 offset, int kind, int index) {
        RulerMarker result = marker(offset);
        result.kind = kind;
        result.iconIndex = index;
        result.iconProvider = &provider;
        return result;
    };
    m_ruler->onAddMarkers({provided(10 * minute, 3, 0), provided(20 * minute, 3, 1),
                           provided(30 * minute, 3, 2), provided(40 * minute, 3, 0)});
    QCOMPARE(provider.asked, 2);
    const auto buttons = visibleButtons(*m_ruler);
    QCOMPARE(middleColor(buttons[0]), QColor(Qt::magenta));
    QCOMPARE(middleColor(buttons[1]), QColor(Qt::cyan));
    QCOMPARE(middleColor(buttons[2]), QColor(Qt::cyan));

    // Of another kind the same marker has the ruler's own icon.
    m_ruler->onClearMarkers();
    m_ruler->onAddMarkers({provided(10 * minute, 2, 0)});
    QVERIFY(middleColor(visibleButtons(*m_ruler)[0]) != QColor(Qt::magenta));
    QCOMPARE(provider.asked, 2);
    m_ruler.reset();
}

void TestRulerMarkers::hoverColors()
{
    Provider provider;
    RulerMarker provided = marker(10 * minute);
    provided.kind = 3;
    provided.iconIndex = 0;
    provided.iconProvider = &provider;
    m_ruler->onAddMarkers({provided});
    auto* button = visibleButtons(*m_ruler).front();
    send(button, QEvent::Enter, QPoint(8, 8));
    QCOMPARE(middleColor(button), POrvGuiTheme::colorLightRed);
    QTest::mousePress(button, Qt::LeftButton);
    QCOMPARE(middleColor(button), POrvGuiTheme::colorOrange);
    QTest::mouseRelease(button, Qt::LeftButton);
    send(button, QEvent::Leave, {});
    QCOMPARE(middleColor(button), QColor(Qt::magenta));
    m_ruler.reset();
}

void TestRulerMarkers::markerPreview()
{
    m_ruler->onAddMarkers(markersAtPixels({300}));
    m_ruler->setPreviewEnabled(true);
    m_ruler->onPreviewVisible(true, false);
    auto* button = visibleButtons(*m_ruler).front();
    m_ruler->takeLog();
    send(button, QEvent::Enter, QPoint(8, 8));
    send(button, QEvent::MouseMove, QPoint(10, 8));
    QTRY_COMPARE(m_ruler->log.size(), 2);
    QCOMPARE(m_ruler->log,
             (QStringList{u"preview 1044 at 299 marker"_s, u"preview 1051 at 302"_s}));
}

void TestRulerMarkers::iconSizes()
{
    m_ruler->onAddMarkers(markersAtPixels({300}));
    auto* button = visibleButtons(*m_ruler).front();
    QCOMPARE(button->size(), QSize(16, 18));
    m_ruler->setIconSize(QSize(16, 16));
    QCOMPARE(button->iconSize(), QSize(14, 14));
    QCOMPARE(button->size(), QSize(14, 16));
    m_ruler->setIconSize(QSize(17, 400));
    QCOMPARE(button->iconSize(), QSize(15, 206));
    QVERIFY(button->geometry().bottom() < m_ruler->height() && button->y() > m_ruler->height() / 4);
    QCOMPARE(button->centerX(), 300);
}

void TestRulerMarkers::markerAreaLeavesRoomForTexts()
{
    m_ruler->onAddMarkers(markersAtPixels({300}));
    const int header = m_ruler->height() / 4;
    const auto top = [&] {
        return visibleButtons(*m_ruler).front()->y();
    };
    const int withoutTracks = top();
    QVERIFY(withoutTracks >= header + header / 2);
    m_ruler->setTrackDescriptions({{u"a"_s, u"Gate"_s, monday, monday + day, {}}});
    m_ruler->updateChildren(true);
    QVERIFY(top() > withoutTracks);
    QVERIFY(visibleButtons(*m_ruler).front()->geometry().bottom() < m_ruler->height());
}

void TestRulerMarkers::onlyInsideTheResultRange()
{
    m_ruler->onAddMarkers(markersAtPixels({100, 200, 300, 400}));
    const auto timeAtPixel = [](int x) {
        return timeAt((x - 10) * pixel);
    };
    m_ruler->setResultTimeRange(timeAtPixel(200), timeAtPixel(300), false, false, true, false);
    QCOMPARE(symbols(*m_ruler), u"200 300"_s);
    m_ruler->setResultTimeRange(timeAtPixel(200), timeAtPixel(300), true, true, false, false);
    QCOMPARE(symbols(*m_ruler), u"100 200 300 400"_s);
    const QImage marked = m_ruler->grab().toImage();
    QCOMPARE(marked.pixelColor(200, m_ruler->height() - 3), POrvGuiTheme::colorOrange);
    QCOMPARE(marked.pixelColor(300, m_ruler->height() - 3), POrvGuiTheme::colorOrange);

    m_ruler->takeLog();
    m_ruler->setResultTimeRange(timeAtPixel(200), timeAtPixel(300), true, true, true, true);
    QVERIFY(m_ruler->takeLog().contains(u"level 0"_s));
    m_ruler->setResultTimeRange({}, {}, false, false, false, false);
    m_ruler->changeLevel(1, 0.0);
    QVERIFY(m_ruler->grab().toImage().pixelColor(200, m_ruler->height() - 3) !=
            POrvGuiTheme::colorOrange);
}

void TestRulerMarkers::inactiveRulerWaits()
{
    m_ruler->setActive(false, false);
    m_ruler->onAddMarkers(markersAtPixels({300}));
    QCOMPARE(m_ruler->takeLog(), QStringList());
    m_ruler->setActive(true, false);
    QCOMPARE(m_ruler->takeLog(), QStringList{u"new 02 00:17"_s});
    QCOMPARE(symbols(*m_ruler), u"300"_s);

    // What is gone is not shown any longer all the same.
    m_ruler->setActive(false, false);
    m_ruler->onHideMarkers();
    QCOMPARE(symbols(*m_ruler), QString());
}

void TestRulerMarkers::manyMarkersNeedFewButtons()
{
    QList<RulerMarker> markers;
    for (int i = 0; i < 20'000; ++i)
        markers << marker(i * 40 * second);
    m_ruler->onAddMarkers(markers);
    for (int level = 0; level <= 8; ++level) {
        m_ruler->changeLevel(level, 0.5);
        m_ruler->onTimelineOffsetChanged(0.5);
        QVERIFY(!visibleButtons(*m_ruler).isEmpty());
        QVERIFY(m_ruler->findChildren<RulerMarkerButton*>().size() <= 1020 / 6);
    }
}

void TestRulerMarkers::clearingInsideSignals_data()
{
    using Act = std::function<void(Ruler&)>;
    QTest::addColumn<Act>("act");
    QTest::newRow("markers") << Act([](Ruler& ruler) { ruler.onClearMarkers(); });
    QTest::newRow("buttons") << Act(
        [](Ruler& ruler) { qDeleteAll(ruler.findChildren<RulerMarkerButton*>()); });
    QTest::newRow("all buttons") << Act(
        [](Ruler& ruler) { qDeleteAll(ruler.findChildren<QAbstractButton*>()); });
    QTest::newRow("ruler") << Act([](Ruler& ruler) { delete &ruler; });
}

void TestRulerMarkers::clearingInsideSignals()
{
    QFETCH(std::function<void(Ruler&)>, act);

    for (const bool twice : {false, true}) {
        QPointer<LoggedRuler> ruler = new LoggedRuler;
        ruler->setTimeLimits(at(0), at(10 * day));
        ruler->onAddMarkers(markersAtPixels({300, 500}));
        QObject context;
        const auto perform = [&] {
            act(*ruler);
        };
        if (twice)
            connect(ruler, &Ruler::jumpToTrackTime, &context, perform);
        else
            connect(ruler, &Ruler::jumpToTime, &context, perform);
        auto* button = visibleButtons(*ruler).front();
        if (twice)
            QTest::mouseDClick(button, Qt::LeftButton);
        else
            QTest::mousePress(button, Qt::LeftButton);
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

QTEST_MAIN(TestRulerMarkers)
#include "tst_rulermarkers.moc"
