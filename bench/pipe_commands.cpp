// pzjc in both modes and gdsx through the host at their 1 500-entity limit: the module loaded
// in-process, each run on a fresh drawing made while the clock is paused. Needs Vrn2.so built
// beside the benchmarks (cmake --build build --target Vrn2). A fixed count of runs: making the
// drawing, with the clock paused, costs more than the command.
#include <benchmark/benchmark.h>

#include <cstdint>
#include <memory>
#include <string>

#include "acdbads.h"
#include "acedads.h"
#include "acutads.h"
#include "adscodes.h"
#include "host/db/resbuf.h"
#include "host/lisp/interpreter.h"
#include "host/output.h"
#include "host/runtime/host.h"
#include "host/text.h"

namespace {

constexpr int kLimit = 1500;

void make(resbuf* list) {
    host::RbPtr owned(list);
    acdbEntMake(list);
}

void polylinePipe(const double a[3], const double b[3]) {
    make(acutBuildList(RTDXF0, L"POLYLINE", 8, L"$R01-GS", 66, 1, 70, 8, -3, 1001, L"STARTP", 1010, a, 1001, L"ENDP",
                       1010, b, 1001, L"GUANJ", 1000, L"DN25", 0));
    make(acutBuildList(RTDXF0, L"VERTEX", 8, L"$R01-GS", 10, a, 70, 32, 0));
    make(acutBuildList(RTDXF0, L"VERTEX", 8, L"$R01-GS", 10, b, 70, 32, 0));
    make(acutBuildList(RTDXF0, L"SEQEND", 0));
}

// Scattered pipes over a 100 m floor, alternately along x and y, a third of them sloping.
void scatteredPipes(bool polylines) {
    std::uint64_t seed = 0x2545F4914F6CDD1Dull;
    auto uniform = [&seed](double lo, double hi) {
        seed = seed * 6364136223846793005ull + 1442695040888963407ull;
        return lo + (hi - lo) * static_cast<double>(seed >> 11) / 9007199254740992.0;
    };
    for (int i = 0; i < kLimit; ++i) {
        const double x = uniform(0, 100000), y = uniform(0, 100000), z = uniform(0, 3000);
        const double length = uniform(500, 6000), rise = i % 3 == 0 ? uniform(-300, 300) : 0.0;
        double a[3] = {x, y, z}, b[3] = {i % 2 ? x : x + length, i % 2 ? y + length : y, z + rise};
        if (polylines) polylinePipe(a, b);
        else make(acutBuildList(RTDXF0, L"LINE", 8, L"R01-GS", 10, a, 11, b, 0));
    }
}

void chainOfPipes() {
    for (int i = 0; i < kLimit; ++i) {
        double a[3] = {i * 1000.0, 0, 0}, b[3] = {(i + 1) * 1000.0, 0, 0};
        polylinePipe(a, b);
    }
}

struct ModuleSession {
    host::OutputCapture capture;
    host::lisp::Interpreter lisp;
    bool loaded = false;

    ModuleSession() {
        host::Host::instance().openDocument(L"");
        std::wstring error;
        loaded = host::Host::instance().loadModule(std::string(VRN2_BUILD_ROOT) + "Vrn2.so", error) != nullptr;
    }
    ~ModuleSession() {
        host::Host::instance().unloadAllModules();
        host::Host::instance().closeAllDocuments();
    }
    void freshDrawing() {
        host::Host::instance().closeAllDocuments();
        host::Host::instance().openDocument(L"");
        for (const wchar_t* application : {L"STARTP", L"ENDP", L"GUANJ"}) acdbRegApp(application);
    }
};

template <class Populate>
void runOnFreshDrawings(benchmark::State& state, Populate populate, const std::wstring& script) {
    ModuleSession session;
    if (!session.loaded) {
        state.SkipWithError("Vrn2.so not built");
        return;
    }
    long entities = 0;
    for (auto _ : state) {
        state.PauseTiming();
        session.freshDrawing();
        populate();
        ads_name all;
        if (acedSSGet(L"X", nullptr, nullptr, nullptr, all) == RTNORM) {
            acedSSLength(all, &entities);
            acedSSFree(all);
        }
        state.ResumeTiming();
        session.lisp.evalText(script);
    }
    state.counters["entities"] = static_cast<double>(entities);
}

void PzjcMarksAtTheLimit(benchmark::State& state) {
    runOnFreshDrawings(state, [] { scatteredPipes(false); }, L"(pzjc 0 50.0)");
}
BENCHMARK(PzjcMarksAtTheLimit)->Unit(benchmark::kMillisecond)->Iterations(5);

void PzjcBreaksAtTheLimit(benchmark::State& state) {
    runOnFreshDrawings(state, [] { scatteredPipes(true); }, L"(pzjc 1 100.0)");
}
BENCHMARK(PzjcBreaksAtTheLimit)->Unit(benchmark::kMillisecond)->Iterations(5);

void GdsxOverALongRunAtTheLimit(benchmark::State& state) {
    runOnFreshDrawings(state, chainOfPipes,
                       L"(gdsx 0 '(0.0 0.0 0.0) (ssname (ssget \"X\" '((0 . \"POLYLINE\"))) 0) "
                       L"(ssget \"X\") (ssadd) 1000.0)");
}
BENCHMARK(GdsxOverALongRunAtTheLimit)->Unit(benchmark::kMillisecond)->Iterations(5);

}  // namespace

BENCHMARK_MAIN();
