// The host's headless forms: scripted dialog actions, queued picks and typed replies.
#include "host/dcl/dialog_script.h"
#include "host/lisp/interpreter.h"
#include "host/runtime/input.h"

namespace host::lisp {
namespace {

using Args = std::vector<ValuePtr>;

std::wstring textOf(const ValuePtr& v) {
    if (v && (v->kind == Kind::Str || v->kind == Kind::Sym)) return v->text;
    if (isNumber(v)) return printValue(v, false);
    badArgument(L"stringp", v);
}

// Dialog names and tile keys are case-sensitive, and a symbol has lost its case in the reader,
// so they must be strings.
std::wstring nameOf(const ValuePtr& v) {
    if (!v || v->kind != Kind::Str) badArgument(L"stringp", v);
    return v->text;
}

DialogAction parseAction(const ValuePtr& form) {
    auto parts = listItems(form);
    if (parts.empty() || !parts[0] || parts[0]->kind != Kind::Sym) badArgument(L"dialog action", form);
    DialogAction action;
    const std::wstring& verb = parts[0]->text;
    if (verb == L"SET" || verb == L"SELECT") {
        if (parts.size() != 3) badArgument(L"dialog action", form);
        action.kind = verb == L"SET" ? DialogAction::Kind::Set : DialogAction::Kind::Select;
        action.key = nameOf(parts[1]);
        action.value = textOf(parts[2]);
    } else if (verb == L"PRESS") {
        if (parts.size() != 2) badArgument(L"dialog action", form);
        action.kind = DialogAction::Kind::Press;
        action.key = nameOf(parts[1]);
    } else {
        badArgument(L"dialog action", form);
    }
    return action;
}

// nil is a bare Enter; a string is typed text; a list of two or three numbers is a point.
TypedReply typedReply(const ValuePtr& v) {
    TypedReply r;
    if (isNil(v)) return r;
    if (v->kind == Kind::Str) {
        r.kind = TypedReply::Kind::Text;
        r.text = v->text;
    } else if (v->kind == Kind::Int) {
        r.kind = TypedReply::Kind::Integer;
        r.integer = v->integer;
    } else if (v->kind == Kind::Real) {
        r.kind = TypedReply::Kind::Real;
        r.real = v->real;
    } else if (isList(v)) {
        r.kind = TypedReply::Kind::Point;
        pointArg(v, r.point);
    } else {
        badArgument(L"typed reply", v);
    }
    return r;
}

}  // namespace

void addHeadlessBuiltins(Interpreter& in) {
    in.define(L"HOST-DIALOG", [](Interpreter&, const Args& a) {
        expectCount(a, 2, 2);
        std::wstring name = nameOf(a[0]);
        if (!isList(a[1])) badArgument(L"listp", a[1]);
        std::vector<DialogAction> actions;
        for (auto& form : listItems(a[1])) actions.push_back(parseAction(form));
        queueDialogActions(name, std::move(actions));
        return t();
    });
    in.define(L"HOST-ENTSEL", [](Interpreter&, const Args& a) {
        expectCount(a, 2, 2);
        if (!a[0] || a[0]->kind != Kind::Ename) badArgument(L"lentityp", a[0]);
        ads_point p;
        pointArg(a[1], p);
        queueEntityPick(a[0]->name, p);
        return t();
    });
    in.define(L"HOST-GETPOINT", [](Interpreter&, const Args& a) {
        expectCount(a, 1, 1);
        ads_point p;
        pointArg(a[0], p);
        queuePointPick(p);
        return t();
    });
    in.define(L"HOST-INPUT", [](Interpreter&, const Args& a) {
        expectCount(a, 1, a.size());
        std::vector<TypedReply> replies;
        for (const auto& v : a) replies.push_back(typedReply(v));
        for (auto& r : replies) queueTypedReply(std::move(r));
        return t();
    });
}

}  // namespace host::lisp
