// The traced supply-air duct network: one record per duct line, linked by indices into the
// network's segment table (index 0 is the root).
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "frame/geometry.h"

namespace vrn2::duct {

using DuctPoint = Point3;

// Drawing units are millimetres; calculation lengths are metres.
inline constexpr double kUnitFactor = 1.0;
inline constexpr double kLengthFactor = 1.0 / (1000.0 * kUnitFactor);

// Two ends touch when every coordinate differs by strictly less than 10 drawing units.
inline constexpr double kCoincidence = 10.0 * kUnitFactor;
inline bool coincide(const DuctPoint& a, const DuctPoint& b) { return vrn2::coincide(a, b, kCoincidence); }
using vrn2::distance;

inline constexpr int kNoSegment = -1;

enum DuctShape : short { kShapeUnknown = 0, kShapeCircular = 1, kShapeRectangular = 2 };
enum EndKind : short { kEndJoined = 0, kEndOutlet = 1, kEndOpen = 2 };

struct DuctSegment {
    int parent = kNoSegment;
    short shape = kShapeUnknown;
    short resolved = 0;          // something was matched at the downstream end
    std::int32_t size1 = 0;      // diameter or width, mm
    std::int32_t size2 = 0;      // height, mm
    DuctPoint start;             // upstream end
    double length = 0.0;         // m
    double flow = 0.0;           // m³/h
    short slot = 0;              // index in the parent's branches
    DuctPoint end;               // downstream end
    short endKind = kEndJoined;
    double xi = 0.0;             // sum of local-loss coefficients
    std::int32_t number = 0;
    short main = 0;
    std::optional<double> pressureLoss;  // Pa
    std::wstring handle;
    std::array<int, 3> branches{kNoSegment, kNoSegment, kNoSegment};
};

// One traced network. Leaves are kept in the order the trace reached them.
struct DuctNetwork {
    std::vector<DuctSegment> segments;
    std::vector<int> leaves;
    int mainLeaf = kNoSegment;
    std::int32_t greatestNumber = 0;
    std::wstring layerName;
    int layerColour = 0;
    double mainLength = 0.0;

    bool held() const { return !segments.empty(); }
    void clear() { *this = DuctNetwork{}; }
};

// The segments from the main leaf up to the root; empty without a main leaf.
std::vector<int> mainPathUpwards(const DuctNetwork& network);

}  // namespace vrn2::duct
