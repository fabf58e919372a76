#include "frame/xdata_groups.h"

#include <climits>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <cwchar>
#include <cwctype>

#include "acdbads.h"
#include "acedads.h"
#include "acutads.h"
#include "frame/list_builder.h"
#include "frame/rblist.h"
#include "frame/xdata_messages.h"

namespace vrn2 {
namespace {

constexpr wchar_t kMsgInvalidList[] = L"\ninvalid input list";

bool equalsNoCase(const ACHAR* a, const ACHAR* b) {
    for (; *a && *b; ++a, ++b)
        if (std::towupper(*a) != std::towupper(*b)) return false;
    return *a == *b;
}

// The entity's handle, or "-1" when it has none to give.
bool addHandleOf(ListBuilder& out, const ads_name entity) {
    RbList data(acdbEntGet(entity));
    for (const resbuf* rb = data.get(); rb; rb = rb->rbnext)
        if (rb->restype == 5 && rb->resval.rstring) return out.addString(1005, rb->resval.rstring);
    return out.addString(1005, L"-1");
}

bool addElement(ListBuilder& out, const resbuf* element, int& level) {
    resbuf* rb = nullptr;
    switch (element->restype) {
    case RTREAL:
    case RTANG:
        if (!(rb = out.add(1040))) return false;
        rb->resval.rreal = element->resval.rreal;
        return true;
    case RTPOINT:
    case RT3DPOINT:
        if (!(rb = out.add(1010))) return false;
        rb->resval.rpoint[0] = element->resval.rpoint[0];
        rb->resval.rpoint[1] = element->resval.rpoint[1];
        rb->resval.rpoint[2] = element->restype == RT3DPOINT ? element->resval.rpoint[2] : 0.0;
        return true;
    case RTSHORT:
        if (!(rb = out.add(1070))) return false;
        rb->resval.rint = element->resval.rint;
        return true;
    case RTLONG:
        if (!(rb = out.add(1071))) return false;
        rb->resval.rlong = element->resval.rlong;
        return true;
    case RTSTR: return out.addString(1000, element->resval.rstring);
    case RTENAME: return addHandleOf(out, element->resval.rlname);
    case RTLB: ++level; return out.addString(1002, L"{");
    case RTLE: --level; return out.addString(1002, L"}");
    case RTDOTE: return out.addString(1002, L"}");
    default: return true;  // nil and T have no group of their own
    }
}

int reportNoMemory() {
    acedAlert(kMsgNoMemory);
    return RTERROR;
}

short toShort(double value) {
    if (!(value > SHRT_MIN)) return SHRT_MIN;
    if (value > SHRT_MAX) return SHRT_MAX;
    return static_cast<short>(std::trunc(value));
}

// One group as a list element; false for a group that has none.
bool addListElement(ListBuilder& out, const resbuf* group, int& level, bool& noMemory) {
    resbuf* rb = nullptr;
    auto make = [&](int type) {
        rb = out.add(type);
        noMemory = rb == nullptr;
        return rb != nullptr;
    };
    switch (group->restype) {
    case 1000:
        noMemory = !out.addString(RTSTR, group->resval.rstring);
        return true;
    case 1002:
        level += isOpeningBrace(group) ? 1 : -1;
        make(isOpeningBrace(group) ? RTLB : RTLE);
        return true;
    case 1005: {
        ads_name entity = {0, 0};
        if (group->resval.rstring && acdbHandEnt(group->resval.rstring, entity) == RTNORM) {
            if (make(RTENAME)) {
                rb->resval.rlname[0] = entity[0];
                rb->resval.rlname[1] = entity[1];
            }
        } else {
            make(RTNIL);
        }
        return true;
    }
    case 1010:
        if (make(RT3DPOINT))
            for (int i = 0; i < 3; ++i) rb->resval.rpoint[i] = group->resval.rpoint[i];
        return true;
    // These pairings are the stored ones even where the width changes: a point of 1011 or
    // 1012 comes back as a short made from its x, a 32-bit 1071 as a real.
    case 1011:
    case 1012:
        if (make(RTSHORT)) rb->resval.rint = toShort(group->resval.rpoint[0]);
        return true;
    case 1070:
        if (make(RTSHORT)) rb->resval.rint = group->resval.rint;
        return true;
    case 1040:
    case 1041:
    case 1042:
        if (make(RTREAL)) rb->resval.rreal = group->resval.rreal;
        return true;
    case 1071:
        if (make(RTREAL)) rb->resval.rreal = static_cast<double>(group->resval.rlong);
        return true;
    default: return false;
    }
}

}  // namespace

resbuf* readWithAllXdata(const ads_name entity) {
    resbuf allApplications{};
    allApplications.restype = RTSTR;
    allApplications.resval.rstring = const_cast<ACHAR*>(L"*");
    return acdbEntGetX(entity, &allApplications);
}

resbuf* findXdataMark(resbuf* entity) {
    while (entity && entity->restype != -3) entity = entity->rbnext;
    return entity;
}

int XdataNesting::step(const resbuf* group) {
    int before = level_;
    if (group->restype == 1002) level_ += isOpeningBrace(group) ? 1 : -1;
    return before;
}

bool isOpeningBrace(const resbuf* group) {
    return group->restype == 1002 && group->resval.rstring && equalsNoCase(group->resval.rstring, L"{");
}

bool isApplicationGroup(const resbuf* group, const ACHAR* application) {
    return group->restype == 1001 && group->resval.rstring && equalsNoCase(group->resval.rstring, application);
}

ApplicationBlock findBlock(resbuf* mark, const ACHAR* application) {
    ApplicationBlock block;
    XdataNesting nesting;
    bool inside = false;
    resbuf* prev = mark;
    for (resbuf* g = mark->rbnext; g; prev = g, g = g->rbnext) {
        int level = nesting.step(g);
        if (level == 0 && g->restype == 1001) {
            inside = !block.name && isApplicationGroup(g, application);
            if (inside) block.name = g;
        }
        if (!inside) continue;
        block.last = g;
        if (level == 0 && g->restype == 1000 && !block.string) block.string = g;
        if (level == 0 && isOpeningBrace(g) && !block.beforeBrace) block.beforeBrace = prev;
        else if (block.beforeBrace && !block.braceEnd && nesting.level() <= 0) block.braceEnd = g;
    }
    return block;
}

int listToXdata(const resbuf* list, resbuf** groups) {
    *groups = nullptr;
    ListBuilder out;
    int level = 0;
    for (const resbuf* element = list; element; element = element->rbnext) {
        if (!addElement(out, element, level)) return reportNoMemory();
        if (level == 0) break;
    }
    *groups = out.release();
    return RTNORM;
}

int pointToXdata(const resbuf* point, resbuf** groups) {
    *groups = nullptr;
    int count = point->restype == RT3DPOINT ? 3 : 2;
    resbuf reals[3] = {};
    resbuf open{}, close{};
    open.restype = RTLB;
    close.restype = RTLE;
    open.rbnext = &reals[0];
    for (int i = 0; i < count; ++i) {
        reals[i].restype = RTREAL;
        reals[i].resval.rreal = point->resval.rpoint[i];
        reals[i].rbnext = i + 1 < count ? &reals[i + 1] : &close;
    }
    return listToXdata(&open, groups);
}

int xdataToList(const resbuf* from, resbuf** list) {
    *list = nullptr;
    ListBuilder out;
    int level = 0;
    for (const resbuf* group = from; group; group = group->rbnext) {
        bool noMemory = false;
        if (!addListElement(out, group, level, noMemory)) break;
        if (noMemory) return reportNoMemory();
        if (level < 0) break;
        if (level == 0) {
            *list = out.release();
            return RTNORM;
        }
    }
    acutPrintf(L"%s", kMsgInvalidList);
    return RTERROR;
}

}  // namespace vrn2
