// MIRROR: objects, two points of the mirror line, then whether to erase the objects. No
// (the default) makes mirrored copies; Yes mirrors the objects themselves. Texts are
// mirrored in place and stay readable, or are written backwards when MIRRTEXT is 1.
#include <cmath>

#include "adscodes.h"
#include "host/commands/edit_support.h"
#include "host/commands/object_selection.h"

namespace host::cmd {
namespace {

int mirrorCommand(CommandInput& in) {
    std::vector<Name> objects;
    if (!readObjects(in, objects)) return RTNORM;
    double a[3], b[3];
    int option;
    if (askPoint(in, L"\nSpecify first point of mirror line: ", a, {}, option) != Reply::Value) return RTCAN;
    while (true) {
        Reply r = askPoint(in, L"\nSpecify second point of mirror line: ", b, {}, option);
        if (r == Reply::Cancel) return RTCAN;
        if (r == Reply::Value && std::hypot(b[0] - a[0], b[1] - a[1]) > 1e-10) break;
        say(L"\nInvalid point.");  // a line needs two points apart in the plan
    }
    bool erase = false;
    while (const CommandToken* t = ask(in, L"\nErase source objects? [Yes/No] <N>: ")) {
        if (t->isEnter() || (option = optionOf(*t, {{L"Yes", L"Y"}, {L"No", L"N"}})) >= 0) {
            erase = !t->isEnter() && option == 0;
            return transformObjects(objects, Transform::mirror(a, b), !erase);
        }
        say(L"\nInvalid option keyword.");
    }
    return RTCAN;
}

CommandRegistration mirror(L"MIRROR", mirrorCommand);

}  // namespace
}  // namespace host::cmd
