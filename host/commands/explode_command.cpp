// EXPLODE: the objects selected are replaced by their parts: block references by the
// entities of their blocks, polylines by lines and arcs (see block_explode.h). The command
// fails when none of them could be exploded.
#include "adscodes.h"
#include "host/commands/block_definition.h"
#include "host/commands/block_explode.h"
#include "host/commands/object_selection.h"

namespace host::cmd {
namespace {

bool explodeOne(const Name& n) {
    RbPtr list = entityList(n);
    std::wstring type = list ? typeOf(list.get()) : L"";
    if (type == L"INSERT") return explodeReference(n);
    if (type == L"LWPOLYLINE" || type == L"POLYLINE") return explodePolyline(n);
    return false;
}

int explodeCommand(CommandInput& in) {
    std::vector<Name> objects;
    if (!readObjects(in, objects)) return RTNORM;
    size_t failed = 0;
    for (const auto& n : objects)
        if (!explodeOne(n)) ++failed;
    if (failed == 0) return RTNORM;
    say(L"\n" + std::to_wstring(failed) + (failed == 1 ? L" was" : L" were") + L" not able to be exploded.");
    return failed == objects.size() ? RTERROR : RTNORM;
}

CommandRegistration explode(L"EXPLODE", explodeCommand);

}  // namespace
}  // namespace host::cmd
