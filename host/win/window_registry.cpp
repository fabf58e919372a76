#include "host/win/window_registry.h"
#include "host/win/dialog_windows.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <map>
#include <memory>
#include <mutex>
#include <thread>

#include "host/boundary.h"

namespace host::win {
namespace {

struct Window {
    std::wstring title;
    std::wstring className;
    HWND parent = nullptr;
    HFONT font = nullptr;
};

struct Registry {
    std::mutex mutex;
    uintptr_t nextWindow = 0x10000;
    std::map<uintptr_t, Window> windows;  // keyed by handle value: creation order
    uintptr_t nextFont = 0x20000;
    std::map<uintptr_t, FontInfo> fonts;
    std::atomic<size_t> runningThreads{0};
};

// The one state of the host kept for the whole process rather than in the session: threads a
// module starts poll these windows and may outlive both the session and main, so the registry
// is never destroyed. Its windows are those of open dialogs, which close with them.
Registry& reg() {
    static auto* r = new Registry;
    return *r;
}

uintptr_t key(HWND h) { return reinterpret_cast<uintptr_t>(h); }
HWND handle(uintptr_t k) { return reinterpret_cast<HWND>(k); }

bool isDescendant(const Registry& r, uintptr_t child, uintptr_t ancestor) {
    auto it = r.windows.find(child);
    while (it != r.windows.end() && it->second.parent) {
        if (key(it->second.parent) == ancestor) return true;
        it = r.windows.find(key(it->second.parent));
    }
    return false;
}

struct ThreadHandle {
    std::mutex mutex;
    std::condition_variable done;
    bool finished = false;
};

}  // namespace

HWND createWindow(std::wstring title, HWND parent, std::wstring className) {
    Registry& r = reg();
    std::lock_guard lock(r.mutex);
    uintptr_t k = r.nextWindow++;
    r.windows[k] = Window{std::move(title), std::move(className), parent, nullptr};
    return handle(k);
}

std::vector<HWND> childWindows(HWND parent) {
    Registry& r = reg();
    std::lock_guard lock(r.mutex);
    std::vector<HWND> out;
    for (auto& [k, w] : r.windows)
        if (isDescendant(r, k, key(parent))) out.push_back(handle(k));
    return out;
}

std::wstring windowTitle(HWND hwnd) {
    Registry& r = reg();
    std::lock_guard lock(r.mutex);
    auto it = r.windows.find(key(hwnd));
    return it == r.windows.end() ? L"" : it->second.title;
}

HFONT windowFont(HWND hwnd) {
    Registry& r = reg();
    std::lock_guard lock(r.mutex);
    auto it = r.windows.find(key(hwnd));
    return it == r.windows.end() ? nullptr : it->second.font;
}

size_t topLevelWindowCount() {
    Registry& r = reg();
    std::lock_guard lock(r.mutex);
    return static_cast<size_t>(std::count_if(r.windows.begin(), r.windows.end(),
                                             [](auto& kv) { return kv.second.parent == nullptr; }));
}

bool fontInfo(HFONT font, FontInfo& info) {
    Registry& r = reg();
    std::lock_guard lock(r.mutex);
    auto it = r.fonts.find(reinterpret_cast<uintptr_t>(font));
    if (it == r.fonts.end()) return false;
    info = it->second;
    return true;
}

size_t liveFontCount() {
    Registry& r = reg();
    std::lock_guard lock(r.mutex);
    return r.fonts.size();
}

size_t runningThreadCount() { return reg().runningThreads.load(); }

}  // namespace host::win

using namespace host::win;

extern "C" HWND FindWindowW(LPCWSTR lpClassName, LPCWSTR lpWindowName) {
    return host::guarded(__func__, nullptr, [&]() -> HWND {
        Registry& r = reg();
        HWND found = nullptr;
        {
            std::lock_guard lock(r.mutex);
            for (auto& [k, w] : r.windows) {
                if (w.parent) continue;
                if (lpClassName && w.className != lpClassName) continue;
                if (lpWindowName && w.title != lpWindowName) continue;
                found = handle(k);
                break;
            }
        }
        // Callers poll this in a loop; let the window's own thread run.
        if (!found) std::this_thread::yield();
        return found;
    });
}

extern "C" BOOL EnumChildWindows(HWND hWndParent, WNDENUMPROC lpEnumFunc, LPARAM lParam) {
    return host::guarded(__func__, FALSE, [&]() -> BOOL {
        if (!lpEnumFunc) return FALSE;
        for (HWND child : childWindows(hWndParent))
            if (!lpEnumFunc(child, lParam)) break;
        return TRUE;
    });
}

extern "C" LRESULT SendMessageW(HWND hWnd, UINT Msg, WPARAM wParam, LPARAM lParam) {
    return host::guarded(__func__, 0, [&]() -> LRESULT {
        Registry& r = reg();
        if (Msg == WM_SETFONT || Msg == WM_GETFONT) {
            std::lock_guard lock(r.mutex);
            auto it = r.windows.find(key(hWnd));
            if (it == r.windows.end()) return 0;
            if (Msg == WM_GETFONT) return reinterpret_cast<LRESULT>(it->second.font);
            it->second.font = reinterpret_cast<HFONT>(wParam);
            return 0;
        }
        // The standard controls and the dialogs' commands answer outside the registry's lock:
        // a command runs the dialog's handler, which calls back in here.
        LRESULT result = 0;
        return IsWindow(hWnd) && controlMessage(hWnd, Msg, wParam, lParam, result) ? result : 0;
    });
}

extern "C" BOOL IsWindow(HWND hWnd) {
    return host::guarded(__func__, FALSE, [&]() -> BOOL {
        Registry& r = reg();
        std::lock_guard lock(r.mutex);
        return r.windows.count(key(hWnd)) ? TRUE : FALSE;
    });
}

extern "C" BOOL DestroyWindow(HWND hWnd) {
    return host::guarded(__func__, FALSE, [&]() -> BOOL {
        Registry& r = reg();
        std::vector<HWND> destroyed;
        {
            std::lock_guard lock(r.mutex);
            uintptr_t k = key(hWnd);
            if (!r.windows.count(k)) return FALSE;
            for (auto& [wk, w] : r.windows)
                if (wk == k || isDescendant(r, wk, k)) destroyed.push_back(handle(wk));
            std::erase_if(r.windows, [&](auto& kv) { return kv.first == k || isDescendant(r, kv.first, k); });
        }
        // The dialog objects learn it after the lock is gone: a modeless one deletes itself.
        windowsDestroyed(destroyed);
        return TRUE;
    });
}

extern "C" int GetWindowTextW(HWND hWnd, LPWSTR lpString, int nMaxCount) {
    return host::guarded(__func__, 0, [&]() -> int {
        if (!lpString || nMaxCount <= 0) return 0;
        std::wstring title = windowTitle(hWnd);
        size_t n = std::min(title.size(), static_cast<size_t>(nMaxCount - 1));
        title.copy(lpString, n);
        lpString[n] = L'\0';
        return static_cast<int>(n);
    });
}

extern "C" BOOL SetWindowTextW(HWND hWnd, LPCWSTR lpString) {
    return host::guarded(__func__, FALSE, [&]() -> BOOL {
        Registry& r = reg();
        std::lock_guard lock(r.mutex);
        auto it = r.windows.find(key(hWnd));
        if (it == r.windows.end()) return FALSE;
        it->second.title = lpString ? lpString : L"";
        return TRUE;
    });
}

extern "C" HFONT CreateFontW(int cHeight, int cWidth, int cEscapement, int cOrientation, int cWeight,
                             DWORD bItalic, DWORD bUnderline, DWORD bStrikeOut, DWORD iCharSet,
                             DWORD iOutPrecision, DWORD iClipPrecision, DWORD iQuality,
                             DWORD iPitchAndFamily, LPCWSTR pszFaceName) {
    return host::guarded(__func__, nullptr, [&]() -> HFONT {
        Registry& r = reg();
        std::lock_guard lock(r.mutex);
        uintptr_t k = r.nextFont++;
        r.fonts[k] = FontInfo{cHeight, cWidth, cEscapement, cOrientation, cWeight, bItalic, bUnderline,
                              bStrikeOut, iCharSet, iOutPrecision, iClipPrecision, iQuality,
                              iPitchAndFamily, pszFaceName ? pszFaceName : L""};
        return reinterpret_cast<HFONT>(k);
    });
}

extern "C" BOOL DeleteObject(HGDIOBJ ho) {
    return host::guarded(__func__, FALSE, [&]() -> BOOL {
        Registry& r = reg();
        std::lock_guard lock(r.mutex);
        return r.fonts.erase(reinterpret_cast<uintptr_t>(ho)) ? TRUE : FALSE;
    });
}

extern "C" HANDLE CreateThread(void*, size_t, LPTHREAD_START_ROUTINE lpStartAddress, LPVOID lpParameter,
                               DWORD, LPDWORD lpThreadId) {
    return host::guarded(__func__, nullptr, [&]() -> HANDLE {
        if (!lpStartAddress) return nullptr;
        auto state = std::make_shared<ThreadHandle>();
        auto* held = new std::shared_ptr<ThreadHandle>(state);
        reg().runningThreads++;
        std::thread([state, lpStartAddress, lpParameter] {
            lpStartAddress(lpParameter);
            {
                std::lock_guard lock(state->mutex);
                state->finished = true;
            }
            reg().runningThreads--;
            state->done.notify_all();
        }).detach();
        if (lpThreadId) *lpThreadId = 0;
        return held;
    });
}

extern "C" DWORD WaitForSingleObject(HANDLE hHandle, DWORD dwMilliseconds) {
    return host::guarded(__func__, WAIT_FAILED, [&]() -> DWORD {
        auto* held = static_cast<std::shared_ptr<ThreadHandle>*>(hHandle);
        if (!held) return WAIT_TIMEOUT;
        ThreadHandle& t = **held;
        std::unique_lock lock(t.mutex);
        if (dwMilliseconds == INFINITE) {
            t.done.wait(lock, [&] { return t.finished; });
            return WAIT_OBJECT_0;
        }
        bool ok = t.done.wait_for(lock, std::chrono::milliseconds(dwMilliseconds), [&] { return t.finished; });
        return ok ? WAIT_OBJECT_0 : WAIT_TIMEOUT;
    });
}

extern "C" BOOL CloseHandle(HANDLE hObject) {
    return host::guarded(__func__, FALSE, [&]() -> BOOL {
        delete static_cast<std::shared_ptr<ThreadHandle>*>(hObject);
        return TRUE;
    });
}

extern "C" void Sleep(DWORD dwMilliseconds) {
    host::guarded(__func__, [&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(dwMilliseconds));
    });
}
