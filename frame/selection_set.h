// An owning selection set: the host's set is freed with acedSSFree on every way out. The
// host allows only so many open sets per drawing, so a set is released as soon as its owner
// goes out of scope; moving hands the set over.
#pragma once

#include "acedads.h"
#include "adsdef.h"

namespace vrn2 {

class SelectionSet {
public:
    SelectionSet() = default;
    ~SelectionSet() { reset(); }
    SelectionSet(const SelectionSet&) = delete;
    SelectionSet& operator=(const SelectionSet&) = delete;
    SelectionSet(SelectionSet&& other) noexcept;
    SelectionSet& operator=(SelectionSet&& other) noexcept;

    // Selects with acedSSGet, as its arguments say ("X" with a filter, "W"/"C" with two
    // corners, "F" with a point list, ...). Any set held before is freed first. Answers the
    // host's status; the set is held only on RTNORM.
    int select(const ACHAR* mode, const void* first = nullptr, const void* second = nullptr,
               const resbuf* filter = nullptr);

    bool held() const { return held_; }
    explicit operator bool() const { return held_; }
    // The host's name of the set, for the host's own functions; valid while held.
    const long* name() const { return name_; }

    // Entities in the set; 0 when none is held.
    long length() const;
    // Entity number INDEX (from 0); false when there is none.
    bool at(long index, ads_name entity) const;
    bool contains(const ads_name entity) const;
    // Adds ENTITY, making a set when none is held; false when the host refuses.
    bool add(const ads_name entity);
    // Takes ENTITY out of the set; false when it was not a member.
    bool remove(const ads_name entity);

    // Frees the set now.
    void reset();

private:
    ads_name name_ = {0, 0};
    bool held_ = false;
};

}  // namespace vrn2
