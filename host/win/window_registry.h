// The window registry: every open dialog is a top-level window with a title, and its tiles
// are child controls. Finding a window by title, enumerating children and setting their font
// behave as on Windows, from any thread.
#pragma once

#include <string>
#include <vector>

#include "windows.h"

namespace host::win {

struct FontInfo {
    int height, width, escapement, orientation, weight;
    DWORD italic, underline, strikeOut, charSet, outPrecision, clipPrecision, quality, pitchAndFamily;
    std::wstring face;
};

// Creates a window; parent null makes a top-level window.
HWND createWindow(std::wstring title, HWND parent = nullptr, std::wstring className = L"#32770");
std::vector<HWND> childWindows(HWND parent);  // direct and nested children, in creation order
std::wstring windowTitle(HWND hwnd);
HFONT windowFont(HWND hwnd);                   // null when none was set
size_t topLevelWindowCount();

// Fonts created with CreateFontW and not yet deleted.
bool fontInfo(HFONT font, FontInfo& info);
size_t liveFontCount();

// Threads started with CreateThread that have not finished yet.
size_t runningThreadCount();

}  // namespace host::win
