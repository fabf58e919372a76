// SCALE: objects, a base point, then the factor (a number above 0, or a point whose distance
// from the base is the factor), or Reference: a length the objects have and the length it
// should become. Copy scales copies and leaves the objects.
#include "adscodes.h"
#include "host/commands/edit_support.h"
#include "host/commands/object_selection.h"

namespace host::cmd {
namespace {

// The factor from a reference length to a new one; false when the input ended.
bool askReference(CommandInput& in, const double base[3], double& factor) {
    double from = 1, to = 1;
    int option;
    Reply r = askNumber(in, L"\nSpecify reference length <1.0000>: ", from, base, true, {}, option);
    if (r == Reply::Cancel) return false;
    if (r == Reply::Enter) from = 1;
    r = askNumber(in, L"\nSpecify new length <" + lengthText(from) + L">: ", to, base, true, {}, option);
    if (r == Reply::Cancel) return false;
    if (r == Reply::Enter) to = from;
    factor = to / from;
    return true;
}

int scaleCommand(CommandInput& in) {
    std::vector<Name> objects;
    if (!readObjects(in, objects)) return RTNORM;
    double base[3];
    int option;
    if (askPoint(in, L"\nSpecify base point: ", base, {}, option) != Reply::Value) return RTCAN;
    bool copy = false;
    double factor = 1;
    Reply r = askWithCopy(
        [&](int& chosen) {
            return askNumber(in, L"\nSpecify scale factor or [Copy/Reference] <1.0000>: ", factor, base, true,
                             {{L"Copy", L"C"}, {L"Reference", L"R"}}, chosen);
        },
        L"\nScaling a copy of the selected objects.", copy);
    if (r == Reply::Cancel) return RTCAN;
    if (r == Reply::Enter) factor = 1;
    if (r == Reply::Option && !askReference(in, base, factor)) return RTCAN;
    return transformObjects(objects, Transform::scaling(base, factor), copy);
}

CommandRegistration scale(L"SCALE", scaleCommand);

}  // namespace
}  // namespace host::cmd
