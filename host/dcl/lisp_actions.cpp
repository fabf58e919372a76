#include "host/dcl/lisp_actions.h"

#include "host/session.h"

namespace host::dcl {
namespace {

struct LispActions {
    LispActionHook hook;
};

LispActionHook& hook() { return sessionPart<LispActions>().hook; }

}  // namespace

void setLispActionHook(LispActionHook h) { hook() = std::move(h); }

void runLispAction(Dialog& dialog, int index, int reason) {
    const RuntimeTile& t = dialog.tile(index);
    std::wstring expression = t.source->attr(L"action");
    if (!hook()) {
        dialog.lispActions.push_back(t.key + L": " + expression);
        return;
    }
    LispActionHook h = hook();  // the evaluation may replace the hook
    h(LispActionCall{dialog.handle(), t.key, t.value, expression, t.clientData, reason});
}

}  // namespace host::dcl
