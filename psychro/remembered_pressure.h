// The atmospheric pressure last read by a psychrometric dialog, kept for the module's
// lifetime so that the next dialog opens with it instead of the standard value.
#pragma once

namespace vrn2 {

// The standard atmosphere, as the pressure fields show it when nothing was remembered.
inline constexpr wchar_t kStandardPressureText[] = L"101.325";
// Decimals of a remembered pressure when a dialog shows it.
inline constexpr int kRememberedPressureDecimals = 4;

// Remembers B (kPa) and marks it valid. Called only with a pressure a dialog accepted.
void rememberPressure(double kPa);
// Answers true and sets kPa when a pressure has been remembered.
bool rememberedPressure(double& kPa);

}  // namespace vrn2
