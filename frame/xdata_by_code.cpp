// "work2": values of given group codes from the extended data of named applications.
//
// (work2 ENTITY APP1 CODE1 APP2 CODE2 ...) answers one element per pair, in order: the list
// of the values of every group CODE in APP's extended data, or nil when the application has
// none of them. Any bad argument answers nil as a whole.
#include <vector>

#include "acdbads.h"
#include "acedads.h"
#include "acutads.h"
#include "frame/args.h"
#include "frame/frame_handlers.h"
#include "frame/list_builder.h"
#include "frame/rblist.h"
#include "frame/report.h"
#include "frame/xdata.h"
#include "frame/xdata_groups.h"
#include "frame/xdata_messages.h"

namespace vrn2 {
namespace {

struct Request {
    const ACHAR* application;
    int code;
};

// Copies one group as an AutoLISP value; false only when memory runs out.
bool addValue(ListBuilder& out, const resbuf* group) {
    int code = group->restype;
    if (code >= 1000 && code <= 1003) return out.addString(RTSTR, group->resval.rstring);
    if (code == 1005) {
        ads_name entity = {0, 0};
        if (!group->resval.rstring || acdbHandEnt(group->resval.rstring, entity) != RTNORM) return out.add(RTNIL) != nullptr;
        return out.addName(RTENAME, entity);
    }
    if (code >= 1010 && code <= 1013) return out.addPoint(RT3DPOINT, group->resval.rpoint);
    if (code >= 1040 && code <= 1042) return out.addReal(RTREAL, group->resval.rreal);
    if (code == 1070) return out.addShort(RTSHORT, group->resval.rint);
    if (code == 1071) return out.addLong(RTLONG, group->resval.rlong);
    return true;  // binary chunks have no AutoLISP value
}

// The values of one request, as a list or nil; false only when memory runs out.
bool addRequest(ListBuilder& out, const ads_name entity, const Request& request) {
    if (!ensureApplicationRegistered(request.application)) {
        acutPrintf(L"Can't register XDATA for %s.", request.application);
        return out.add(RTNIL) != nullptr;
    }
    resbuf only{};
    only.restype = RTSTR;
    only.resval.rstring = const_cast<ACHAR*>(request.application);
    RbList data(acdbEntGetX(entity, &only));
    resbuf* mark = findXdataMark(data.get());
    ApplicationBlock block = mark ? findBlock(mark, request.application) : ApplicationBlock{};
    if (!block.name) {
        acutPrintf(L"warning:no XDATA for %s.", request.application);
        return out.add(RTNIL) != nullptr;
    }
    ListBuilder values;
    for (const resbuf* g = block.name->rbnext; g; g = g->rbnext) {
        if (g->restype == request.code && !addValue(values, g)) return false;
        if (g == block.last) break;
    }
    if (values.empty()) return out.add(RTNIL) != nullptr;
    if (!out.add(RTLB)) return false;
    out.splice(values.release());
    return out.add(RTLE) != nullptr;
}

}  // namespace

int xdataByCode() {
    ArgWalker args;
    ads_name entity = {0, 0};
    auto answerNil = [](const wchar_t* message) {
        acedRetNil();
        return printFailure(message, RTNORM);
    };
    if (!args.nextName(entity)) return answerNil(L"First arg should be a entity name!\n");
    std::vector<Request> requests;
    while (!args.atEnd()) {
        Request request{};
        if (!args.nextString(request.application)) return answerNil(L"Args should be a string!\n");
        if (!args.nextShort(request.code)) return answerNil(L"Args should be a DXF code!\n");
        requests.push_back(request);
    }
    ListBuilder result;
    for (const Request& request : requests)
        if (!addRequest(result, entity, request)) return reportFailure({Channel::Alert, kMsgNoMemory});
    RbList list(result.release());
    if (list) acedRetList(list.get());
    else acedRetNil();
    return RTNORM;
}

}  // namespace vrn2
