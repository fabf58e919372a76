// Loading and saving a large drawing: 200 000 entities of mixed types (lines, light-weight
// and old-style polylines, circles, arcs, texts, inserts with attributes, points), most with
// extended data. Reports MB/s of the host's reader and writer, the same for ezdxf on the same
// file (run with /usr/bin/python3 in the same run), and the host's peak memory against the
// file's size.
#include <benchmark/benchmark.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <string>

#include "acdbads.h"
#include "acutads.h"
#include "host/db/database.h"
#include "host/runtime/host.h"
#include "host/db/resbuf.h"

namespace {

namespace fs = std::filesystem;

constexpr int kEntities = 200000;

fs::path drawingPath() { return fs::path(VRN2_BUILD_ROOT) / "bench_dxf_io_200k.dxf"; }
fs::path savedPath() { return fs::path(VRN2_BUILD_ROOT) / "bench_dxf_io_saved.dxf"; }

void make(resbuf* list) {
    host::RbPtr owned(list);
    acdbEntMake(list);
}

// One entity of kind i % 8, with extended data on most.
void makeEntity(int i) {
    double x = (i % 1000) * 10.0, y = (i / 1000) * 10.0;
    double a[3] = {x, y, 0}, b[3] = {x + 7.5, y + 3.25, 0}, c[3] = {x + 5, y + 5, 0};
    wchar_t number[32];
    std::swprintf(number, 32, L"%d", i);
    switch (i % 8) {
    case 0:
    case 1:
        make(acutBuildList(RTDXF0, L"LINE", 8, L"SLJS-1", 10, a, 11, b, -3, 1001, L"K_DUCT_SIZE", 1002, L"{", 1040,
                           500.0, 1040, 320.0, 1002, L"}", 1001, L"K_DUCT_NO", 1070, i % 30000, 1001, L"K_DUCT_G",
                           1000, L"1234.5670000", 0));
        break;
    case 2:
        make(acutBuildList(RTDXF0, L"LWPOLYLINE", 8, L"$P01-AB", 90, 3, 70, 0, 10, a, 42, 0.25, 10, b, 10, c, -3,
                           1001, L"STARTP", 1010, a, 1001, L"ENDP", 1010, c, 1001, L"GUANJ", 1000, L"DN50", 0));
        break;
    case 3: make(acutBuildList(RTDXF0, L"CIRCLE", 8, L"0", 10, c, 40, 2.5, 0)); break;
    case 4:
        make(acutBuildList(RTDXF0, L"ARC", 8, L"0", 10, c, 40, 4.0, 50, 0.5, 51, 2.5, -3, 1001, L"GUANJ", 1000,
                           L"DN20", 0));
        break;
    case 5:
        make(acutBuildList(RTDXF0, L"TEXT", 8, L"风管", 10, a, 40, 3.5, 1, L"送风管 %%c100", 50, 0.0, -3, 1001,
                           L"BMARK", 1000, number, 0));
        break;
    case 6:
        make(acutBuildList(RTDXF0, L"INSERT", 8, L"0", 2, L"C201-1", 10, a, 66, 1, -3, 1001, L"INSP", 1010, a, 0));
        make(acutBuildList(RTDXF0, L"ATTRIB", 10, a, 40, 2.5, 1, number, 2, L"F-LL", 70, 0, 0));
        make(acutBuildList(RTDXF0, L"SEQEND", 0));
        break;
    default:
        make(acutBuildList(RTDXF0, L"POLYLINE", 8, L"$J01-AB", 66, 1, 70, 8, -3, 1001, L"STARTP", 1010, a, 0));
        make(acutBuildList(RTDXF0, L"VERTEX", 10, a, 70, 32, 0));
        make(acutBuildList(RTDXF0, L"VERTEX", 10, b, 70, 32, 0));
        make(acutBuildList(RTDXF0, L"VERTEX", 10, c, 70, 32, 0));
        make(acutBuildList(RTDXF0, L"SEQEND", 0));
        break;
    }
}

void generate() {
    host::Host::instance().openDocument(L"");
    for (const wchar_t* app : {L"K_DUCT_SIZE", L"K_DUCT_NO", L"K_DUCT_G", L"STARTP", L"ENDP", L"GUANJ", L"BMARK", L"INSP"})
        acdbRegApp(app);
    const double o[3] = {0, 0, 0};
    make(acutBuildList(RTDXF0, L"BLOCK", 2, L"C201-1", 70, 2, 10, o, 0));
    make(acutBuildList(RTDXF0, L"CIRCLE", 10, o, 40, 5.0, 0));
    make(acutBuildList(RTDXF0, L"ATTDEF", 10, o, 40, 2.5, 1, L"", 2, L"F-LL", 3, L"flow", 70, 0, 0));
    make(acutBuildList(RTDXF0, L"ENDBLK", 0));
    for (int i = 0; i < kEntities; ++i) makeEntity(i);
    std::wstring error;
    if (!host::Host::instance().current().database().save(drawingPath(), error))
        std::fprintf(stderr, "cannot write the drawing: %ls\n", error.c_str());
}

// Runs body in a child process and answers its peak resident memory in bytes.
template <class Body>
long peakOfChild(Body body) {
    pid_t pid = fork();
    if (pid == 0) {
        body();
        _exit(0);
    }
    int status = 0;
    struct rusage usage{};
    wait4(pid, &status, 0, &usage);
    return usage.ru_maxrss * 1024L;
}

double fileMegabytes() { return static_cast<double>(fs::file_size(drawingPath())) / 1e6; }

void BM_Load(benchmark::State& state) {
    for (auto _ : state) {
        std::wstring error;
        auto db = host::db::Database::load(drawingPath(), error);
        benchmark::DoNotOptimize(db);
    }
    state.SetBytesProcessed(state.iterations() * static_cast<int64_t>(fs::file_size(drawingPath())));
}

void BM_Save(benchmark::State& state) {
    std::wstring error;
    auto db = host::db::Database::load(drawingPath(), error);
    for (auto _ : state) db->save(savedPath(), error);
    state.SetBytesProcessed(state.iterations() * static_cast<int64_t>(fs::file_size(drawingPath())));
}

BENCHMARK(BM_Load)->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK(BM_Save)->Unit(benchmark::kMillisecond)->Iterations(3);

struct Timing {
    double load = 0, save = 0;
    bool ok = false;
};

Timing hostTiming() {
    Timing t;
    auto start = std::chrono::steady_clock::now();
    std::wstring error;
    auto db = host::db::Database::load(drawingPath(), error);
    auto loaded = std::chrono::steady_clock::now();
    t.ok = db && db->save(savedPath(), error);
    auto saved = std::chrono::steady_clock::now();
    t.load = std::chrono::duration<double>(loaded - start).count();
    t.save = std::chrono::duration<double>(saved - loaded).count();
    return t;
}

Timing ezdxfTiming() {
    std::string script =
        "import time, ezdxf\n"
        "t0 = time.perf_counter()\n"
        "doc = ezdxf.readfile('" + drawingPath().string() + "')\n"
        "t1 = time.perf_counter()\n"
        "doc.saveas('" + (fs::path(VRN2_BUILD_ROOT) / "bench_dxf_io_ezdxf.dxf").string() + "')\n"
        "t2 = time.perf_counter()\n"
        "print(t1 - t0, t2 - t1)\n";
    std::string command = "/usr/bin/python3 -c \"" + script + "\" 2>/dev/null";
    Timing t;
    if (FILE* p = popen(command.c_str(), "r")) {
        t.ok = std::fscanf(p, "%lf %lf", &t.load, &t.save) == 2;
        pclose(p);
    }
    return t;
}

}  // namespace

int main(int argc, char** argv) {
    if (!fs::exists(drawingPath())) peakOfChild(generate);
    double mb = fileMegabytes();
    std::printf("drawing: %s, %.1f MB, %d entities\n", drawingPath().c_str(), mb, kEntities);

    // Memory first, while this process holds little that a child would inherit.
    long baseline = peakOfChild([] {});
    long peak = peakOfChild([] { hostTiming(); });

    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    Timing host = hostTiming();
    Timing ezdxf = ezdxfTiming();
    std::printf("\nside by side on the same file (%.1f MB):\n", mb);
    std::printf("  host   load %7.3f s  %8.1f MB/s   save %7.3f s  %8.1f MB/s\n", host.load, mb / host.load,
                host.save, mb / host.save);
    if (ezdxf.ok) {
        std::printf("  ezdxf  load %7.3f s  %8.1f MB/s   save %7.3f s  %8.1f MB/s\n", ezdxf.load, mb / ezdxf.load,
                    ezdxf.save, mb / ezdxf.save);
        std::printf("  host is %.1f times as fast loading and %.1f times as fast saving\n", ezdxf.load / host.load,
                    ezdxf.save / host.save);
    } else {
        std::printf("  ezdxf  not available (/usr/bin/python3 with ezdxf)\n");
    }
    std::printf("peak memory of load and save: %.1f MB (%.2f times the file; %.1f MB of it the process at rest)\n",
                peak / 1e6, peak / (mb * 1e6), baseline / 1e6);
    std::error_code ec;
    fs::remove(savedPath(), ec);
    fs::remove(fs::path(VRN2_BUILD_ROOT) / "bench_dxf_io_ezdxf.dxf", ec);
    return host.ok ? 0 : 1;
}
