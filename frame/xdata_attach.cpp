// Attaching a string or a list to an entity as the extended data of one application.
#include <cstdlib>
#include <cstring>
#include <cwchar>

#include "acdbads.h"
#include "acedads.h"
#include "acutads.h"
#include "frame/messages.h"
#include "frame/list_builder.h"
#include "frame/rblist.h"
#include "frame/report.h"
#include "frame/xdata.h"
#include "frame/xdata_groups.h"
#include "frame/xdata_messages.h"

namespace vrn2 {
namespace {

constexpr size_t kMessageLimit = 256;
constexpr wchar_t kMsgMessageTooLong[] = L"\n Length of Message should less than 255";
constexpr wchar_t kMsgNotMessage[] = L"\nThird of Argument should be Message list or string.";

resbuf* lastOf(resbuf* list) {
    while (list && list->rbnext) list = list->rbnext;
    return list;
}

// Puts the string into an existing group 1000, reusing its storage when the string fits.
bool overwriteString(resbuf* group, const ACHAR* text) {
    size_t length = std::wcslen(text);
    if (!group->resval.rstring || std::wcslen(group->resval.rstring) < length) {
        void* grown = std::realloc(group->resval.rstring, (length + 1) * sizeof(ACHAR));
        if (!grown) return false;
        group->resval.rstring = static_cast<ACHAR*>(grown);
    }
    std::wmemcpy(group->resval.rstring, text, length + 1);
    return true;
}

// Replaces the brace group that follows block.beforeBrace with GROUPS.
void replaceBraceGroup(const ApplicationBlock& block, resbuf* entityTail, resbuf* groups) {
    resbuf* cutFirst = block.beforeBrace->rbnext;
    resbuf* cutLast = block.braceEnd ? block.braceEnd : entityTail;
    block.beforeBrace->rbnext = groups;
    lastOf(groups)->rbnext = cutLast->rbnext;
    cutLast->rbnext = nullptr;
    acutRelRb(cutFirst);
}

void insertAfter(resbuf* at, resbuf* groups) {
    lastOf(groups)->rbnext = at->rbnext;
    at->rbnext = groups;
}

// The entity's -3 group, appended when it has no extended data yet; null without memory.
resbuf* xdataMark(resbuf* entity) {
    resbuf* mark = findXdataMark(entity);
    if (!mark && (mark = acutNewRb(-3))) lastOf(entity)->rbnext = mark;
    return mark;
}

// Both change the entity list in place and answer false when memory runs out.
bool placeString(resbuf* entity, const ACHAR* application, const ACHAR* text) {
    resbuf* mark = xdataMark(entity);
    if (!mark) return false;
    ApplicationBlock block = findBlock(mark, application);
    if (block.string) return overwriteString(block.string, text);
    RbList group(newStringBuffer(1000, text));
    if (!group) return false;
    if (block.name) {
        insertAfter(block.last, group.release());
        return true;
    }
    RbList name(newStringBuffer(1001, application));
    if (!name) return false;
    name.get()->rbnext = group.release();
    lastOf(entity)->rbnext = name.release();
    return true;
}

bool placeList(resbuf* entity, const ACHAR* application, RbList& groups) {
    resbuf* mark = xdataMark(entity);
    if (!mark) return false;
    ApplicationBlock block = findBlock(mark, application);
    if (block.beforeBrace) {
        replaceBraceGroup(block, lastOf(entity), groups.release());
        return true;
    }
    if (!block.name) {
        // A new block goes at the end with its name in front of the groups.
        resbuf* name = newStringBuffer(1001, application);
        if (!name) return false;
        name->rbnext = groups.release();
        lastOf(entity)->rbnext = name;
        return true;
    }
    // The application has a block but no brace group: the groups go at the very end of the
    // extended data, behind whatever applications follow it.
    lastOf(entity)->rbnext = groups.release();
    return true;
}

}  // namespace

int attachXdata(const ads_name entity, const ACHAR* application, const resbuf* message) {
    if (!application || std::wcslen(application) >= kApplicationNameLimit)
        return printFailure(kMsgApplicationNameTooLong, RTERROR);
    if (!message) return printFailure(kMsgTooFewParameter, RTERROR);
    int kind = message->restype;
    if (kind == RTSTR && std::wcslen(message->resval.rstring) >= kMessageLimit)
        return printFailure(kMsgMessageTooLong, RTERROR);
    if (kind != RTSTR && kind != RTLB && kind != RTPOINT && kind != RT3DPOINT)
        return printFailure(kMsgNotMessage, RTNORM);

    if (!ensureApplicationRegistered(application)) {
        acutPrintf(L"\nCan't register XDATA for %s\n", application);
        return RTNORM;
    }
    RbList data(readWithAllXdata(entity));
    if (!data) return printFailure(kMsgNotInDatabase, RTNORM);

    bool placed = false;
    if (kind == RTSTR) {
        placed = placeString(data.get(), application, message->resval.rstring);
    } else {
        RbList groups;
        int status = kind == RTLB ? listToXdata(message, groups.out()) : pointToXdata(message, groups.out());
        if (status != RTNORM) return RTERROR;
        placed = groups && placeList(data.get(), application, groups);
    }
    if (!placed) return reportFailure({Channel::Alert, kMsgNoMemory});
    if (acdbEntMod(data.get()) != RTNORM) {
        long room = 0;
        acdbXdRoom(entity, &room);
        acutPrintf(L"\n%ld xdata is exist.", room);
        return RTERROR;
    }
    return RTNORM;
}

}  // namespace vrn2
