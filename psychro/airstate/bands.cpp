// Band-edge values that depend on constants only.

#include "psychro/airstate/bands.h"

#include "psychro/airstate/airstate.h"

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

}  // namespace airstate
