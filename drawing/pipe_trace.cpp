#include "drawing/pipe_trace.h"

#include <cmath>

namespace vrn2::drawing {
namespace {

struct Flood {
    const std::vector<PipeSegment>& pipes;
    std::vector<bool> reached;
    std::vector<TraceStep> steps;

    void from(const SpacePoint& previous, const SpacePoint& current) {
        for (std::size_t i = 0; i < pipes.size(); ++i) {
            if (reached[i]) continue;
            const PipeSegment& pipe = pipes[i];
            const bool atStart = sameTracePoint(pipe.start, current);
            if (!atStart && !sameTracePoint(pipe.end, current)) continue;
            const SpacePoint& near = atStart ? pipe.start : pipe.end;
            const SpacePoint& far = atStart ? pipe.end : pipe.start;
            reached[i] = true;
            steps.push_back({i, !sameTracePoint(far, previous)});
            from(near, far);
            i = 0;  // the loop's increment resumes the scan at the second record
        }
    }
};

}  // namespace

bool sameTracePoint(const SpacePoint& a, const SpacePoint& b) {
    return std::fabs(a.x - b.x) < kTraceEqual && std::fabs(a.y - b.y) < kTraceEqual &&
           std::fabs(a.z - b.z) < kTraceEqual;
}

std::vector<TraceStep> tracePipeRun(const std::vector<PipeSegment>& pipes, const SpacePoint& base) {
    Flood flood{pipes, std::vector<bool>(pipes.size(), false), {}};
    flood.from(base, base);
    return flood.steps;
}

std::vector<std::ptrdiff_t> equipmentOnRun(const std::vector<SpacePoint>& connections,
                                           const std::vector<PipeSegment>& pipes,
                                           const std::vector<bool>& reached) {
    std::vector<std::ptrdiff_t> found;
    for (const SpacePoint& at : connections) {
        std::ptrdiff_t pipe = -1;
        for (std::size_t i = 0; i < pipes.size() && pipe < 0; ++i) {
            if (reached[i] && (sameTracePoint(pipes[i].start, at) || sameTracePoint(pipes[i].end, at)))
                pipe = static_cast<std::ptrdiff_t>(i);
        }
        found.push_back(pipe);
    }
    return found;
}

SpacePoint entryPoint(const SpacePoint& p, const SpacePoint& base, double scale) {
    return {(p.x - base.x) / scale, (p.y - base.y) / scale, (p.z - base.z) / scale};
}

double entryLength(const PipeSegment& pipe, double scale) {
    const double dx = pipe.end.x - pipe.start.x, dy = pipe.end.y - pipe.start.y, dz = pipe.end.z - pipe.start.z;
    return std::sqrt(dx * dx + dy * dy + dz * dz) / scale;
}

}  // namespace vrn2::drawing
