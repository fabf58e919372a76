// A seam for tests: a function asked before each write of a save with the number of bytes
// the file would then hold; when it answers true the write fails as on a full disk.
#pragma once

#include <cstddef>
#include <functional>

namespace host::db {

using SaveFault = std::function<bool(size_t bytesAfterWrite)>;
void setSaveFault(SaveFault fault);  // an empty function removes it

}  // namespace host::db
