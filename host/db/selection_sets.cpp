#include "host/db/selection_sets.h"

#include <algorithm>

namespace host::db {

bool SelectionSets::Set::add(uint32_t member) {
    if (!index.insert(member).second) return false;
    members.push_back(member);
    return true;
}

bool SelectionSets::Set::remove(uint32_t member) {
    if (index.erase(member) == 0) return false;
    members.erase(std::find(members.begin(), members.end(), member));
    return true;
}

long SelectionSets::create() {
    if (sets_.size() >= kMaxOpen) return 0;
    long id = next_++;
    sets_[id];
    return id;
}

SelectionSets::Set* SelectionSets::find(long id) {
    auto it = sets_.find(id);
    return it == sets_.end() ? nullptr : &it->second;
}

bool SelectionSets::release(long id) { return sets_.erase(id) != 0; }

}  // namespace host::db
