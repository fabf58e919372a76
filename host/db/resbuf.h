// Owning handles and helpers for result-buffer lists inside the host.
#pragma once

#include <memory>
#include <string_view>

#include "adsdef.h"

namespace host {

struct RbDeleter {
    void operator()(resbuf* rb) const;
};
using RbPtr = std::unique_ptr<resbuf, RbDeleter>;

// One new node of the given type; a string type gets a malloc'd copy of text.
resbuf* newRb(int type);
resbuf* newStringRb(int type, std::wstring_view text);
// A malloc'd copy, as acutRelRb frees it.
ACHAR* copyString(std::wstring_view text);
// A deep copy of a whole chain (strings and binary chunks copied).
resbuf* copyChain(const resbuf* rb);
resbuf* copyNode(const resbuf* rb);

}  // namespace host
