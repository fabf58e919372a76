// The headless forms for modeless windows: a user's actions on a window's controls, and the
// text a control shows.
#include "host/lisp/interpreter.h"
#include "host/win/dialog_windows.h"

namespace host::lisp {
namespace {

using Args = std::vector<ValuePtr>;

HWND windowNamed(const ValuePtr& title) {
    return FindWindowW(nullptr, stringArg(title).c_str());
}

HWND controlNamed(HWND window, const ValuePtr& name) {
    HWND control = win::findControl(window, stringArg(name));
    if (!control) fail(L"no control " + stringArg(name) + L" in the window");
    return control;
}

// Applies one (select NAME INDEX), (set NAME TEXT) or (click NAME) to WINDOW.
void applyAction(HWND window, const ValuePtr& form) {
    auto parts = listItems(form);
    if (parts.size() < 2 || !parts[0] || parts[0]->kind != Kind::Sym) badArgument(L"window action", form);
    const std::wstring& verb = parts[0]->text;
    HWND control = controlNamed(window, parts[1]);
    std::wstring error;
    bool done = false;
    if (verb == L"SELECT" && parts.size() == 3) {
        done = win::selectItem(control, static_cast<int>(intArg(parts[2])), error);
    } else if (verb == L"SET" && parts.size() == 3) {
        done = win::typeText(control, stringArg(parts[2]), error);
    } else if (verb == L"CLICK" && parts.size() == 2) {
        done = win::click(control, error);
    } else {
        badArgument(L"window action", form);
    }
    if (!done) fail(stringArg(parts[1]) + L": " + error);
}

}  // namespace

void addWindowBuiltins(Interpreter& in) {
    in.define(L"HOST-WINDOW", [](Interpreter&, const Args& a) {
        expectCount(a, 2, 2);
        HWND window = windowNamed(a[0]);
        if (!window) fail(L"no window " + stringArg(a[0]));
        if (!isList(a[1])) badArgument(L"listp", a[1]);
        for (auto& form : listItems(a[1])) applyAction(window, form);
        return t();
    });
    in.define(L"HOST-WINDOW-TEXT", [](Interpreter&, const Args& a) {
        expectCount(a, 2, 2);
        HWND window = windowNamed(a[0]);
        if (!window) return nil();
        HWND control = win::findControl(window, stringArg(a[1]));
        return control ? makeStr(win::controlText(control)) : nil();
    });
}

}  // namespace host::lisp
