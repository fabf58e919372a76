// Tracing generated supply-air networks: long chains and branching trees of 1 000 to 100 000
// duct lines with outlets at their ends, the selection in a scrambled order. Reports the time
// per segment; the trace should stay close to linear.

#include <benchmark/benchmark.h>

#include <cstdint>
#include <utility>
#include <vector>

#include "duct/network_trace.h"

namespace {

using vrn2::duct::DuctPoint;
using vrn2::duct::EntityKind;
using vrn2::duct::NetworkEntity;

NetworkEntity line(DuctPoint a, DuctPoint b) {
    NetworkEntity e;
    e.kind = EntityKind::Line;
    e.first = a;
    e.second = b;
    return e;
}

NetworkEntity outlet(DuctPoint at) {
    NetworkEntity e;
    e.kind = EntityKind::Outlet;
    e.first = at;
    e.outletFlow = 200.0;
    return e;
}

// Deterministic shuffle of everything but the start duct.
void scramble(std::vector<NetworkEntity>& selection) {
    std::uint64_t seed = 0x2545F4914F6CDD1Dull;
    for (std::size_t i = selection.size() - 1; i > 1; --i) {
        seed = seed * 6364136223846793005ull + 1442695040888963407ull;
        std::size_t j = 1 + (seed >> 33) % i;
        std::swap(selection[i], selection[j]);
    }
}

std::vector<NetworkEntity> chain(int n) {
    std::vector<NetworkEntity> s;
    for (int i = 0; i < n; ++i) s.push_back(line({i * 1000.0, 0, 0}, {(i + 1) * 1000.0, 0, 0}));
    s.push_back(outlet({n * 1000.0, 0, 0}));
    scramble(s);
    return s;
}

// A main duct along x with a side branch of three lines and an outlet every fourth metre.
std::vector<NetworkEntity> tree(int n) {
    std::vector<NetworkEntity> s;
    for (int i = 0; static_cast<int>(s.size()) < n; ++i) {
        double x = i * 1000.0;
        s.push_back(line({x, 0, 0}, {x + 1000.0, 0, 0}));
        for (int k = 0; k < 3; ++k) s.push_back(line({x + 1000.0, k * 1000.0, 0}, {x + 1000.0, (k + 1) * 1000.0, 0}));
        s.push_back(outlet({x + 1000.0, 3000.0, 0}));
    }
    scramble(s);
    return s;
}

template <std::vector<NetworkEntity> (*Make)(int)>
void BM_Trace(benchmark::State& state) {
    std::vector<NetworkEntity> selection = Make(static_cast<int>(state.range(0)));
    std::size_t segments = 0;
    for (auto _ : state) {
        auto result = vrn2::duct::traceNetwork(selection, 0, {0, 0, 0});
        segments = result.network.segments.size();
        benchmark::DoNotOptimize(result);
    }
    state.counters["segments"] = static_cast<double>(segments);
    state.counters["per_segment"] = benchmark::Counter(static_cast<double>(segments),
                                                       benchmark::Counter::kIsIterationInvariantRate |
                                                           benchmark::Counter::kInvert);
}

BENCHMARK(BM_Trace<chain>)->Name("trace/chain")->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Trace<tree>)->Name("trace/tree")->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
