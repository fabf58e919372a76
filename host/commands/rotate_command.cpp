// ROTATE: objects, a base point, then the angle to turn them by (current angle units,
// counter-clockwise unless ANGDIR says otherwise, or a point whose direction from the base
// is the angle), or Reference: the angle they have now and the angle they should have.
// Copy turns copies and leaves the objects.
#include <cwchar>

#include "adscodes.h"
#include "host/commands/edit_support.h"
#include "host/commands/object_selection.h"
#include "host/runtime/host.h"

namespace host::cmd {
namespace {

void sayAngleSettings() {
    const SysVarValue* dir = vars().find(L"ANGDIR");
    const SysVarValue* base = vars().find(L"ANGBASE");
    wchar_t degrees[32];
    std::swprintf(degrees, 32, L"%g", (base ? base->real : 0.0) * 180.0 / 3.14159265358979323846);
    inform(std::wstring(L"\nCurrent positive angle in UCS:  ANGDIR=") +
        (dir && dir->integer == 1 ? L"clockwise" : L"counterclockwise") + L"  ANGBASE=" + degrees);
}

// The turn from a reference angle to a new one; false when the input ended.
bool askReference(CommandInput& in, const double base[3], double& turn) {
    double from = toRadians(0), to = toRadians(0);
    int option;
    Reply r = askAngle(in, L"\nSpecify the reference angle <0>: ", base, true, from, {}, option);
    if (r == Reply::Cancel) return false;
    r = askAngle(in, L"\nSpecify the new angle <0>: ", base, true, to, {}, option);
    if (r == Reply::Cancel) return false;
    turn = to - from;
    return true;
}

int rotateCommand(CommandInput& in) {
    sayAngleSettings();
    std::vector<Name> objects;
    if (!readObjects(in, objects)) return RTNORM;
    double base[3];
    int option;
    if (askPoint(in, L"\nSpecify base point: ", base, {}, option) != Reply::Value) return RTCAN;
    bool copy = false;
    double turn = 0;
    Reply r = askWithCopy(
        [&](int& chosen) {
            return askAngle(in, L"\nSpecify rotation angle or [Copy/Reference] <0>: ", base, false, turn,
                            {{L"Copy", L"C"}, {L"Reference", L"R"}}, chosen);
        },
        L"\nRotating a copy of the selected objects.", copy);
    if (r == Reply::Cancel) return RTCAN;
    if (r == Reply::Enter) turn = 0;
    if (r == Reply::Option && !askReference(in, base, turn)) return RTCAN;
    return transformObjects(objects, Transform::rotation(base, turn), copy);
}

CommandRegistration rotate(L"ROTATE", rotateCommand);

}  // namespace
}  // namespace host::cmd
