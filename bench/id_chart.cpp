// Cost of constructing the whole i-d chart (every line, curve and label) for one pressure: the
// work the chart command does before it draws anything.
#include <benchmark/benchmark.h>

#include "psychro/id_chart_build.h"

namespace {

void BM_StandardChart(benchmark::State& bench) {
    vrn2::ChartRequest request;
    for (auto _ : bench) {
        vrn2::ChartDrawing chart = vrn2::buildIdChart(request);
        benchmark::DoNotOptimize(chart.lines.data());
    }
}
BENCHMARK(BM_StandardChart)->Unit(benchmark::kMillisecond);

// The widest chart accepted: -40..80 °C, 0..100 g/kg at 50 kPa.
void BM_WidestChart(benchmark::State& bench) {
    vrn2::ChartRequest request;
    request.B = 50.0, request.tMin = -40.0, request.tMax = 80.0, request.dMax = 100.0;
    for (auto _ : bench) {
        vrn2::ChartDrawing chart = vrn2::buildIdChart(request);
        benchmark::DoNotOptimize(chart.lines.data());
    }
}
BENCHMARK(BM_WidestChart)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
