#include "psychro/remembered_pressure.h"

namespace vrn2 {
namespace {

struct RememberedPressure {
    double kPa = 0.0;
    bool valid = false;
};

RememberedPressure g_pressure;

}  // namespace

void rememberPressure(double kPa) {
    g_pressure.kPa = kPa;
    g_pressure.valid = true;
}

bool rememberedPressure(double& kPa) {
    if (!g_pressure.valid) return false;
    kPa = g_pressure.kPa;
    return true;
}

}  // namespace vrn2
