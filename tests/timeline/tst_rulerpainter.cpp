#include "devicegrid.h"
#include "rulerpainter.h"
#include "testsupport.h"
#include "times.h"
#include "timescale.h"
#include "tracksegments.h"

#include <QImage>
#include <QPainter>
#include <QTest>

using namespace CorvelGui;
using namespace Qt::StringLiterals;

namespace {

constexpr int width = 1020;
constexpr int height = 60;
constexpr int header = 15;
// Away from every tick of the scales below.
constexpr int bodyY = 40;

const QColor black(0, 0, 0);

} // namespace

class TestRulerPainter : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void bandsOnlyWithoutView();
    void gradientOrder();
    void threeTrackStates();
    void shadeOutsideTheLimits();
    void searchRangeWithinTheScale();
    void previewLine();
    void ticksStayCrisp();

private:
    QImage paint(double ratio = 1.0);
    static QColor between(const QImage& image, int x) { return image.pixelColor(x, bodyY); }

    TimeScale m_scale;
    TrackSegments m_segments;
    RulerPainter m_painter;
    std::optional<TimeSpan> m_search;
    std::optional<qint64> m_preview;
};

void TestRulerPainter::init()
{
    WarningFreeTest::init();
    m_scale = TimeScale();
    m_scale.setWidth(width);
    m_scale.setTimeZone(QTimeZone::utc());
    // A pixel is a minute of a day with 1000 minutes; ticks stand on x = 10 + 50 * n.
    m_scale.setTimeLimits(quint64(monday), quint64(monday + 1000 * minute));
    m_scale.changeLevel(TimeScale::wholeRangeLevel, 0.0);
    m_segments = TrackSegments();
    m_painter = RulerPainter();
    m_painter.colors.body = QColor(10, 20, 30);
    m_search.reset();
    m_preview.reset();
}

QImage TestRulerPainter::paint(double ratio)
{
    QImage image(QSizeF(width * ratio, height * ratio).toSize(), QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::magenta);
    m_segments.update(m_scale);
    m_painter.createGradients(QRect(0, 0, width, height), header);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    m_painter.paint(painter, {.scale = m_scale,
                              .segments = m_segments,
                              .rect = QRect(0, 0, width, height),
                              .headerHeight = header,
                              .dateFormat = u"dd.MM.yy"_s,
                              .searchRange = m_search,
                              .previewTime = m_preview});
    return image;
}

void TestRulerPainter::bandsOnlyWithoutView()
{
    m_scale.setTimeLimits(quint64(monday), quint64(monday));
    const QImage image = paint();
    for (int y = header; y < height; ++y) {
        for (int x = 0; x < width; ++x)
            QCOMPARE(image.pixelColor(x, y), m_painter.colors.body);
    }
    QVERIFY(image.pixelColor(0, 0) != QColor(Qt::magenta));
}

void TestRulerPainter::gradientOrder()
{
    QImage image = paint();
    QVERIFY(image.pixelColor(36, 0).lightness() < m_painter.colors.header.lightness() / 2);
    QCOMPARE(image.pixelColor(36, header - 1), m_painter.colors.header);

    m_painter.colors.track = QColor(0, 0, 200);
    m_painter.colors.header = QColor(200, 0, 0);
    m_segments.setTracks(
        {{u"a"_s, u"Gate"_s, monday, monday + 2 * hour, {{monday, monday + 2 * hour}}}});
    image = paint();
    // Header colour on top, track colour from 0.7 to 37/44 of the band, edge colour at its foot.
    QVERIFY(image.pixelColor(36, header + 1).red() > 180);
    QCOMPARE(image.pixelColor(36, header + 32), QColor(0, 0, 200));
    QCOMPARE(image.pixelColor(36, header + 36), QColor(0, 0, 200));
    QVERIFY(image.pixelColor(36, height - 1).green() > 230);
}

void TestRulerPainter::threeTrackStates()
{
    m_segments.setTracks({{u"a"_s,
                           u"Gate"_s,
                           monday + 100 * minute,
                           monday + 300 * minute,
                           {{monday + 200 * minute, monday + 200 * minute + 1}}}});
    const QImage image = paint();
    const QColor recorded = between(image, 210);
    QCOMPARE(between(image, 105), m_painter.colors.body);
    QCOMPARE(between(image, 115), black);
    QVERIFY(recorded != black && recorded != m_painter.colors.body);
    QCOMPARE(between(image, 305), black);
    QCOMPARE(between(image, 315), m_painter.colors.body);
}

void TestRulerPainter::shadeOutsideTheLimits()
{
    QImage image = paint();
    for (const int x : {7, 1012})
        QCOMPARE(between(image, x), black);
    for (const int x : {4, 11, 1009, 1015})
        QCOMPARE(between(image, x), m_painter.colors.body);
    m_scale.centerOnPosition(0.4);
    image = paint();
    QCOMPARE(between(image, 107), black);
    QCOMPARE(between(image, 113), m_painter.colors.body);
}

void TestRulerPainter::searchRangeWithinTheScale()
{
    m_painter.colors.header = black;
    m_painter.colors.search = QColor(0, 0, 255);
    const struct
    {
        qint64 begin, end;
        int first, last;
    } cases[] = {{110 * minute, 130 * minute, 120, 139}, {-day, 2 * day, 5, 1014}};
    for (const auto& [begin, end, first, last] : cases) {
        m_search = TimeSpan{monday + begin, monday + end};
        const QImage image = paint();
        for (const int x : {first - 1, first, last, last + 1})
            QCOMPARE(image.pixelColor(x, 1).blue() > 100, x >= first && x <= last);
    }
    m_search = TimeSpan{monday + 2 * day, monday + 3 * day};
    QVERIFY(paint().pixelColor(1014, 1).blue() <= 100);
}

void TestRulerPainter::previewLine()
{
    const struct
    {
        qint64 time;
        int x;
        QColor color;
    } cases[] = {{123 * minute, 133, m_painter.colors.preview},
                 {-5 * minute, 5, m_painter.colors.preview}, // in the outer margin
                 {-hour, 5, m_painter.colors.previewClamped},
                 {day, 1015, m_painter.colors.previewClamped}};
    for (const auto& [time, x, color] : cases) {
        m_preview = monday + time;
        const QImage image = paint();
        QCOMPARE(between(image, x), color);
        QCOMPARE(image.pixelColor(x, height - 1), color);
        QVERIFY(between(image, x - 1) != color && between(image, x + 1) != color);
    }
}

void TestRulerPainter::ticksStayCrisp()
{
    // Begins at an odd second, so that ticks fall between pixels.
    m_scale.setViewStart(m_scale.viewStart().addMSecs(3 * minute + 17 * second));
    const QColor major(160, 160, 160);
    const QColor minor(90, 90, 90);
    for (const double ratio : {1.0, 1.25, 1.5, 2.0, 3.0}) {
        const QImage image = paint(ratio);
        int lines = 0;
        for (int x = int(10 * ratio); x < int(900 * ratio); ++x) {
            const QColor color = image.pixelColor(x, int(bodyY * ratio));
            QVERIFY2(color == major || color == minor || color == m_painter.colors.body,
                     qPrintable(u"blurred at %1 of %2"_s.arg(x).arg(ratio)));
            lines += color == major;
        }
        QCOMPARE(lines, 18 * std::max(1, qRound(ratio)));
    }
}

QTEST_MAIN(TestRulerPainter)
#include "tst_rulerpainter.moc"
