// Fixed messages shared by the handlers.
#pragma once

namespace vrn2 {

inline constexpr wchar_t kMsgUnableOpenDialog[] = L"Unable open dialogue box\n";
inline constexpr wchar_t kMsgFileOpenFailed[] = L"Failaure in opening file";
inline constexpr wchar_t kMsgNoBuffer[] = L"Unable to allocate buffer\n";
inline constexpr wchar_t kMsgNoString[] = L"Unable to allocate string\n";
inline constexpr wchar_t kMsgNoEntities[] = L"Failed to get entities!\n";
inline constexpr wchar_t kMsgTooFewParameter[] = L"\nToo Few Parameter";
inline constexpr wchar_t kMsgNoInstallRoot[] = L"找不到暖通软件目录!";
// When a dialog file cannot be loaded, a dialog in it cannot be made, or a help dialog shown.
inline constexpr wchar_t kMsgCannotLoadDialog[] = L"不能装载对话框.";
inline constexpr wchar_t kMsgCannotCreateDialog[] = L"不能初始化对话框.";
inline constexpr wchar_t kMsgCannotShowDialog[] = L"不能显示这对话框.";

}  // namespace vrn2
