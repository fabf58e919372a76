// Prints every field of every solver over a grid of states with 17 significant digits, and the
// number of exp and log calls a state from (t, fy) takes on average. Used to show that a change
// to the property library moves no result: dump before and after, then compare the two files.
//
// Build against the library of a build folder (the wraps count the calls):
//   g++ -std=c++20 -O2 -Iarx -Ibuild/include-roots/module_headers tools/airstate_dump.cpp \
//       build/libairstatelib.a -Wl,--wrap=exp,--wrap=log -o /tmp/airstate_dump
#include <cmath>
#include <cstdio>

#include "psychro/airstate/airstate.h"

namespace {
long calls = 0;
}

extern "C" double __real_exp(double);
extern "C" double __real_log(double);
extern "C" double __wrap_exp(double x) { ++calls; return __real_exp(x); }
extern "C" double __wrap_log(double x) { ++calls; return __real_log(x); }

namespace {

struct Named {
    const char* name;
    int (*solve)(AirState&);
    void (*keep)(AirState& in, const AirState& ref);
};

const Named kSolvers[] = {
    {"i+d", StateFromEnthalpyMoisture, [](AirState& in, const AirState& r) { in.i = r.i, in.d = r.d; }},
    {"i+d supply", StateFromEnthalpyMoistureSupplyAir, [](AirState& in, const AirState& r) { in.i = r.i, in.d = r.d; }},
    {"t+fy", StateFromTempHumidity, [](AirState& in, const AirState& r) { in.t = r.t, in.fy = r.fy; }},
    {"t+ts", StateFromTempWetBulb, [](AirState& in, const AirState& r) { in.t = r.t, in.ts = r.ts; }},
    {"t+ts cooler", StateFromTempWetBulbSurfaceCooler, [](AirState& in, const AirState& r) { in.t = r.t, in.ts = r.ts; }},
    {"t+d", StateFromTempMoisture, [](AirState& in, const AirState& r) { in.t = r.t, in.d = r.d; }},
    {"i", SaturationFromEnthalpy, [](AirState& in, const AirState& r) { in.i = r.i; }},
    {"t+tl", StateFromTempDewPoint, [](AirState& in, const AirState& r) { in.t = r.t, in.tl = r.tl; }},
    {"d+fy", StateFromMoistureHumidity, [](AirState& in, const AirState& r) { in.d = r.d, in.fy = r.fy; }},
    {"db+fy", StateFromSaturatedMoistureHumidity, [](AirState& in, const AirState& r) { in.db = r.db, in.fy = r.fy; }},
    {"db+tl", StateFromSaturatedMoistureDewPoint, [](AirState& in, const AirState& r) { in.db = r.db, in.tl = r.tl; }},
    {"i+fy", StateFromEnthalpyHumidity, [](AirState& in, const AirState& r) { in.i = r.i, in.fy = r.fy, in.d = r.d; }},
};

void print(const char* name, const AirState& s, int status) {
    std::printf("%s %d %.17g %.17g %.17g %.17g %.17g %.17g %.17g %.17g %.17g %.17g %.17g\n", name, status, s.B, s.pq,
                s.pb, s.t, s.ts, s.tl, s.d, s.fy, s.i, s.v, s.db);
}

}  // namespace

int main() {
    long states = 0, fromTempHumidity = 0;
    for (double B = 80.0; B <= 110.0; B += 7.5)
        for (double t = -40.0; t <= 60.0; t += 2.5)
            for (double fy = 5.0; fy <= 100.0; fy += 5.0) {
                AirState ref;
                ref.B = B, ref.t = t, ref.fy = fy;
                long before = calls;
                StateFromTempHumidity(ref);
                fromTempHumidity += calls - before;
                ++states;
                ref.db = MoistureFromVapourPressure(ref.pb, 1000.0 * B);
                for (const Named& solver : kSolvers) {
                    AirState in;
                    in.B = B;
                    solver.keep(in, ref);
                    int status = solver.solve(in);
                    print(solver.name, in, status);
                }
            }
    std::fprintf(stderr, "states %ld, exp and log calls per state from (t, fy): %.2f\n", states,
                 static_cast<double>(fromTempHumidity) / states);
}
