#include "host/dcl/library.h"

#include "host/dcl/base_prototypes.h"

namespace host::dcl {

Library::Library() {
    for (const auto& def : baseDefinitions()) byName_[def.name] = &def;
}

void Library::add(const Definition& def) {
    byName_[def.name] = &def;
    fromFiles_.push_back(&def);
}

const Definition* Library::find(const std::wstring& name) const {
    auto it = byName_.find(name);
    return it == byName_.end() ? nullptr : it->second;
}

}  // namespace host::dcl
