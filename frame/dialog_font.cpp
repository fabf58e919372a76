// "_SetDlgFont": gives the child controls of a dialog, found by its title once it shows up,
// the fixed-pitch font "8514fix". A thread per call waits for the window, sets the font, and
// deletes the font when the window has closed.
#include <mutex>
#include <string>

#include "acedads.h"
#include "acutads.h"
#include "frame/args.h"
#include "frame/frame_handlers.h"
#include "windows.h"

namespace vrn2 {
namespace {

// The title the font threads look for. A later call replaces it, also for a thread that is
// still waiting; the lock only keeps the string itself intact.
std::mutex g_titleMutex;
std::wstring g_dialogTitle;

std::wstring currentTitle() {
    std::lock_guard lock(g_titleMutex);
    return g_dialogTitle;
}

BOOL CALLBACK setChildFont(HWND child, LPARAM font) {
    SendMessageW(child, WM_SETFONT, static_cast<WPARAM>(font), TRUE);
    return TRUE;
}

DWORD WINAPI fontThread(LPVOID) {
    HWND dialog = nullptr;
    while (!dialog) dialog = FindWindowW(nullptr, currentTitle().c_str());
    HFONT font = CreateFontW(16, 8, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, GB2312_CHARSET,
                             OUT_STRING_PRECIS, CLIP_STROKE_PRECIS, PROOF_QUALITY,
                             FIXED_PITCH | FF_MODERN, L"8514fix");
    EnumChildWindows(dialog, setChildFont, reinterpret_cast<LPARAM>(font));
    while (IsWindow(dialog)) Sleep(10);
    DeleteObject(font);
    return 0;
}

}  // namespace

int setDialogFont() {
    ArgWalker args;
    const ACHAR* title = nullptr;
    if (!args.nextString(title) || !title || !*title) {
        acutPrintf(L"\n输入对话框名有误！");
        return 3;
    }
    {
        std::lock_guard lock(g_titleMutex);
        g_dialogTitle = title;
    }
    HANDLE thread = CreateThread(nullptr, 0, fontThread, nullptr, 0, nullptr);
    if (thread) CloseHandle(thread);
    return 1;
}

}  // namespace vrn2
