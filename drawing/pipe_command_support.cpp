#include "drawing/pipe_command_support.h"

#include "acdbads.h"
#include "acutads.h"
#include "adscodes.h"
#include "frame/list_builder.h"

namespace vrn2 {

int failWith(const ACHAR* message) {
    acdbFail(message);
    return RTERROR;
}

bool selectPipes(SelectionSet& set, const ACHAR* type, const ACHAR* layers) {
    ListBuilder filter;
    if (!filter.addString(0, type) || !filter.addString(8, layers)) return false;
    set.select(L"X", nullptr, nullptr, filter.get());
    if (set.length() > kMaxPipeEntities) {
        acutPrintf(L"Too Many Entities( > %d) !!\n", static_cast<int>(kMaxPipeEntities));
        return false;
    }
    return true;
}

}  // namespace vrn2
