// COPY: objects, a base point, then second points, each giving one copy moved from the base
// to it, until Enter or Exit (one copy only in the Single mode of COPYMODE, which mOde sets;
// Multiple asks for several this time). Undo takes the last copy back. Displacement (also
// the default) gives one copy moved by the displacement. Copies keep every property and
// the extended data, with new handles.
#include "acdbads.h"
#include "adscodes.h"
#include "host/commands/edit_support.h"
#include "host/commands/object_selection.h"
#include "host/runtime/host.h"

namespace host::cmd {
namespace {

bool singleMode() {
    const SysVarValue* v = vars().find(L"COPYMODE");
    return v && v->integer == 1;
}

// "Enter a copy mode option": sets COPYMODE. False when the input ended.
bool askMode(CommandInput& in) {
    int option;
    while (const CommandToken* t = ask(in, L"\nEnter a copy mode option [Single/Multiple] <Multiple>: ")) {
        if (t->isEnter()) return true;
        if ((option = optionOf(*t, {{L"Single", L"S"}, {L"Multiple", L"M"}})) >= 0) {
            vars().setShort(L"COPYMODE", option == 0 ? 1 : 0);
            return true;
        }
        say(L"\nInvalid option keyword.");
    }
    return false;
}

// Second points until Enter or Exit; Undo erases the copies of the last point.
int copyToPoints(CommandInput& in, const std::vector<Name>& objects, const double base[3], bool single) {
    std::vector<std::vector<Name>> made;
    while (true) {
        double d[3];
        int option;
        Reply r = made.empty()
                      ? askSecondPoint(in, L"\nSpecify second point or <use first point as displacement>: ", base, d,
                                       {}, option)
                      : askSecondPoint(in, L"\nSpecify second point or [Exit/Undo] <Exit>: ", base, d,
                                       {{L"Exit", L"E"}, {L"Undo", L"U"}}, option);
        if (r == Reply::Cancel) return made.empty() ? RTCAN : RTNORM;
        if (!made.empty() && (r == Reply::Enter || (r == Reply::Option && option == 0))) return RTNORM;
        if (r == Reply::Option) {  // Undo
            for (const auto& n : made.back()) {
                ads_name e = {n[0], n[1]};
                acdbEntDel(e);
            }
            made.pop_back();
            continue;
        }
        made.emplace_back();
        if (int s = transformObjects(objects, Transform::translation(d), true, &made.back()); s != RTNORM) return s;
        if (single || r == Reply::Enter) return RTNORM;
    }
}

int copyCommand(CommandInput& in) {
    std::vector<Name> objects;
    if (!readObjects(in, objects)) return RTNORM;
    bool single = singleMode();
    inform(single ? L"\nCurrent settings:  Copy mode = Single" : L"\nCurrent settings:  Copy mode = Multiple");
    double base[3];
    int option;
    while (true) {
        Reply r = askPoint(in, L"\nSpecify base point or [Displacement/mOde/Multiple] <Displacement>: ", base,
                           {{L"Displacement", L"D"}, {L"mOde", L"O"}, {L"Multiple", L"M"}}, option);
        if (r == Reply::Cancel) return RTCAN;
        if (r == Reply::Value) return copyToPoints(in, objects, base, single);
        if (r == Reply::Option && option == 1) {
            if (!askMode(in)) return RTCAN;
            single = singleMode();
            continue;
        }
        if (r == Reply::Option && option == 2) {
            single = false;
            continue;
        }
        double d[3];
        if (askDisplacement(in, d) == Reply::Cancel) return RTCAN;
        return transformObjects(objects, Transform::translation(d), true);
    }
}

CommandRegistration copy(L"COPY", copyCommand);

}  // namespace
}  // namespace host::cmd
