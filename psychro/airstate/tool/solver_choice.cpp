#include "psychro/airstate/tool/solver_choice.h"

#include <array>

namespace airstate_tool {
namespace {

constexpr std::array<SolverChoice, 13> kSolvers{{
    {kI | kD, Variant::Standard, "StateFromEnthalpyMoisture", StateFromEnthalpyMoisture},
    {kI | kD, Variant::Supply, "StateFromEnthalpyMoistureSupplyAir",
     StateFromEnthalpyMoistureSupplyAir},
    {kT | kFy, Variant::Standard, "StateFromTempHumidity", StateFromTempHumidity},
    {kT | kTs, Variant::Standard, "StateFromTempWetBulb", StateFromTempWetBulb},
    {kT | kTs, Variant::Cooler, "StateFromTempWetBulbSurfaceCooler",
     StateFromTempWetBulbSurfaceCooler},
    {kT | kD, Variant::Standard, "StateFromTempMoisture", StateFromTempMoisture},
    {kI, Variant::Standard, "SaturationFromEnthalpy", SaturationFromEnthalpy},
    {kT | kTl, Variant::Standard, "StateFromTempDewPoint", StateFromTempDewPoint},
    {kD | kFy, Variant::Standard, "StateFromMoistureHumidity", StateFromMoistureHumidity},
    {kDb | kFy, Variant::Standard, "StateFromSaturatedMoistureHumidity",
     StateFromSaturatedMoistureHumidity},
    {kDb | kTl, Variant::Standard, "StateFromSaturatedMoistureDewPoint",
     StateFromSaturatedMoistureDewPoint},
    {kI | kFy, Variant::Standard, "StateFromEnthalpyHumidity", StateFromEnthalpyHumidity},
    // The same solver with the record's moisture content given: it reads d and leaves it.
    {kI | kFy | kD, Variant::Standard, "StateFromEnthalpyHumidity", StateFromEnthalpyHumidity},
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
