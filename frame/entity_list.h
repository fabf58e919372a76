// Reading the group-code lists that acdbEntGet answers: a group found by its code, its value
// read as the kind that code holds. A reader answers nothing when the entity has no such group
// or the code holds another kind of value, so a wrong code never reads the wrong union member.
#pragma once

#include <optional>
#include <string>

#include "adsdef.h"
#include "frame/geometry.h"
#include "frame/rblist.h"

namespace vrn2 {

// The kinds of value a group code holds in an entity list.
enum class GroupKind { Text, Point, Real, Short, Long, Name, Other };
GroupKind groupKind(int code);

// The first group of LIST with CODE, or null.
const resbuf* findGroup(const resbuf* list, int code);

class EntityList {
public:
    // The entity's list (acdbEntGet); empty when the host has no such entity.
    explicit EntityList(const ads_name entity);
    // With the extended data of the applications APPLICATIONS names ("*" for all).
    EntityList(const ads_name entity, const ACHAR* applications);
    // Takes over a list read some other way.
    explicit EntityList(RbList list) : list_(std::move(list)) {}

    bool valid() const { return static_cast<bool>(list_); }
    const resbuf* get() const { return list_.get(); }
    // The list itself, for changes handed to acdbEntMod.
    resbuf* get() { return list_.get(); }

    const resbuf* find(int code) const { return findGroup(list_.get(), code); }

    std::optional<Point3> point(int code) const;
    std::optional<double> real(int code) const;
    // Short and long integer groups alike.
    std::optional<long> integer(int code) const;
    std::optional<std::wstring> text(int code) const;
    // An entity name group (-1, -2, 330 to 369 and the like); false when there is none.
    bool name(int code, ads_name entity) const;

    // Group 0, 8 and 5: the entity type, its layer and its handle; "" when missing.
    std::wstring type() const { return text(0).value_or(L""); }
    std::wstring layer() const { return text(8).value_or(L""); }
    std::wstring handle() const { return text(5).value_or(L""); }

private:
    const resbuf* findKind(int code, GroupKind kind) const;
    RbList list_;
};

}  // namespace vrn2
