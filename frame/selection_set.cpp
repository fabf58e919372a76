#include "frame/selection_set.h"

namespace vrn2 {

SelectionSet::SelectionSet(SelectionSet&& other) noexcept : held_(other.held_) {
    name_[0] = other.name_[0];
    name_[1] = other.name_[1];
    other.held_ = false;
}

SelectionSet& SelectionSet::operator=(SelectionSet&& other) noexcept {
    if (this != &other) {
        reset();
        name_[0] = other.name_[0];
        name_[1] = other.name_[1];
        held_ = other.held_;
        other.held_ = false;
    }
    return *this;
}

int SelectionSet::select(const ACHAR* mode, const void* first, const void* second, const resbuf* filter) {
    reset();
    ads_name selected = {0, 0};
    int status = acedSSGet(mode, first, second, filter, selected);
    if (status == RTNORM) {
        name_[0] = selected[0];
        name_[1] = selected[1];
        held_ = true;
    }
    return status;
}

long SelectionSet::length() const {
    long length = 0;
    if (!held_ || acedSSLength(name_, &length) != RTNORM) return 0;
    return length;
}

bool SelectionSet::at(long index, ads_name entity) const {
    return held_ && index >= 0 && acedSSName(name_, index, entity) == RTNORM;
}

bool SelectionSet::contains(const ads_name entity) const { return held_ && acedSSMemb(entity, name_) == RTNORM; }

bool SelectionSet::add(const ads_name entity) {
    ads_name result = {0, 0};
    if (acedSSAdd(entity, held_ ? name_ : nullptr, result) != RTNORM) return false;
    name_[0] = result[0];
    name_[1] = result[1];
    held_ = true;
    return true;
}

bool SelectionSet::remove(const ads_name entity) { return held_ && acedSSDel(entity, name_) == RTNORM; }

void SelectionSet::reset() {
    if (held_) acedSSFree(name_);
    held_ = false;
    name_[0] = name_[1] = 0;
}

}  // namespace vrn2
