// airstate: solves one humid-air state from the command line with the property library.

#include <clocale>
#include <cstdio>
#include <string>

#include "adscodes.h"
#include "psychro/airstate/airstate.h"
#include "psychro/airstate/alert.h"
#include "psychro/airstate/tool/command_line.h"
#include "psychro/airstate/tool/report.h"
#include "psychro/airstate/tool/solver_choice.h"

namespace {

using namespace airstate_tool;

constexpr int kExitUsage = 2;
constexpr int kExitImpossibleState = 1;

void PrintHelp() {
    std::printf(
        "Usage: airstate [--B KPA] --FIELD VALUE [--FIELD VALUE] [--variant supply|cooler] "
        "[--json]\n"
        "\n"
        "Solves one humid-air state from known fields at atmospheric pressure B and prints all\n"
        "eleven fields of the state.\n"
        "\n"
        "  --B KPA        atmospheric pressure in kPa (default 101.325)\n"
        "  --t C          dry-bulb temperature, degrees Celsius\n"
        "  --ts C         wet-bulb temperature, degrees Celsius\n"
        "  --tl C         dew-point temperature, degrees Celsius\n"
        "  --d G/KG       moisture content, g per kg dry air\n"
        "  --fy PERCENT   relative humidity, 0..100\n"
        "  --i KJ/KG      specific enthalpy, kJ per kg dry air\n"
        "  --db G/KG      moisture content of saturated air at the dry-bulb temperature\n"
        "  --variant supply   with i+d: the supply-air solver (latent heat 2501 in t)\n"
        "  --variant cooler   with t+ts: the surface-cooler solver (latent heat 2501 in i)\n"
        "  --json         print one JSON object instead of the table\n"
        "  -h, --help     print this text\n"
        "  --version      print the version\n"
        "\n"
        "Values may also be written --FIELD=VALUE. The set of fields given picks the solver:\n"
        "  i+d    StateFromEnthalpyMoisture        t+fy   StateFromTempHumidity\n"
        "  t+ts   StateFromTempWetBulb             t+d    StateFromTempMoisture\n"
        "  i      SaturationFromEnthalpy (ts only) t+tl   StateFromTempDewPoint\n"
        "  d+fy   StateFromMoistureHumidity        db+fy  StateFromSaturatedMoistureHumidity\n"
        "  db+tl  StateFromSaturatedMoistureDewPoint\n"
        "  i+fy   StateFromEnthalpyHumidity; an added --d is the record's moisture content,\n"
        "         which this solver reads (dew point, d < 0 check) and leaves as it is\n"
        "Fields the solver does not compute are shown as - (JSON null): db for all solvers but\n"
        "the db ones; d and i for i+fy unless given; all but ts for i alone.\n"
        "\n"
        "JSON output: {\"solver\", \"B\", \"pq\", \"pb\", \"t\", \"ts\", \"tl\", \"d\", \"fy\", "
        "\"i\", \"v\", \"db\",\n"
        "\"status\", \"alerts\"}. Numbers are in the shortest form that reads back to the exact\n"
        "double; a NaN or infinite value is written as null. \"status\" is 5100 (RTNORM) or\n"
        "-5001 (RTERROR); \"alerts\" lists the alert texts the solver raised, in order (a\n"
        "temperature outside -60..200 degrees C gives \"求得温度范围不对.\" and -1000).\n"
        "\n"
        "Exit status: 0 valid state; 1 impossible state (fy > 100, pb > P or d < 0: the values\n"
        "are still printed, and one line on standard error says why); 2 bad command line (one\n"
        "line on standard error).\n");
}

int UsageError(const std::string& problem) {
    std::fprintf(stderr, "airstate: %s; accepted pairs: %s (see --help)\n", problem.c_str(),
                 AcceptedPairs());
    return kExitUsage;
}

AirState InitialState(const Request& request) {
    AirState state;  // every field starts at 0
    state.B = request.B_kPa;
    double* known[kFieldCount] = {&state.t, &state.ts, &state.tl, &state.d,
                                  &state.fy, &state.i, &state.db};
    for (unsigned k = 0; k < kFieldCount; ++k)
        if (request.fields & (1u << k)) *known[k] = request.values[k];
    return state;
}

}  // namespace

int main(int argc, char** argv) {
    std::setlocale(LC_CTYPE, "C.UTF-8");  // the report writes the alerts' text as UTF-8
    Request request;
    std::string problem;
    if (!ParseCommandLine(argc, argv, &request, &problem)) return UsageError(problem);
    if (request.help) {
        PrintHelp();
        return 0;
    }
    if (request.version) {
        std::printf("airstate %s\n", VRN2_VERSION);
        return 0;
    }
    const SolverChoice* solver = FindSolver(request.fields, request.variant, &problem);
    if (!solver) return UsageError(problem);

    Outcome outcome{solver, request.fields, InitialState(request), RTNORM, {}};
    {
        airstate::AlertCapture capture;  // the library's alerts become part of the report
        outcome.status = solver->solve(outcome.state);
        outcome.alerts = capture.alerts();
    }
    if (request.json) {
        WriteJson(stdout, outcome);
    } else {
        WriteTable(stdout, outcome);
    }
    if (outcome.status == RTNORM) return 0;
    std::fprintf(stderr, "airstate: impossible state: %s\n", ImpossibleReason(outcome.state).c_str());
    return kExitImpossibleState;
}
