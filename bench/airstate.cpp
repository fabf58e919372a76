// Cost of one call of each humid-air solver and inverse function over realistic states:
// dry bulb -40..60 °C, relative humidity 5..100 %, pressure 80..110 kPa.

#include <benchmark/benchmark.h>

#include <cstddef>
#include <cstdint>
#include <vector>

#include "psychro/airstate/airstate.h"

namespace {

// Complete reference states on a deterministic scatter over the realistic ranges. States whose
// dew point would fall below the library's -60 °C are left out: they raise an alert instead.
std::vector<AirState> ReferenceStates() {
    std::vector<AirState> states;
    std::uint64_t seed = 0x9E3779B97F4A7C15ull;
    auto uniform = [&seed](double lo, double hi) {
        seed = seed * 6364136223846793005ull + 1442695040888963407ull;
        return lo + (hi - lo) * static_cast<double>(seed >> 11) / 9007199254740992.0;
    };
    const double lowestVapourPressure_Pa = SaturationPressureIce(273.15 - 59.0);
    while (states.size() < 1024) {
        AirState s;
        s.B = uniform(80.0, 110.0);
        s.t = uniform(-40.0, 60.0);
        s.fy = uniform(5.0, 100.0);
        if (SaturationPressure(s.t) * s.fy / 100.0 < lowestVapourPressure_Pa) continue;
        StateFromTempHumidity(s);
        s.db = MoistureFromVapourPressure(s.pb, 1000.0 * s.B);
        states.push_back(s);
    }
    return states;
}

const std::vector<AirState>& References() {
    static const std::vector<AirState> states = ReferenceStates();
    return states;
}

// The input records of one solver: B and the known fields of each reference state.
template <class Keep>
std::vector<AirState> InputsOf(Keep keep) {
    std::vector<AirState> inputs;
    for (const AirState& ref : References()) {
        AirState in;
        in.B = ref.B;
        keep(in, ref);
        inputs.push_back(in);
    }
    return inputs;
}

template <class Keep>
void RunSolver(benchmark::State& bench, int (*solver)(AirState&), Keep keep) {
    const std::vector<AirState> inputs = InputsOf(keep);
    std::size_t k = 0;
    for (auto _ : bench) {
        AirState s = inputs[k];
        benchmark::DoNotOptimize(solver(s));
        benchmark::DoNotOptimize(s);
        k = (k + 1) % inputs.size();
    }
}

#define SOLVER_BENCHMARK(Solver, ...)                                                        \
    void BM_##Solver(benchmark::State& bench) {                                              \
        RunSolver(bench, Solver, [](AirState& in, const AirState& ref) { __VA_ARGS__; });  \
    }                                                                                        \
    BENCHMARK(BM_##Solver)

SOLVER_BENCHMARK(StateFromEnthalpyMoisture, in.i = ref.i; in.d = ref.d);
SOLVER_BENCHMARK(StateFromEnthalpyMoistureSupplyAir, in.i = ref.i; in.d = ref.d);
SOLVER_BENCHMARK(StateFromTempHumidity, in.t = ref.t; in.fy = ref.fy);
SOLVER_BENCHMARK(StateFromTempWetBulb, in.t = ref.t; in.ts = ref.ts);
SOLVER_BENCHMARK(StateFromTempWetBulbSurfaceCooler, in.t = ref.t; in.ts = ref.ts);
SOLVER_BENCHMARK(StateFromTempMoisture, in.t = ref.t; in.d = ref.d);
SOLVER_BENCHMARK(SaturationFromEnthalpy, in.i = ref.i);
SOLVER_BENCHMARK(StateFromTempDewPoint, in.t = ref.t; in.tl = ref.tl);
SOLVER_BENCHMARK(StateFromMoistureHumidity, in.d = ref.d; in.fy = ref.fy);
SOLVER_BENCHMARK(StateFromSaturatedMoistureHumidity, in.db = ref.db; in.fy = ref.fy);
SOLVER_BENCHMARK(StateFromSaturatedMoistureDewPoint, in.db = ref.db; in.tl = ref.tl);
SOLVER_BENCHMARK(StateFromEnthalpyHumidity, in.i = ref.i; in.fy = ref.fy; in.d = ref.d);

void BM_DewPointFromPressure(benchmark::State& bench) {
    const auto& refs = References();
    std::size_t k = 0;
    for (auto _ : bench) {
        benchmark::DoNotOptimize(DewPointFromPressure(refs[k].pq));
        k = (k + 1) % refs.size();
    }
}
BENCHMARK(BM_DewPointFromPressure);

void BM_WetBulbTemperature(benchmark::State& bench) {
    const auto& refs = References();
    std::size_t k = 0;
    for (auto _ : bench) {
        const AirState& r = refs[k];
        benchmark::DoNotOptimize(WetBulbTemperature(r.t, r.pq, 1000.0 * r.B));
        k = (k + 1) % refs.size();
    }
}
BENCHMARK(BM_WetBulbTemperature);

void BM_TemperatureFromEnthalpy(benchmark::State& bench) {
    const auto& refs = References();
    std::size_t k = 0;
    for (auto _ : bench) {
        const AirState& r = refs[k];
        benchmark::DoNotOptimize(TemperatureFromEnthalpy(r.i, 1000.0 * r.B, r.fy));
        k = (k + 1) % refs.size();
    }
}
BENCHMARK(BM_TemperatureFromEnthalpy);

}  // namespace

BENCHMARK_MAIN();
