// ARC: three points (start, second, end); a start and Center, then the end point, the
// included Angle or the chord Length; Center first, then the start and the same; a start
// and End, then the centre, the included Angle, the start's tangent Direction or the Radius
// (a negative radius: the major arc). Arcs run counter-clockwise, a negative angle clockwise.
#include <cmath>

#include "acutads.h"
#include "adscodes.h"
#include "host/commands/arc_geometry.h"
#include "host/commands/drawing_prompts.h"

namespace host::cmd {
namespace {

constexpr const wchar_t* kEndPrompt = L"\nSpecify end point of arc: ";

int makeArc(const Arc2& a, double z) {
    double centre[3] = {a.centre[0], a.centre[1], z};
    return makeWithCurrentProperties(acutBuildList(RTDXF0, L"ARC", 10, centre, 40, a.radius, 50, a.start, 51, a.end, 0));
}

int cannot() {
    say(L"\nInvalid arc: no arc fits these values.");
    return RTERROR;
}

// Reads a point; false when the input ended or Enter was given.
bool needPoint(CommandInput& in, const wchar_t* promptText, double p[3]) {
    const CommandToken* t = askPoint(in, promptText, p);
    return t && !t->isEnter();
}

// After the start point and the centre: the end point, the included Angle or the chord Length.
int fromStartAndCentre(CommandInput& in, const double start[3], const double centre[3]) {
    double p[3];
    const CommandToken* t = askPoint(in, L"\nSpecify end point of arc or [Angle/chord Length]: ", p,
                                     {{L"ANGLE", L"A"}, {L"LENGTH", L"L"}});
    if (!t || t->isEnter()) return RTCAN;
    Arc2 a;
    bool ok;
    if (isKeyword(*t, {L"ANGLE", L"A"})) {
        double included = 0;
        t = askAngle(in, L"\nSpecify included angle: ", nullptr, included, false);
        if (!t || t->isEnter()) return RTCAN;
        ok = arcStartCentreAngle(start, centre, included, a);
    } else if (isKeyword(*t, {L"LENGTH", L"L"})) {
        double chord = 0;
        t = askDistance(in, L"\nSpecify length of chord: ", nullptr, chord, false);
        if (!t || t->isEnter()) return RTCAN;
        ok = arcStartCentreChord(start, centre, chord, a);
    } else {
        ok = arcStartCentreEnd(start, centre, p, a);
    }
    return ok ? makeArc(a, start[2]) : cannot();
}

// After the start and end points: the centre, the included Angle, the start's tangent
// Direction or the Radius.
int fromStartAndEnd(CommandInput& in, const double start[3], const double end[3]) {
    double p[3];
    const CommandToken* t = askPoint(in, L"\nSpecify center point of arc or [Angle/Direction/Radius]: ", p,
                                     {{L"ANGLE", L"A"}, {L"DIRECTION", L"D"}, {L"RADIUS", L"R"}});
    if (!t || t->isEnter()) return RTCAN;
    Arc2 a;
    double bulge = 0;
    if (isKeyword(*t, {L"ANGLE", L"A"})) {
        double included = 0;
        t = askAngle(in, L"\nSpecify included angle: ", nullptr, included, false);
        if (!t || t->isEnter()) return RTCAN;
        bulge = std::tan(included / 4);
    } else if (isKeyword(*t, {L"DIRECTION", L"D"})) {
        double direction = 0;
        t = askAngle(in, L"\nSpecify tangent direction for the start point of arc: ", start, direction, true);
        if (!t || t->isEnter()) return RTCAN;
        double dir[2] = {std::cos(direction), std::sin(direction)};
        bulge = tangentBulge(dir, start, end);
    } else if (isKeyword(*t, {L"RADIUS", L"R"})) {
        double r = 0;
        t = askDistance(in, L"\nSpecify radius of arc: ", nullptr, r, false);
        if (!t || t->isEnter()) return RTCAN;
        double half = std::hypot(end[0] - start[0], end[1] - start[1]) / 2;
        if (r == 0 || half > std::fabs(r) || half == 0) return cannot();
        double quarter = std::asin(half / std::fabs(r)) / 2;  // a quarter of the minor arc's angle
        bulge = r > 0 ? std::tan(quarter) : std::tan(3.14159265358979323846 / 2 - quarter);
    } else {
        return arcStartCentreEnd(start, p, end, a) ? makeArc(a, start[2]) : cannot();
    }
    return bulgeArc(start, end, bulge, a) ? makeArc(a, start[2]) : cannot();
}

int arcCommand(CommandInput& in) {
    double start[3], centre[3], second[3], end[3];
    const CommandToken* t = askPoint(in, L"\nSpecify start point of arc or [Center]: ", start, {{L"CENTER", L"C"}});
    if (!t) return RTCAN;
    if (t->isEnter()) return RTNORM;
    if (isKeyword(*t, {L"CENTER", L"C"})) {
        if (!needPoint(in, L"\nSpecify center point of arc: ", centre) ||
            !needPoint(in, L"\nSpecify start point of arc: ", start))
            return RTCAN;
        return fromStartAndCentre(in, start, centre);
    }
    t = askPoint(in, L"\nSpecify second point of arc or [Center/End]: ", second, {{L"CENTER", L"C"}, {L"END", L"E"}});
    if (!t || t->isEnter()) return RTCAN;
    if (isKeyword(*t, {L"CENTER", L"C"})) {
        if (!needPoint(in, L"\nSpecify center point of arc: ", centre)) return RTCAN;
        return fromStartAndCentre(in, start, centre);
    }
    if (isKeyword(*t, {L"END", L"E"})) {
        if (!needPoint(in, kEndPrompt, end)) return RTCAN;
        return fromStartAndEnd(in, start, end);
    }
    if (!needPoint(in, kEndPrompt, end)) return RTCAN;
    Arc2 a;
    return arcThrough(start, second, end, a) ? makeArc(a, start[2]) : cannot();
}

CommandRegistration arc(L"ARC", arcCommand);

}  // namespace
}  // namespace host::cmd
