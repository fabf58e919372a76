#include "psychro/air_mix.h"

#include "frame/doc_data.h"

namespace vrn2 {

MixedAir mixAirStreams(const AirStream& a, const AirStream& b) {
    double total = a.G + b.G;
    return {(a.G * a.i + b.G * b.i) / total, (a.G * a.d + b.G * b.d) / total};
}

MixingRecord& mixingRecord() { return documentState<MixingRecord>(); }

void storeMixingRecord(MixingRecord& record, const AirStream& a, const AirStream& b, const MixedAir& m) {
    record.values[0] = a.d;
    record.values[1] = a.i;
    record.values[3] = b.d;
    record.values[4] = b.i;
    record.values[6] = m.d;
    record.values[7] = m.i;
    record.exists = true;
}

MixingInputs& mixingInputs() {
    static MixingInputs inputs;
    return inputs;
}

}  // namespace vrn2
