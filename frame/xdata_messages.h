// Messages of the extended-data functions that more than one of them prints.
#pragma once

namespace vrn2 {

inline constexpr wchar_t kMsgApplicationNameTooLong[] = L"\nApplication Name should less than 31";
inline constexpr wchar_t kMsgBadKind[] = L"\nMessage type should be 0 or 1";
inline constexpr wchar_t kMsgNoMemory[] = L"Memory is not enough ";
inline constexpr wchar_t kMsgNotInDatabase[] = L"\nThe Entity is not in the Current Database";

}  // namespace vrn2
