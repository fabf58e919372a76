// Adiabatic mixing of two air streams, and the record of the last mix kept for the chart.
#pragma once

namespace vrn2 {

struct AirStream {
    double i = 0.0;  // kJ/kg dry air
    double d = 0.0;  // g/kg dry air
    double G = 0.0;  // kg/h
};

struct MixedAir {
    double i = 0.0;
    double d = 0.0;
};

// Mass-flow weighted enthalpy and moisture content of the mixture. A total flow of zero is
// not guarded: the result is then not a number.
MixedAir mixAirStreams(const AirStream& a, const AirStream& b);

// The last mix, for the chart: nine doubles of which 0, 1, 3, 4, 6, 7 hold dA, iA, dB, iB,
// dM, iM; the other three are left as they are.
inline constexpr int kMixingRecordSize = 9;
struct MixingRecord {
    bool exists = false;
    double values[kMixingRecordSize] = {};
};

// The record of the current drawing, where its chart is: each drawing has its own.
MixingRecord& mixingRecord();
// Replaces the record's fields with this mix and marks it present.
void storeMixingRecord(MixingRecord& record, const AirStream& a, const AirStream& b, const MixedAir& m);

// The two streams last entered in the mixing dialog, kept while the module is loaded.
struct MixingInputs {
    AirStream a, b;
};
MixingInputs& mixingInputs();

}  // namespace vrn2
