// ERASE: objects selected until Enter are deleted.
#include "acdbads.h"
#include "adscodes.h"
#include "host/commands/object_selection.h"

namespace host::cmd {
namespace {

int eraseCommand(CommandInput& in) {
    std::vector<Name> objects;
    readObjects(in, objects);
    for (const auto& n : objects) {
        ads_name e = {n[0], n[1]};
        acdbEntDel(e);
    }
    return RTNORM;
}

CommandRegistration erase(L"ERASE", eraseCommand);

}  // namespace
}  // namespace host::cmd
