// "_kzsj1" and "_kzsj2": attaching and reading extended data from AutoLISP.
#include <cwchar>

#include "acedads.h"
#include "acutads.h"
#include "frame/args.h"
#include "frame/frame_handlers.h"
#include "frame/messages.h"
#include "frame/rblist.h"
#include "frame/report.h"
#include "frame/xdata.h"
#include "frame/xdata_messages.h"

namespace vrn2 {
namespace {

constexpr wchar_t kMsgFirstNotEntity[] = L"\nFirst of Argument should be entity name.";
constexpr wchar_t kMsgSecondNotApplication[] = L"\nSecond of Argument should be Registered application name.";

// The entity and application arguments both functions begin with, checked in order.
bool readEntityAndApplication(ArgWalker& args, ads_name entity, const ACHAR*& application, int& status) {
    if (args.atEnd()) status = printFailure(kMsgTooFewParameter);
    else if (!args.nextName(entity)) status = printFailure(kMsgFirstNotEntity);
    else if (args.atEnd()) status = printFailure(kMsgTooFewParameter);
    else if (!args.nextString(application)) status = printFailure(kMsgSecondNotApplication);
    else if (std::wcslen(application) >= kApplicationNameLimit) status = printFailure(kMsgApplicationNameTooLong);
    else if (args.atEnd()) status = printFailure(kMsgTooFewParameter);
    else return true;
    return false;
}

// AutoLISP gets the elements between the list's outer RTLB and RTLE, so that it sees the
// list itself and not a list holding it.
void returnListElements(resbuf* list) {
    resbuf* beforeEnd = list;
    while (beforeEnd->rbnext && beforeEnd->rbnext->rbnext) beforeEnd = beforeEnd->rbnext;
    if (beforeEnd == list) {
        acedRetNil();
        return;
    }
    resbuf* end = beforeEnd->rbnext;
    beforeEnd->rbnext = nullptr;
    acedRetList(list->rbnext);
    beforeEnd->rbnext = end;
}

}  // namespace

int attachXdataFunction() {
    ArgWalker args;
    ads_name entity = {0, 0};
    const ACHAR* application = nullptr;
    int status = RTERROR;
    if (!readEntityAndApplication(args, entity, application, status)) return status;
    return attachXdata(entity, application, args.peek());
}

int readXdataFunction() {
    ArgWalker args;
    ads_name entity = {0, 0};
    const ACHAR* application = nullptr;
    int status = RTERROR;
    if (!readEntityAndApplication(args, entity, application, status)) return status;
    int kind = -1;
    if (!args.nextShort(kind) || (kind != 0 && kind != 1)) return printFailure(kMsgBadKind);

    RbList result;
    if (readXdata(entity, application, kind, result.out()) != RTNORM) acedRetNil();
    else if (kind == static_cast<int>(XdataKind::String)) acedRetStr(result.get()->resval.rstring);
    else returnListElements(result.get());
    return RTNORM;
}

}  // namespace vrn2
