#include "host/win/dialog_windows.h"

#include <algorithm>
#include <map>
#include <mutex>
#include <utility>

#include "afxwin.h"
#include "host/boundary.h"
#include "host/output.h"
#include "host/win/window_registry.h"

struct CWndAccess {
    static BOOL command(CWnd* wnd, WPARAM w, LPARAM l) { return wnd->OnCommand(w, l); }
    static void postNcDestroy(CWnd* wnd) { wnd->PostNcDestroy(); }
    static void initDialog(CDialog* dlg) { dlg->OnInitDialog(); }
    static void doDataExchange(CWnd* wnd, CDataExchange* dx) { wnd->DoDataExchange(dx); }
};

namespace host::win {
namespace {

struct Control {
    std::wstring className;
    int id = 0;
    std::wstring name;
    bool autoRadio = false;
    std::vector<std::wstring> items;
    int selection = -1;
    int check = BST_UNCHECKED;
};

struct DialogState {
    std::mutex mutex;
    std::map<HWND, Control> controls;
    std::map<HWND, CWnd*> permanent;  // windows with their module objects
    std::vector<std::pair<const DLG_RESOURCE*, int>> resources;
    std::map<HWND, bool> visible;
    HWND active = nullptr;
};

// Kept for the process, as the window registry is: module threads may look at windows.
DialogState& state() {
    static auto* s = new DialogState;
    return *s;
}

HWND const kDesktop = reinterpret_cast<HWND>(uintptr_t{1});

const DLG_RESOURCE* findResource(UINT id) {
    DialogState& s = state();
    std::lock_guard lock(s.mutex);
    for (auto [table, count] : s.resources)
        for (int i = 0; i < count; ++i)
            if (table[i].id == id) return &table[i];
    return nullptr;
}

CWnd* permanentOf(HWND h) {
    DialogState& s = state();
    std::lock_guard lock(s.mutex);
    auto it = s.permanent.find(h);
    return it == s.permanent.end() ? nullptr : it->second;
}

void attach(HWND h, CWnd* wnd) {
    DialogState& s = state();
    std::lock_guard lock(s.mutex);
    s.permanent[h] = wnd;
    wnd->m_hWnd = h;
}

// The first child control of DIALOG that MATCHES, or null.
template <class Match>
HWND findChild(HWND dialog, Match matches) {
    DialogState& s = state();
    std::lock_guard lock(s.mutex);
    for (HWND child : childWindows(dialog)) {
        auto it = s.controls.find(child);
        if (it != s.controls.end() && matches(it->second)) return child;
    }
    return nullptr;
}

HWND childById(HWND dialog, int id) {
    return findChild(dialog, [&](const Control& c) { return c.id == id; });
}

// The dialog among the windows with module objects that holds CONTROL; the caller holds the lock.
HWND dialogHolding(const DialogState& s, HWND control) {
    for (auto& [h, wnd] : s.permanent) {
        (void)wnd;
        auto children = childWindows(h);
        if (std::find(children.begin(), children.end(), control) != children.end()) return h;
    }
    return nullptr;
}

HWND parentDialog(HWND control) {
    DialogState& s = state();
    std::lock_guard lock(s.mutex);
    return dialogHolding(s, control);
}

// Sends the control's notification to its dialog, as the control's window procedure does.
void notify(HWND control, UINT code) {
    int id = 0;
    {
        DialogState& s = state();
        std::lock_guard lock(s.mutex);
        id = s.controls.at(control).id;
    }
    if (HWND dialog = parentDialog(control))
        SendMessageW(dialog, WM_COMMAND, MAKEWPARAM(id, code), reinterpret_cast<LPARAM>(control));
}

LRESULT listMessage(Control& c, UINT msg, WPARAM wParam, LPARAM lParam) {
    switch (msg) {
    case CB_ADDSTRING:
    case LB_ADDSTRING:
        c.items.emplace_back(reinterpret_cast<LPCWSTR>(lParam));
        return static_cast<LRESULT>(c.items.size() - 1);
    case CB_RESETCONTENT:
    case LB_RESETCONTENT: c.items.clear(); c.selection = -1; return 0;
    case CB_GETCOUNT:
    case LB_GETCOUNT: return static_cast<LRESULT>(c.items.size());
    case CB_GETCURSEL:
    case LB_GETCURSEL: return c.selection;
    case CB_SETCURSEL:
    case LB_SETCURSEL: {
        int i = static_cast<int>(wParam);
        c.selection = i >= 0 && static_cast<size_t>(i) < c.items.size() ? i : -1;
        return c.selection == i ? i : -1;
    }
    case BM_GETCHECK: return c.check;
    case BM_SETCHECK: c.check = static_cast<int>(wParam); return 0;
    default: return 0;
    }
}

}  // namespace

bool controlMessage(HWND hWnd, UINT msg, WPARAM wParam, LPARAM lParam, LRESULT& result) {
    if (msg == WM_COMMAND) {
        CWnd* wnd = permanentOf(hWnd);
        result = 0;
        if (wnd) CWndAccess::command(wnd, wParam, lParam);
        return true;
    }
    DialogState& s = state();
    std::lock_guard lock(s.mutex);
    auto it = s.controls.find(hWnd);
    if (it == s.controls.end()) return false;
    result = listMessage(it->second, msg, wParam, lParam);
    return true;
}

void windowsDestroyed(const std::vector<HWND>& windows) {
    std::vector<CWnd*> detached;
    {
        DialogState& s = state();
        std::lock_guard lock(s.mutex);
        for (auto h = windows.rbegin(); h != windows.rend(); ++h) {
            s.controls.erase(*h);
            s.visible.erase(*h);
            if (s.active == *h) s.active = nullptr;
            auto it = s.permanent.find(*h);
            if (it == s.permanent.end()) continue;
            it->second->m_hWnd = nullptr;
            detached.push_back(it->second);
            s.permanent.erase(it);
        }
    }
    for (CWnd* wnd : detached) CWndAccess::postNcDestroy(wnd);
}

HWND findControl(HWND dialog, const std::wstring& name) {
    return findChild(dialog, [&](const Control& c) { return c.name == name; });
}

bool selectItem(HWND control, int index, std::wstring& error) {
    UINT code = 0;
    {
        DialogState& s = state();
        std::lock_guard lock(s.mutex);
        auto it = s.controls.find(control);
        if (it == s.controls.end() || (it->second.className != L"ComboBox" && it->second.className != L"ListBox")) {
            error = L"not a combo box or list box";
            return false;
        }
        if (index < 0 || static_cast<size_t>(index) >= it->second.items.size()) {
            error = L"no item " + std::to_wstring(index);
            return false;
        }
        it->second.selection = index;
        code = it->second.className == L"ComboBox" ? CBN_SELCHANGE : LBN_SELCHANGE;
    }
    notify(control, code);
    return true;
}

bool typeText(HWND control, const std::wstring& text, std::wstring& error) {
    {
        DialogState& s = state();
        std::lock_guard lock(s.mutex);
        auto it = s.controls.find(control);
        if (it == s.controls.end() || it->second.className != L"Edit") {
            error = L"not an edit control";
            return false;
        }
    }
    SetWindowTextW(control, text.c_str());
    notify(control, EN_CHANGE);
    return true;
}

bool click(HWND control, std::wstring& error) {
    {
        DialogState& s = state();
        std::lock_guard lock(s.mutex);
        auto it = s.controls.find(control);
        if (it == s.controls.end() || it->second.className != L"Button") {
            error = L"not a button";
            return false;
        }
        if (it->second.autoRadio) {
            // The radio buttons next to each other form a group: one of them is checked.
            auto kids = childWindows(dialogHolding(s, control));
            auto at = std::find(kids.begin(), kids.end(), control);
            auto isRadio = [&](HWND h) {
                auto c = s.controls.find(h);
                return c != s.controls.end() && c->second.autoRadio;
            };
            auto first = at, last = at;
            while (first != kids.begin() && isRadio(*(first - 1))) --first;
            while (last + 1 != kids.end() && isRadio(*(last + 1))) ++last;
            for (auto k = first; k <= last; ++k) s.controls[*k].check = *k == control ? BST_CHECKED : BST_UNCHECKED;
        }
    }
    notify(control, BN_CLICKED);
    return true;
}

std::wstring controlText(HWND control) {
    {
        DialogState& s = state();
        std::lock_guard lock(s.mutex);
        auto it = s.controls.find(control);
        if (it != s.controls.end() && (it->second.className == L"ComboBox" || it->second.className == L"ListBox")) {
            int i = it->second.selection;
            return i >= 0 ? it->second.items[static_cast<size_t>(i)] : L"";
        }
    }
    return windowTitle(control);
}

HWND activeWindow() {
    DialogState& s = state();
    std::lock_guard lock(s.mutex);
    return s.active;
}

bool windowVisible(HWND window) {
    DialogState& s = state();
    std::lock_guard lock(s.mutex);
    auto it = s.visible.find(window);
    return it != s.visible.end() && it->second;
}

}  // namespace host::win

using namespace host::win;

extern "C" HWND GetDesktopWindow(void) { return kDesktop; }

extern "C" HWND SetActiveWindow(HWND hWnd) {
    return host::guarded(__func__, nullptr, [&]() -> HWND {
        if (!IsWindow(hWnd)) return nullptr;
        DialogState& s = state();
        std::lock_guard lock(s.mutex);
        return std::exchange(s.active, hWnd);
    });
}

extern "C" BOOL ShowWindow(HWND hWnd, int nCmdShow) {
    return host::guarded(__func__, FALSE, [&]() -> BOOL {
        if (!IsWindow(hWnd)) return FALSE;
        DialogState& s = state();
        std::lock_guard lock(s.mutex);
        bool was = s.visible[hWnd];
        s.visible[hWnd] = nCmdShow != SW_HIDE;
        return was ? TRUE : FALSE;
    });
}

// A message box is shown the way the console shows an alert; the user answers OK.
extern "C" int MessageBoxW(HWND, LPCWSTR lpText, LPCWSTR, UINT) {
    return host::guarded(__func__, 0, [&]() -> int {
        host::emit(host::OutputKind::Alert, lpText ? lpText : L"");
        return IDOK;
    });
}

extern "C" int GetWindowTextLengthW(HWND hWnd) {
    return host::guarded(__func__, 0, [&] { return static_cast<int>(windowTitle(hWnd).size()); });
}

void AfxRegisterDialogResources(const DLG_RESOURCE* resources, int count) {
    DialogState& s = state();
    std::lock_guard lock(s.mutex);
    s.resources.emplace_back(resources, count);
}

void AfxUnregisterDialogResources(const DLG_RESOURCE* resources) {
    DialogState& s = state();
    std::lock_guard lock(s.mutex);
    std::erase_if(s.resources, [&](auto& r) { return r.first == resources; });
}

// The class library's share, implemented in the host.

BOOL CCmdTarget::OnCmdMsg(UINT nID, int nCode, void*, void*) {
    for (const AFX_MSGMAP* map = GetMessageMap(); map; map = map->pfnGetBaseMap ? map->pfnGetBaseMap() : nullptr) {
        for (const AFX_MSGMAP_ENTRY* e = map->lpEntries; e && e->nSig != AfxSig_end; ++e) {
            if (e->nMessage == WM_COMMAND && e->nCode == static_cast<UINT>(nCode) && nID >= e->nID && nID <= e->nLastID) {
                (this->*(e->pfn))();
                return TRUE;
            }
        }
    }
    return FALSE;
}

const AFX_MSGMAP* PASCAL CCmdTarget::GetThisMessageMap() {
    static const AFX_MSGMAP_ENTRY entries[] = {{0, 0, 0, 0, AfxSig_end, nullptr}};
    static const AFX_MSGMAP map = {nullptr, entries};
    return &map;
}
const AFX_MSGMAP* CCmdTarget::GetMessageMap() const { return GetThisMessageMap(); }
const AFX_MSGMAP* PASCAL CWnd::GetThisMessageMap() { return CCmdTarget::GetThisMessageMap(); }
const AFX_MSGMAP* CWnd::GetMessageMap() const { return GetThisMessageMap(); }
// The dialog's own buttons: OK and Cancel close it.
const AFX_MSGMAP* PASCAL CDialog::GetThisMessageMap() {
    static const AFX_MSGMAP_ENTRY entries[] = {
        {WM_COMMAND, BN_CLICKED, IDOK, IDOK, AfxSigCmd_v, static_cast<AFX_PMSG>(&CDialog::OnOK)},
        {WM_COMMAND, BN_CLICKED, IDCANCEL, IDCANCEL, AfxSigCmd_v, static_cast<AFX_PMSG>(&CDialog::OnCancel)},
        {0, 0, 0, 0, AfxSig_end, nullptr}};
    static const AFX_MSGMAP map = {&CWnd::GetThisMessageMap, entries};
    return &map;
}
const AFX_MSGMAP* CDialog::GetMessageMap() const { return GetThisMessageMap(); }

CWnd::~CWnd() {
    if (!m_hWnd) return;
    HWND h = m_hWnd;
    {
        DialogState& s = state();
        std::lock_guard lock(s.mutex);
        s.permanent.erase(h);
    }
    m_hWnd = nullptr;
    ::DestroyWindow(h);
}

CWnd* PASCAL CWnd::GetDesktopWindow() {
    static CWnd* desktop = [] {
        auto* w = new CWnd;
        w->m_hWnd = kDesktop;
        return w;
    }();
    return desktop;
}

CWnd* PASCAL CWnd::FromHandlePermanent(HWND hWnd) { return permanentOf(hWnd); }

void CWnd::GetWindowText(CString& rString) const { rString = CString(windowTitle(m_hWnd)); }

CWnd* CWnd::SetActiveWindow() { return FromHandlePermanent(::SetActiveWindow(m_hWnd)); }

BOOL CWnd::DestroyWindow() { return m_hWnd ? ::DestroyWindow(m_hWnd) : FALSE; }

BOOL CWnd::UpdateData(BOOL bSaveAndValidate) {
    CDataExchange dx(this, bSaveAndValidate);
    DoDataExchange(&dx);
    return TRUE;
}

BOOL CWnd::OnCommand(WPARAM wParam, LPARAM) {
    UINT id = static_cast<UINT>(wParam & 0xFFFF);
    int code = static_cast<int>((wParam >> 16) & 0xFFFF);
    return OnCmdMsg(id, code, nullptr, nullptr);
}

void CWnd::DoDataExchange(CDataExchange*) {}
void CWnd::PostNcDestroy() {}

CDialog::CDialog(UINT nIDTemplate, CWnd* pParentWnd) : m_nIDHelp(nIDTemplate), m_pParentWnd(pParentWnd) {}

BOOL CDialog::Create(UINT nIDTemplate, CWnd* pParentWnd) {
    const DLG_RESOURCE* res = findResource(nIDTemplate);
    if (!res || m_hWnd) return FALSE;
    HWND parent = pParentWnd ? pParentWnd->m_hWnd : nullptr;
    // A dialog owned by the desktop is a top-level window.
    HWND dialog = createWindow(res->caption, parent == kDesktop ? nullptr : parent);
    attach(dialog, this);
    m_pParentWnd = pParentWnd;
    for (int i = 0; i < res->itemCount; ++i) {
        const DLGITEM_RESOURCE& item = res->items[i];
        HWND h = createWindow(item.text ? item.text : L"", dialog, item.className);
        DialogState& s = state();
        std::lock_guard lock(s.mutex);
        s.controls[h] = Control{item.className, item.id, item.name ? item.name : L"", item.autoRadio != FALSE};
    }
    CWndAccess::initDialog(this);
    return TRUE;
}

BOOL CDialog::OnInitDialog() {
    UpdateData(FALSE);
    return TRUE;
}

// A modeless dialog closes by destroying its window.
void CDialog::OnOK() {
    UpdateData(TRUE);
    DestroyWindow();
}
void CDialog::OnCancel() { DestroyWindow(); }

void DDX_Control(CDataExchange* pDX, int nIDC, CWnd& rControl) {
    if (rControl.m_hWnd || !pDX || !pDX->m_pDlgWnd) return;
    if (HWND h = childById(pDX->m_pDlgWnd->m_hWnd, nIDC)) attach(h, &rControl);
}

void DDX_Text(CDataExchange* pDX, int nIDC, CString& value) {
    if (!pDX || !pDX->m_pDlgWnd) return;
    HWND h = childById(pDX->m_pDlgWnd->m_hWnd, nIDC);
    if (!h) return;
    if (pDX->m_bSaveAndValidate)
        value = CString(windowTitle(h));
    else
        SetWindowTextW(h, value);
}
