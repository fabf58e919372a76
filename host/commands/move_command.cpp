// MOVE: objects, then a base point and a second point (Enter: the base point is the move), or
// Displacement (also the default) and the move itself.
#include "adscodes.h"
#include "host/commands/edit_support.h"
#include "host/commands/object_selection.h"

namespace host::cmd {
namespace {

int moveCommand(CommandInput& in) {
    std::vector<Name> objects;
    if (!readObjects(in, objects)) return RTNORM;
    double base[3], d[3];
    int option;
    Reply r = askPoint(in, L"\nSpecify base point or [Displacement] <Displacement>: ", base,
                       {{L"Displacement", L"D"}}, option);
    if (r == Reply::Cancel) return RTCAN;
    if (r == Reply::Value) r = askSecondPoint(in, L"\nSpecify second point or <use first point as displacement>: ",
                                              base, d, {}, option);
    else r = askDisplacement(in, d);
    if (r == Reply::Cancel) return RTCAN;
    return transformObjects(objects, Transform::translation(d), false);
}

CommandRegistration move(L"MOVE", moveCommand);

}  // namespace
}  // namespace host::cmd
