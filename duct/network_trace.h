// Tracing a supply-air network from its start duct over the entities of the network layer,
// as plain records: the caller reads the drawing into NetworkEntity values (in selection
// order) and applies the trace's writes to the drawing afterwards.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "duct/duct_segment.h"

namespace vrn2::duct {

enum class EntityKind { Line, Outlet, Other };
enum class MainMark { Absent, Zero, One };  // the "is_main" value on a line

// One entity of the network selection with the data the trace and the main-path search use.
struct NetworkEntity {
    EntityKind kind = EntityKind::Other;
    DuctPoint first;          // LINE first point; outlet insertion point
    DuctPoint second;         // LINE second point
    double outletFlow = -1.0; // outlet "F-LL", -1 when missing
    // Duct line data from its extended data.
    std::wstring handle;
    short shape = kShapeUnknown;
    int size1 = 0;
    int size2 = 0;
    int number = 0;
    double storedFlow = 0.0;  // "K_DUCT_G", 0 when absent
    MainMark mainMark = MainMark::Absent;
    std::optional<double> storedLoss;  // "K_DUCT_DP"
    std::optional<double> storedXi;    // "K_DUCT_F"
};

struct FlowWrite {
    int segment;
    double flow;
};

enum class TraceStatus { Traced, TooManyBranches };

struct TraceResult {
    TraceStatus status = TraceStatus::Traced;
    DuctNetwork network;
    std::vector<int> entityOf;               // segment -> index in the selection
    std::vector<FlowWrite> flowWrites;       // "K_DUCT_G" writes, in trace order
    std::vector<DuctPoint> missingFlowOutlets;
    std::vector<int> leavesWithoutMainMark;  // leaves that get "is_main" = "0"
    int outletCount = 0;
};

// True when the picked line's first point must become its downstream end: an outlet on the
// first point turns it round; then, when only the first point touches network lines, or both
// do and the pick lies strictly nearer the second point, it is turned (again).
bool rootIsReversed(const std::vector<NetworkEntity>& selection, int rootEntity, const DuctPoint& pick);

// Traces the network from the line selection[rootEntity] picked at PICK. Each matched entity
// is used once; branches, leaves and flows come out in the order of a depth-first scan of the
// selection in its order. Runs in a loop, not on the machine stack, and looks up ends through
// a grid, so long networks trace in time close to linear.
TraceResult traceNetwork(const std::vector<NetworkEntity>& selection, int rootEntity, const DuctPoint& pick);

// Chooses the main leaf (an "is_main" leaf, else the first longest path), sets the main-path
// length and flags, and takes ξ and stored losses of the main-path lines from ENTITIES.
// False when the network has no leaf.
bool findMainPath(TraceResult& trace, const std::vector<NetworkEntity>& selection);

}  // namespace vrn2::duct
