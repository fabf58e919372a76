// Band-edge values that depend on constants only.

#include "psychro/airstate/bands.h"

#include "psychro/airstate/airstate.h"
#include "psychro/airstate/saturation_terms.h"

namespace airstate {

const std::array<BandEdgePressures, kTemperatureBands.size()>& BandEdgeSaturationPressures() {
    static const auto pressures = [] {
        std::array<BandEdgePressures, kTemperatureBands.size()> edges{};
        for (std::size_t k = 0; k < kTemperatureBands.size(); ++k) {
            const TemperatureBand& band = kTemperatureBands[k];
            auto saturation = band.phase == Phase::Ice ? SaturationPressureIce
                                                       : SaturationPressureWater;
            edges[k] = {saturation(band.lowerEdge_K), saturation(band.upperEdge_K)};
        }
        return edges;
    }();
    return pressures;
}

const std::array<BandStartSaturation, kTemperatureBands.size()>& BandStartSaturations() {
    static const auto values = [] {
        std::array<BandStartSaturation, kTemperatureBands.size()> starts{};
        for (std::size_t k = 0; k < kTemperatureBands.size(); ++k) {
            const TemperatureBand& band = kTemperatureBands[k];
            const double T_K = FirstStart_K(band);
            const bool ice = band.phase == Phase::Ice;
            starts[k] = {ice ? LnSaturationPressureIce(T_K) : LnSaturationPressureWater(T_K),
                         ice ? SaturationPressureIce(T_K) : SaturationPressureWater(T_K),
                         SaturationPressureWater(T_K)};
        }
        return starts;
    }();
    return values;
}

}  // namespace airstate
