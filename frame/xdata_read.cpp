// Reading an application's string or list back from an entity's extended data.
#include <cstdlib>
#include <cstring>
#include <cwchar>

#include "acdbads.h"
#include "acutads.h"
#include "frame/list_builder.h"
#include "frame/rblist.h"
#include "frame/report.h"
#include "frame/xdata.h"
#include "frame/xdata_groups.h"
#include "frame/xdata_messages.h"

namespace vrn2 {

int readXdata(const ads_name entity, const ACHAR* application, int kind, resbuf** result) {
    *result = nullptr;
    if (!application || std::wcslen(application) >= kApplicationNameLimit)
        return printFailure(kMsgApplicationNameTooLong);
    if (kind != static_cast<int>(XdataKind::String) && kind != static_cast<int>(XdataKind::List))
        return printFailure(kMsgBadKind);
    RbList data(readWithAllXdata(entity));
    if (!data) return printFailure(kMsgNotInDatabase);
    resbuf* mark = findXdataMark(data.get());
    if (!mark) return RTERROR;
    ApplicationBlock block = findBlock(mark, application);
    if (kind == static_cast<int>(XdataKind::String))
        return block.string && (*result = newStringBuffer(RTSTR, block.string->resval.rstring)) ? RTNORM : RTERROR;
    return block.beforeBrace ? xdataToList(block.beforeBrace->rbnext, result) : RTERROR;
}

}  // namespace vrn2
