// CIRCLE: a centre and a radius (a number or a point on the circle) or Diameter; 2P, the
// ends of a diameter; 3P, three points on the circle. Ttr needs tangent objects picked on
// the screen and is refused. The radius used becomes CIRCLERAD, the default of the next one.
#include <cmath>

#include "acutads.h"
#include "adscodes.h"
#include "host/commands/arc_geometry.h"
#include "host/commands/drawing_prompts.h"
#include "host/runtime/host.h"

namespace host::cmd {
namespace {

double defaultRadius() {
    const SysVarValue* v = vars().find(L"CIRCLERAD");
    return v && v->type == RTREAL ? v->real : 0.0;
}

int makeCircle(const double centre[3], double radius) {
    vars().setReal(L"CIRCLERAD", radius);
    return makeWithCurrentProperties(acutBuildList(RTDXF0, L"CIRCLE", 10, centre, 40, radius, 0));
}

// Radius or Diameter after the centre; Enter takes the last radius when there is one.
int byCentre(CommandInput& in, const double centre[3]) {
    double r = defaultRadius();
    std::wstring fallback = r > 0 ? L" <" + format4(r) + L">" : L"";
    const CommandToken* t;
    while ((t = askDistance(in, L"\nSpecify radius of circle or [Diameter]" + fallback + L": ", centre, r, true,
                            {{L"DIAMETER", L"D"}}))) {
        if (!t->isEnter() || defaultRadius() > 0) break;
        say(L"\nRequires numeric distance or second point.");
    }
    if (!t) return RTCAN;
    if (isKeyword(*t, {L"DIAMETER", L"D"})) {
        double d = 2 * r;
        std::wstring diameterDefault = r > 0 ? L" <" + format4(d) + L">" : L"";
        do {
            t = askDistance(in, L"\nSpecify diameter of circle" + diameterDefault + L": ", centre, d, true);
        } while (t && t->isEnter() && r <= 0);
        if (!t) return RTCAN;
        r = d / 2;
    }
    return makeCircle(centre, r);
}

int byTwoPoints(CommandInput& in) {
    double a[3], b[3];
    const CommandToken* t = askPoint(in, L"\nSpecify first end point of circle's diameter: ", a);
    if (!t || t->isEnter()) return RTCAN;
    t = askPoint(in, L"\nSpecify second end point of circle's diameter: ", b);
    if (!t || t->isEnter()) return RTCAN;
    double r = std::hypot(b[0] - a[0], b[1] - a[1]) / 2;
    if (r == 0) {
        say(L"\nInvalid circle: the two points coincide.");
        return RTERROR;
    }
    double centre[3] = {(a[0] + b[0]) / 2, (a[1] + b[1]) / 2, (a[2] + b[2]) / 2};
    return makeCircle(centre, r);
}

int byThreePoints(CommandInput& in) {
    double p[3][3];
    const wchar_t* prompts[] = {L"\nSpecify first point on circle: ", L"\nSpecify second point on circle: ",
                                L"\nSpecify third point on circle: "};
    for (int i = 0; i < 3; ++i) {
        const CommandToken* t = askPoint(in, prompts[i], p[i]);
        if (!t || t->isEnter()) return RTCAN;
    }
    Circle2 c;
    if (!circleThrough(p[0], p[1], p[2], c)) {
        say(L"\nCircle does not exist: the points lie on one line.");
        return RTERROR;
    }
    double centre[3] = {c.centre[0], c.centre[1], p[0][2]};
    return makeCircle(centre, c.radius);
}

int circleCommand(CommandInput& in) {
    double centre[3];
    const CommandToken* t = askPoint(in, L"\nSpecify center point for circle or [3P/2P/Ttr (tan tan radius)]: ",
                                     centre, {{L"3P"}, {L"2P"}, {L"TTR", L"T"}});
    if (!t) return RTCAN;
    if (t->isEnter()) return RTNORM;
    if (isKeyword(*t, {L"3P"})) return byThreePoints(in);
    if (isKeyword(*t, {L"2P"})) return byTwoPoints(in);
    if (isKeyword(*t, {L"TTR", L"T"})) {
        say(L"\nTtr needs objects picked for its tangents: not available from a script.");
        return RTERROR;
    }
    return byCentre(in, centre);
}

CommandRegistration circle(L"CIRCLE", circleCommand);

}  // namespace
}  // namespace host::cmd
