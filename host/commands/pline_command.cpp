// PLINE: a start point, then points until Enter, each ending a segment of the current
// widths. Width and Halfwidth set the starting and ending widths of the next segment (the
// ending one stays for those after it); Arc switches to arc segments, each tangent to the
// segment before it (Direction gives another tangent, Second pt a point on the arc), Line
// back to straight ones; Length continues straight on in the direction of the last segment;
// Undo takes back the last segment; Close (CLose in arc mode) ends at the start point.
#include <array>
#include <cmath>
#include <vector>

#include "adscodes.h"
#include "host/commands/arc_geometry.h"
#include "host/commands/drawing_prompts.h"
#include "host/runtime/host.h"
#include "host/commands/polyline_make.h"

namespace host::cmd {
namespace {

struct Drawing {
    Path path;
    bool arcs = false;
    double startWidth = 0.0, endWidth = 0.0;  // of the next segment
    std::vector<std::array<double, 2>> directions{{1.0, 0.0}};  // at each vertex, for Undo

    const double* last() const { return path.vertices.back().p; }
    const double* direction() const { return directions.back().data(); }

    void add(const double p[3], double bulge) {
        PathVertex& from = path.vertices.back();
        from.bulge = bulge;
        from.startWidth = startWidth;
        from.endWidth = endWidth;
        std::array<double, 2> dir;
        endDirection(from.p, p, bulge, dir.data());
        PathVertex to;
        for (int i = 0; i < 2; ++i) to.p[i] = p[i];
        to.p[2] = from.p[2];
        to.startWidth = to.endWidth = endWidth;
        path.vertices.push_back(to);
        directions.push_back(dir);
        startWidth = endWidth;
    }
    // The closing segment back to the start, of the current widths.
    void close(double bulge) {
        PathVertex& v = path.vertices.back();
        v.bulge = bulge;
        v.startWidth = startWidth;
        v.endWidth = endWidth;
        path.closed = true;
    }
    void undo() {
        path.vertices.pop_back();
        directions.pop_back();
        PathVertex& v = path.vertices.back();
        v.bulge = 0.0;
        v.startWidth = v.endWidth = startWidth;
    }
};

// Starting and ending widths (halves of them for Halfwidth); Enter keeps each default.
bool askWidths(CommandInput& in, Drawing& d, bool half) {
    double f = half ? 0.5 : 1.0;
    const wchar_t* what = half ? L"half-width" : L"width";
    double w[2] = {d.endWidth * f, 0.0};
    for (int i = 0; i < 2; ++i) {
        if (i == 1) w[1] = w[0];
        std::wstring p = std::wstring(i == 0 ? L"\nSpecify starting " : L"\nSpecify ending ") + what + L" <" +
                         format4(w[i]) + L">: ";
        const CommandToken* t;
        double v = w[i];
        while ((t = askDistance(in, p, d.last(), v, false)) && !t->isEnter() && v < 0)
            say(L"\nValue must be positive.");
        if (!t) return false;
        if (!t->isEnter()) w[i] = v;
    }
    d.startWidth = w[0] / f;
    d.endWidth = w[1] / f;
    vars().setReal(L"PLINEWID", d.endWidth);
    return true;
}

// Width, Halfwidth and Undo, which both modes have; false when the answer is none of them.
// goOn tells whether the command goes on.
bool sharedOption(CommandInput& in, Drawing& d, const CommandToken& t, bool& goOn) {
    bool half = isKeyword(t, {L"HALFWIDTH", L"H"});
    if (half || isKeyword(t, {L"WIDTH", L"W"})) {
        goOn = askWidths(in, d, half);
        return true;
    }
    if (!isKeyword(t, {L"UNDO", L"U"})) return false;
    if (d.path.vertices.size() > 1) d.undo();
    else say(L"\nAll segments already undone.");
    return true;
}

// A point in arc mode; false to end the command.
bool arcStep(CommandInput& in, Drawing& d) {
    double p[3];
    const CommandToken* t = askPoint(
        in, L"\nSpecify endpoint of arc or [CLose/Direction/Halfwidth/Line/Second pt/Undo/Width]: ", p,
        {{L"CLOSE", L"CL"}, {L"DIRECTION", L"D"}, {L"HALFWIDTH", L"H"}, {L"LINE", L"L"}, {L"SECOND", L"S"},
         {L"UNDO", L"U"}, {L"WIDTH", L"W"}});
    if (!t || t->isEnter()) return false;
    if (isKeyword(*t, {L"CLOSE", L"CL"})) {
        if (d.path.vertices.size() < 2) {
            say(L"\nCannot close a polyline of one point.");
            return true;
        }
        d.close(tangentBulge(d.direction(), d.last(), d.path.vertices.front().p));
        return false;
    }
    bool goOn = true;
    if (sharedOption(in, d, *t, goOn)) return goOn;
    if (isKeyword(*t, {L"LINE", L"L"})) {
        d.arcs = false;
    } else if (isKeyword(*t, {L"DIRECTION", L"D"})) {
        double a = 0;
        t = askAngle(in, L"\nSpecify the tangent direction for the start point of arc: ", d.last(), a, true);
        if (!t || t->isEnter() || !(t = askPoint(in, L"\nSpecify endpoint of the arc: ", p)) || t->isEnter())
            return false;
        double dir[2] = {std::cos(a), std::sin(a)};
        d.add(p, tangentBulge(dir, d.last(), p));
    } else if (isKeyword(*t, {L"SECOND", L"S"})) {
        double second[3], bulge;
        if (!(t = askPoint(in, L"\nSpecify second point on arc: ", second)) || t->isEnter() ||
            !(t = askPoint(in, L"\nSpecify end point of arc: ", p)) || t->isEnter())
            return false;
        if (bulgeThrough(d.last(), second, p, bulge)) d.add(p, bulge);
        else say(L"\nInvalid arc: the points lie on one line.");
    } else {
        d.add(p, tangentBulge(d.direction(), d.last(), p));
    }
    return true;
}

// A point in line mode; false to end the command.
bool lineStep(CommandInput& in, Drawing& d) {
    bool closable = d.path.vertices.size() >= 3;
    double p[3];
    const CommandToken* t =
        askPoint(in, closable ? L"\nSpecify next point or [Arc/Close/Halfwidth/Length/Undo/Width]: "
                              : L"\nSpecify next point or [Arc/Halfwidth/Length/Undo/Width]: ",
                 p,
                 {{L"ARC", L"A"}, {L"CLOSE", L"C"}, {L"HALFWIDTH", L"H"}, {L"LENGTH", L"L"}, {L"UNDO", L"U"},
                  {L"WIDTH", L"W"}});
    if (!t || t->isEnter()) return false;
    if (isKeyword(*t, {L"CLOSE", L"C"})) {
        if (!closable) {
            say(L"\nInvalid option keyword.");
            return true;
        }
        d.close(0.0);
        return false;
    }
    bool goOn = true;
    if (sharedOption(in, d, *t, goOn)) return goOn;
    if (isKeyword(*t, {L"ARC", L"A"})) {
        d.arcs = true;
    } else if (isKeyword(*t, {L"LENGTH", L"L"})) {
        double length = 0;
        t = askDistance(in, L"\nSpecify length of line: ", d.last(), length, true);
        if (!t || t->isEnter()) return false;
        double q[3] = {d.last()[0] + length * d.direction()[0], d.last()[1] + length * d.direction()[1], 0.0};
        d.add(q, 0.0);
    } else {
        d.add(p, 0.0);
    }
    return true;
}

int plineCommand(CommandInput& in) {
    Drawing d;
    PathVertex start;
    const CommandToken* t = askPoint(in, L"\nSpecify start point: ", start.p);
    if (!t) return RTCAN;
    if (t->isEnter()) return RTNORM;
    const SysVarValue* w = vars().find(L"PLINEWID");
    d.startWidth = d.endWidth = w && w->type == RTREAL ? w->real : 0.0;
    start.startWidth = start.endWidth = d.startWidth;
    d.path.vertices.push_back(start);
    say(L"\nCurrent line-width is " + format4(d.startWidth));
    while (d.arcs ? arcStep(in, d) : lineStep(in, d)) {
    }
    if (d.path.vertices.size() < 2) return RTNORM;
    return makePolyline(d.path);
}

CommandRegistration pline(L"PLINE", plineCommand);

}  // namespace
}  // namespace host::cmd
