#include "psychro/airstate/tool/solver_choice.h"

#include <array>

namespace airstate_tool {
namespace {

// Known i and fy: neither d nor i is written.
constexpr unsigned kEnthalpyHumidityWrites = kT | kTs | kTl | kFy | kPq | kPb | kV;

constexpr std::array<SolverChoice, 13> kSolvers{{
    {kI | kD, Variant::Standard, "StateFromEnthalpyMoisture", StateFromEnthalpyMoisture, kAllButDb},
    {kI | kD, Variant::Supply, "StateFromEnthalpyMoistureSupplyAir",
     StateFromEnthalpyMoistureSupplyAir, kAllButDb},
    {kT | kFy, Variant::Standard, "StateFromTempHumidity", StateFromTempHumidity, kAllButDb},
    {kT | kTs, Variant::Standard, "StateFromTempWetBulb", StateFromTempWetBulb, kAllButDb},
    {kT | kTs, Variant::Cooler, "StateFromTempWetBulbSurfaceCooler",
     StateFromTempWetBulbSurfaceCooler, kAllButDb},
    {kT | kD, Variant::Standard, "StateFromTempMoisture", StateFromTempMoisture, kAllButDb},
    {kI, Variant::Standard, "SaturationFromEnthalpy", SaturationFromEnthalpy, kTs},
    {kT | kTl, Variant::Standard, "StateFromTempDewPoint", StateFromTempDewPoint, kAllButDb},
    {kD | kFy, Variant::Standard, "StateFromMoistureHumidity", StateFromMoistureHumidity, kAllButDb},
    {kDb | kFy, Variant::Standard, "StateFromSaturatedMoistureHumidity",
     StateFromSaturatedMoistureHumidity, kAllButDb},
    {kDb | kTl, Variant::Standard, "StateFromSaturatedMoistureDewPoint",
     StateFromSaturatedMoistureDewPoint, kAllButDb},
    {kI | kFy, Variant::Standard, "StateFromEnthalpyHumidity", StateFromEnthalpyHumidity, kEnthalpyHumidityWrites},
    // The same solver with the record's moisture content given: it reads d and leaves it.
    {kI | kFy | kD, Variant::Standard, "StateFromEnthalpyHumidity", StateFromEnthalpyHumidity,
     kEnthalpyHumidityWrites},
}};

const char* VariantName(Variant variant) {
    return variant == Variant::Supply ? "supply" : "cooler";
}

}  // namespace

const SolverChoice* FindSolver(unsigned fields, Variant variant, std::string* problem) {
    bool fieldsKnown = false;
    for (const SolverChoice& choice : kSolvers) {
        if (choice.fields != fields) continue;
        fieldsKnown = true;
        if (choice.variant == variant) return &choice;
    }
    if (!fieldsKnown) {
        *problem = fields == 0 ? std::string("no known field given")
                               : "no solver for the fields " + FieldSetName(fields);
    } else {
        *problem = std::string("--variant ") + VariantName(variant) + " applies only to " +
                   (variant == Variant::Supply ? "i+d" : "t+ts");
    }
    return nullptr;
}

std::string FieldSetName(unsigned fields) {
    std::string name;
    for (unsigned k = 0; k < kFieldCount; ++k) {
        if (!(fields & (1u << k))) continue;
        if (!name.empty()) name += '+';
        name += kFieldNames[k];
    }
    return name;
}

const char* AcceptedPairs() {
    return "i+d, t+fy, t+ts, t+d, i, t+tl, d+fy, db+fy, db+tl, i+fy (optionally with d)";
}

}  // namespace airstate_tool
