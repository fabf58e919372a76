// Dialog windows made from a module's dialog resources: their child controls with the state
// the standard controls keep (items, selection, check), and what a user does to them. The
// windows themselves live in the window registry, so titles and control texts read back as
// on Windows, from any thread.
#pragma once

#include <string>
#include <vector>

#include "windows.h"

namespace host::win {

// The child control of DIALOG with the resource name NAME, or null.
HWND findControl(HWND dialog, const std::wstring& name);

// What a user does; each runs the dialog's notification handler as the control would.
// False with a message when the control cannot take the action.
bool selectItem(HWND control, int index, std::wstring& error);       // combo box, list box
bool typeText(HWND control, const std::wstring& text, std::wstring& error);  // edit
bool click(HWND control, std::wstring& error);                       // button, radio button

// The text of a window or control: an edit's contents, a label's text, a list's selected item.
std::wstring controlText(HWND control);

HWND activeWindow();
bool windowVisible(HWND window);

// Called by the window registry with the windows it has just destroyed, children first.
void windowsDestroyed(const std::vector<HWND>& windows);

// The control messages (combo box, list box, button, WM_COMMAND); false when not one of them.
bool controlMessage(HWND hWnd, UINT msg, WPARAM wParam, LPARAM lParam, LRESULT& result);

}  // namespace host::win
