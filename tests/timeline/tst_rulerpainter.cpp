#include "base/devicegrid.h"
#include "rulerpainter.h"
#include "testscale.h"
#include "testsupport.h"
#include "tracksegments.h"

using namespace CorvelGui;

namespace {

constexpr int width = 1020;
constexpr int height = 60;
constexpr int header = 15;
// Away from every tick of the scales below.
constexpr int bodyY = 40;

const QColor black(0, 0, 0);
const QColor body(10, 20, 30);

/// A painter and what it paints: 1000 minutes, one a pixel, with ticks on x = 10 + 50 * n.
struct Scene
{
    Scene() { painter.colors.body = body; }

    QImage paint(double ratio = 1.0)
    {
        QImage image(QSizeF(width * ratio, height * ratio).toSize(), QImage::Format_RGB32);
        image.setDevicePixelRatio(ratio);
        image.fill(Qt::magenta);
        segments.update(scale);
        painter.createGradients(QRect(0, 0, width, height), header);
        QPainter canvas(&image);
        canvas.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
        painter.paint(canvas, {.scale = scale,
                               .segments = segments,
                               .rect = QRect(0, 0, width, height),
                               .headerHeight = header,
                               .dateFormat = u"dd.MM.yy"_s,
                               .ranges = {.search = search, .preview = preview}});
        return image;
    }
    QColor between(int x) { return paint().pixelColor(x, bodyY); }

    TimeScale scale = scaleOf(1000 * minute, TimeScale::wholeRangeLevel);
    TrackSegments segments;
    RulerPainter painter;
    std::optional<TimeSpan> search = {};
    std::optional<qint64> preview = {};
};

} // namespace

class TestRulerPainter : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void bandsOnlyWithoutView()
    {
        Scene scene;
        scene.scale = scaleOf(0);
        const QImage image = scene.paint();
        QImage plain = image;
        plain.fill(body);
        QCOMPARE(image.copy(0, header, width, height), plain.copy(0, header, width, height));
        QVERIFY(image.pixelColor(0, 0) != QColor(Qt::magenta));
    }

    void gradientOrder()
    {
        Scene scene;
        QImage image = scene.paint();
        QVERIFY(image.pixelColor(36, 0).lightness() < scene.painter.colors.header.lightness() / 2);
        QCOMPARE(image.pixelColor(36, header - 1), scene.painter.colors.header);

        scene.painter.colors.track = QColor(0, 0, 200);
        scene.painter.colors.header = QColor(200, 0, 0);
        scene.segments.setTracks(
            {{u"a"_s, u"Gate"_s, monday, monday + 2 * hour, {{monday, monday + 2 * hour}}}});
        image = scene.paint();
        // Header colour on top, track colour from 0.7 to 37/44 of the band, edge colour at its
        // foot.
        QVERIFY(image.pixelColor(36, header + 1).red() > 180);
        QCOMPARE(image.pixelColor(36, header + 32), QColor(0, 0, 200));
        QCOMPARE(image.pixelColor(36, header + 36), QColor(0, 0, 200));
        QVERIFY(image.pixelColor(36, height - 1).green() > 230);
    }

    void threeTrackStates()
    {
        Scene scene;
        const auto at = [](int x) {
            return monday + (x - 10) * minute;
        };
        scene.segments.setTracks({{u"a"_s, u"Gate"_s, at(110), at(310), {{at(210), at(210) + 1}}}});
        const QColor recorded = scene.between(210);
        QVERIFY(recorded != black && recorded != body);
        // Black is also what lies outside the limits.
        for (const int x : {7, 115, 305, 1012})
            QCOMPARE(scene.between(x), black);
        for (const int x : {4, 11, 105, 315, 1009, 1015})
            QCOMPARE(scene.between(x), body);

        scene.scale.centerOnPosition(0.4);
        QCOMPARE(scene.between(107), black);
        QCOMPARE(scene.between(113), body);
    }

    void searchRangeWithinTheScale()
    {
        Scene scene;
        scene.painter.colors.header = black;
        scene.painter.colors.search = QColor(0, 0, 255);
        const std::tuple<qint64, qint64, int, int> cases[] = {
            {110 * minute, 130 * minute, 120, 139},
            {-day, 2 * day, 5, 1014},
            {2 * day, 3 * day, 2000, 2000}};
        for (const auto& [begin, end, first, last] : cases) {
            scene.search = TimeSpan{monday + begin, monday + end};
            const QImage image = scene.paint();
            for (const int x : {4, 5, 119, 120, 139, 140, 1014, 1015})
                QCOMPARE(image.pixelColor(x, 1).blue() > 100, x >= first && x <= last);
        }
    }

    void previewLine()
    {
        Scene scene;
        const RulerColors& colors = scene.painter.colors;
        const std::tuple<qint64, int, QColor> cases[] = {
            {123 * minute, 133, colors.preview},
            {-5 * minute, 5, colors.preview}, // in the outer margin
            {-hour, 5, colors.previewClamped},
            {day, 1015, colors.previewClamped}};
        for (const auto& [time, x, color] : cases) {
            scene.preview = monday + time;
            const QImage image = scene.paint();
            for (const int y : {bodyY, height - 1})
                QCOMPARE(image.pixelColor(x, y), color);
            QVERIFY(scene.between(x - 1) != color && scene.between(x + 1) != color);
        }
    }

    void ticksStayCrisp()
    {
        Scene scene;
        // Begins at an odd second, so that ticks fall between pixels.
        scene.scale.setViewStart(scene.scale.viewStart().addMSecs(3 * minute + 17 * second));
        const QColor major(160, 160, 160);
        const QColor minor(90, 90, 90);
        for (const double ratio : {1.0, 1.25, 1.5, 2.0, 3.0}) {
            const QImage image = scene.paint(ratio);
            int lines = 0;
            bool hasSquareEnds = false;
            for (int x = int(10 * ratio); x < int(900 * ratio); ++x) {
                const QColor color = image.pixelColor(x, int(bodyY * ratio));
                QVERIFY2(color == major || color == minor || color == body,
                         qPrintable(u"blurred at %1 of %2"_s.arg(x).arg(ratio)));
                lines += color == major;
                hasSquareEnds |= image.pixelColor(x, int(header * ratio) - 1) == minor;
            }
            QVERIFY(hasSquareEnds || ratio < 2);
            QCOMPARE(lines, 18 * std::max(1, qRound(ratio)));
        }
    }
};

QTEST_MAIN(TestRulerPainter)
#include "tst_rulerpainter.moc"
