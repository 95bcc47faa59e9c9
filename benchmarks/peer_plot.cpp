// SPDX-License-Identifier: MIT
// The same drag on a plotting widget, for comparison.

#include "measure.h"

// The widget's header is written with them.
#undef QT_NO_KEYWORDS
#undef QT_NO_FOREACH

#include <QApplication>
#include <QMouseEvent>

#include <qcustomplot.h>

namespace {

constexpr double begin = 1'772'409'600.0;
constexpr double day = 86'400.0;

void dragPlottingWidget(benchmark::State& state)
{
    QCustomPlot plot;
    plot.resize(1920, 60);
    plot.setInteraction(QCP::iRangeDrag);
    plot.axisRect()->setRangeDrag(Qt::Horizontal);
    plot.xAxis->setTicker(QSharedPointer<QCPAxisTickerDateTime>::create());
    plot.xAxis->setRange(begin - day / 10, begin + day * 9 / 10);
    plot.yAxis->setRange(0, 2);

    QPixmap symbol(14, 14);
    symbol.fill(Qt::red);
    QCPGraph* graph = plot.addGraph();
    graph->setLineStyle(QCPGraph::lsNone);
    graph->setScatterStyle(QCPScatterStyle(symbol));
    QVector<double> times;
    for (std::int64_t i = 0; i < state.range(0); ++i)
        times.append(begin + day * 0.8 * double(i) / double(state.range(0)));
    graph->setData(times, QVector<double>(times.size(), 1.0), true);
    plot.show();
    QCoreApplication::processEvents();

    const auto sendMouse = [&plot](QEvent::Type type, int x) {
        const QPointF position(x, 30);
        QMouseEvent event(type, position, plot.mapToGlobal(position), Qt::LeftButton,
                          Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&plot, &event);
    };
    sendMouse(QEvent::MouseButtonPress, 900);
    int step = 0;
    RatioTimer timer(state, 100);
    for (auto _ : state) {
        const int phase = ++step % 80;
        sendMouse(QEvent::MouseMove, 1000 + 3 * (phase < 40 ? phase : 80 - phase));
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents();
    }
    timer.stop();
}

} // namespace

BENCHMARK(dragPlottingWidget)
    ->Arg(100)
    ->Arg(0)
    ->Arg(1'000)
    ->Arg(10'000)
    ->Arg(100'000)
    ->Arg(1'000'000)
    ->Unit(benchmark::kMicrosecond);
