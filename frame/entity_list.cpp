#include "frame/entity_list.h"

#include "acdbads.h"

namespace vrn2 {
namespace {

bool within(int code, int low, int high) { return code >= low && code <= high; }

}  // namespace

GroupKind groupKind(int code) {
    if (code == -1 || code == -2 || within(code, 330, 369) || within(code, 390, 399)) return GroupKind::Name;
    if (within(code, 0, 9) || within(code, 100, 102) || code == 105 || within(code, 300, 309) ||
        within(code, 410, 419) || within(code, 430, 439) || code == 999 || within(code, 1000, 1003) ||
        code == 1005)
        return GroupKind::Text;
    if (within(code, 10, 18) || within(code, 110, 112) || code == 210 || within(code, 1010, 1013))
        return GroupKind::Point;
    if (within(code, 38, 59) || within(code, 113, 149) || within(code, 460, 469) || within(code, 1040, 1042))
        return GroupKind::Real;
    if (within(code, 60, 79) || within(code, 170, 179) || within(code, 270, 299) || within(code, 370, 389) ||
        within(code, 400, 409) || code == 1070)
        return GroupKind::Short;
    if (within(code, 90, 99) || within(code, 420, 429) || within(code, 440, 459) || code == 1071)
        return GroupKind::Long;
    return GroupKind::Other;
}

const resbuf* findGroup(const resbuf* list, int code) {
    for (const resbuf* rb = list; rb; rb = rb->rbnext)
        if (rb->restype == code) return rb;
    return nullptr;
}

EntityList::EntityList(const ads_name entity) : list_(acdbEntGet(entity)) {}

EntityList::EntityList(const ads_name entity, const ACHAR* applications) {
    resbuf names{};
    names.restype = RTSTR;
    names.resval.rstring = const_cast<ACHAR*>(applications);
    list_.reset(acdbEntGetX(entity, &names));
}

const resbuf* EntityList::findKind(int code, GroupKind kind) const {
    return groupKind(code) == kind ? find(code) : nullptr;
}

std::optional<Point3> EntityList::point(int code) const {
    const resbuf* rb = findKind(code, GroupKind::Point);
    if (!rb) return std::nullopt;
    return Point3::of(rb->resval.rpoint);
}

std::optional<double> EntityList::real(int code) const {
    const resbuf* rb = findKind(code, GroupKind::Real);
    if (!rb) return std::nullopt;
    return rb->resval.rreal;
}

std::optional<long> EntityList::integer(int code) const {
    if (const resbuf* rb = findKind(code, GroupKind::Short)) return rb->resval.rint;
    if (const resbuf* rb = findKind(code, GroupKind::Long)) return rb->resval.rlong;
    return std::nullopt;
}

std::optional<std::wstring> EntityList::text(int code) const {
    const resbuf* rb = findKind(code, GroupKind::Text);
    if (!rb || !rb->resval.rstring) return std::nullopt;
    return std::wstring(rb->resval.rstring);
}

bool EntityList::name(int code, ads_name entity) const {
    const resbuf* rb = findKind(code, GroupKind::Name);
    if (!rb) return false;
    entity[0] = rb->resval.rlname[0];
    entity[1] = rb->resval.rlname[1];
    return true;
}

}  // namespace vrn2
