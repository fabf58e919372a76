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
#include "frame/report.h"
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
    switch (element->restype) {
    case RTREAL:
    case RTANG: return out.addReal(1040, element->resval.rreal);
    case RTPOINT:
    case RT3DPOINT: {
        const double* p = element->resval.rpoint;
        ads_point point = {p[0], p[1], element->restype == RT3DPOINT ? p[2] : 0.0};
        return out.addPoint(1010, point);
    }
    case RTSHORT: return out.addShort(1070, element->resval.rint);
    case RTLONG: return out.addLong(1071, element->resval.rlong);
    case RTSTR: return out.addString(1000, element->resval.rstring);
    case RTENAME: return addHandleOf(out, element->resval.rlname);
    case RTLB: ++level; return out.addString(1002, L"{");
    case RTLE: --level; return out.addString(1002, L"}");
    case RTDOTE: return out.addString(1002, L"}");
    default: return true;  // nil and T have no group of their own
    }
}

short toShort(double value) {
    if (!(value > SHRT_MIN)) return SHRT_MIN;
    if (value > SHRT_MAX) return SHRT_MAX;
    return static_cast<short>(std::trunc(value));
}

// One group as a list element; false for a group that has none.
bool addListElement(ListBuilder& out, const resbuf* group, int& level, bool& noMemory) {
    bool added = true;
    switch (group->restype) {
    case 1000: added = out.addString(RTSTR, group->resval.rstring); break;
    case 1002:
        level += isOpeningBrace(group) ? 1 : -1;
        added = out.add(isOpeningBrace(group) ? RTLB : RTLE) != nullptr;
        break;
    case 1005: {
        ads_name entity = {0, 0};
        if (group->resval.rstring && acdbHandEnt(group->resval.rstring, entity) == RTNORM)
            added = out.addName(RTENAME, entity);
        else
            added = out.add(RTNIL) != nullptr;
        break;
    }
    case 1010: added = out.addPoint(RT3DPOINT, group->resval.rpoint); break;
    // These pairings are the stored ones even where the width changes: a point of 1011 or
    // 1012 comes back as a short made from its x, a 32-bit 1071 as a real.
    case 1011:
    case 1012: added = out.addShort(RTSHORT, toShort(group->resval.rpoint[0])); break;
    case 1070: added = out.addShort(RTSHORT, group->resval.rint); break;
    case 1040:
    case 1041:
    case 1042: added = out.addReal(RTREAL, group->resval.rreal); break;
    case 1071: added = out.addReal(RTREAL, static_cast<double>(group->resval.rlong)); break;
    default: return false;
    }
    noMemory = !added;
    return true;
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
        if (!addElement(out, element, level)) return reportFailure({Channel::Alert, kMsgNoMemory});
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
        if (noMemory) return reportFailure({Channel::Alert, kMsgNoMemory});
        if (level < 0) break;
        if (level == 0) {
            *list = out.release();
            return RTNORM;
        }
    }
    return printFailure(kMsgInvalidList);
}

}  // namespace vrn2
