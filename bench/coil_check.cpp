// Cost of one coil check (the outlet-temperature iteration with its humid-air states) and of a
// record lookup in the bundled device database, which the check dialog does on every press.

#include <benchmark/benchmark.h>

#include <clocale>
#include <string>

#include "coil/coil_check.h"
#include "coil/model_lookup.h"

namespace {

bool lookup(vrn2::CoolerModel& model, const std::wstring& name, int rows) {
    const std::string root = VRN2_SOURCE_ROOT;
    const std::wstring path = std::wstring(root.begin(), root.end()) + L"datlib/sc.dat";
    return vrn2::lookupCoolerModel(path, name, rows, model, nullptr);
}

void CoilCheck(benchmark::State& state) {
    std::setlocale(LC_CTYPE, "C.UTF-8");
    vrn2::CoolerModel model;
    if (!lookup(model, L"JW30", static_cast<int>(state.range(0)))) {
        state.SkipWithError("JW30 not in datlib/sc.dat");
        return;
    }
    vrn2::CoilCheckInput in;
    in.t1 = 28.0;
    in.ts1 = 20.5;
    in.G = 24000.0;
    in.tw1 = 7.0;
    in.W = 24000.0;
    in.rows = model.rows;
    vrn2::CoilCheckResult result;
    for (auto _ : state) {
        benchmark::DoNotOptimize(vrn2::checkCoil(in, model, result, nullptr));
        benchmark::DoNotOptimize(result.Q);
    }
    state.counters["iterations"] = static_cast<double>(result.iterations);
}
BENCHMARK(CoilCheck)->Arg(2)->Arg(4)->Arg(8);

void LastRecordLookup(benchmark::State& state) {
    std::setlocale(LC_CTYPE, "C.UTF-8");
    vrn2::CoolerModel model;
    for (auto _ : state) benchmark::DoNotOptimize(lookup(model, L"JW40", 8));
}
BENCHMARK(LastRecordLookup);

}  // namespace

BENCHMARK_MAIN();
