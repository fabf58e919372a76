// The pure work of the pipe tools at their 1 500-entity limit: the pair scans of the
// collision marks and the crossing breaks, and the flood of a pipe run.

#include <benchmark/benchmark.h>

#include <cstdint>
#include <vector>

#include "drawing/collision_marks.h"
#include "drawing/crossing_breaks.h"
#include "drawing/pipe_trace.h"

namespace {

using namespace vrn2::drawing;

constexpr std::size_t kLimit = 1500;

// Pipes scattered over a 100 m square floor, a third of them sloping, lengths up to 6 m:
// a few crossings each, like a dense plant room drawing.
std::vector<PipeSegment> scatteredPipes(std::size_t count) {
    std::uint64_t seed = 0x2545F4914F6CDD1Dull;
    auto uniform = [&seed](double lo, double hi) {
        seed = seed * 6364136223846793005ull + 1442695040888963407ull;
        return lo + (hi - lo) * static_cast<double>(seed >> 11) / 9007199254740992.0;
    };
    std::vector<PipeSegment> pipes;
    for (std::size_t i = 0; i < count; ++i) {
        const double x = uniform(0, 100000), y = uniform(0, 100000), z = uniform(0, 3000);
        const bool alongX = i % 2 == 0;
        const double length = uniform(500, 6000);
        const double rise = i % 3 == 0 ? uniform(-300, 300) : 0.0;
        pipes.push_back({{x, y, z}, {alongX ? x + length : x, alongX ? y : y + length, z + rise}});
    }
    return pipes;
}

void CollisionMarksAtTheLimit(benchmark::State& state) {
    const auto pipes = scatteredPipes(kLimit);
    for (auto _ : state) benchmark::DoNotOptimize(collisionMarks(pipes, 50.0));
    state.counters["pairs"] = static_cast<double>(kLimit * (kLimit - 1) / 2);
}
BENCHMARK(CollisionMarksAtTheLimit)->Unit(benchmark::kMillisecond);

void CrossingBreaksAtTheLimit(benchmark::State& state) {
    const auto pipes = scatteredPipes(kLimit);
    std::size_t gaps = 0;
    for (auto _ : state) {
        const BreakPlan plan = planCrossingBreaks(pipes, 100.0);
        gaps = plan.breaks.size();
        benchmark::DoNotOptimize(plan);
    }
    state.counters["gaps"] = static_cast<double>(gaps);
}
BENCHMARK(CrossingBreaksAtTheLimit)->Unit(benchmark::kMillisecond);

// One long run of 1 500 pipes with its records in reverse order: each step scans the whole
// list from the start, the worst case of the flood.
void TraceOfALongRunAtTheLimit(benchmark::State& state) {
    std::vector<PipeSegment> pipes;
    for (std::size_t i = kLimit; i-- > 0;)
        pipes.push_back({{i * 1000.0, 0, 0}, {(i + 1) * 1000.0, 0, 0}});
    for (auto _ : state) benchmark::DoNotOptimize(tracePipeRun(pipes, {0, 0, 0}));
}
BENCHMARK(TraceOfALongRunAtTheLimit)->Unit(benchmark::kMillisecond);

// A comb: a main of 500 pipes with a two-pipe branch at every joint.
void TraceOfABranchedRunAtTheLimit(benchmark::State& state) {
    std::vector<PipeSegment> pipes;
    for (std::size_t i = 0; i < kLimit / 3; ++i) {
        const double x = i * 1000.0;
        pipes.push_back({{x, 0, 0}, {x + 1000.0, 0, 0}});
        pipes.push_back({{x + 1000.0, 0, 0}, {x + 1000.0, 800, 0}});
        pipes.push_back({{x + 1000.0, 800, 0}, {x + 1000.0, 1600, 0}});
    }
    for (auto _ : state) benchmark::DoNotOptimize(tracePipeRun(pipes, {0, 0, 0}));
}
BENCHMARK(TraceOfABranchedRunAtTheLimit)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
