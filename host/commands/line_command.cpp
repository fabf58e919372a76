// LINE: a first point, then points until Enter, each making a line from the point before;
// Undo takes back the last line, Close draws the line back to the first point and ends.
#include <vector>

#include "acdbads.h"
#include "acutads.h"
#include "adscodes.h"
#include "host/commands/command_support.h"

namespace host::cmd {
namespace {

struct Segment {
    double from[3];
    Name made;
};

bool makeLine(const double a[3], const double b[3], Name& made) {
    if (makeWithCurrentProperties(acutBuildList(RTDXF0, L"LINE", 10, a, 11, b, 0)) != RTNORM) return false;
    ads_name e;
    acdbEntLast(e);
    made = {e[0], e[1]};
    return true;
}

int lineCommand(CommandInput& in) {
    double first[3], current[3];
    const CommandToken* t;
    while ((t = ask(in, L"\nSpecify first point: ")) && !t->isEnter()) {
        if (readPoint(*t, first)) break;
        say(L"\nInvalid point.");
    }
    if (!t || t->isEnter()) return RTNORM;
    for (int i = 0; i < 3; ++i) current[i] = first[i];
    std::vector<Segment> made;
    while ((t = ask(in, made.size() >= 2 ? L"\nSpecify next point or [Close/Undo]: "
                                         : L"\nSpecify next point or [Undo]: "))) {
        if (t->isEnter()) break;
        double p[3];
        if (isKeyword(*t, {L"UNDO", L"U"})) {
            if (made.empty()) continue;
            ads_name e = {made.back().made[0], made.back().made[1]};
            acdbEntDel(e);
            for (int i = 0; i < 3; ++i) current[i] = made.back().from[i];
            made.pop_back();
        } else if (made.size() >= 2 && isKeyword(*t, {L"CLOSE", L"C"})) {
            Name n;
            makeLine(current, first, n);
            break;
        } else if (readPoint(*t, p)) {
            Segment s;
            for (int i = 0; i < 3; ++i) s.from[i] = current[i];
            if (!makeLine(current, p, s.made)) return RTERROR;
            made.push_back(s);
            for (int i = 0; i < 3; ++i) current[i] = p[i];
        } else {
            say(L"\nInvalid point.");
        }
    }
    return RTNORM;
}

CommandRegistration line(L"LINE", lineCommand);

}  // namespace
}  // namespace host::cmd
