// The input checks of the device database editor: a contact-coefficient entry before it joins
// the list, and a whole record before it is saved or deleted.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "coil/coil_check_inputs.h"
#include "coil/cooler_model.h"

namespace vrn2 {

inline constexpr wchar_t kMsgEnterVy[] = L"输入Vy值.";
inline constexpr wchar_t kMsgEnterE2[] = L"输入E2值.";
inline constexpr wchar_t kMsgBadE2[] = L"不正确的接触系数.";

// The accepted contact coefficients: 0 < E2 ≤ 1.
bool isContactCoefficient(double E2);

// Checks the texts of "Vy_value" and "E2_value" for a new list entry, given the entries the
// list has; on success fills PAIR.
std::optional<InputFault> contactEntryFault(const std::wstring& VyText, const std::wstring& E2Text,
                                            size_t entriesInList, ContactPair& pair);

// The values of a list entry "Vy=... E2=..."; false when it is not one.
bool parseContactEntry(const std::wstring& entry, ContactPair& pair);

// The texts of the editor's record tiles.
struct RecordTexts {
    std::wstring type, rows;
    std::wstring A, B, m, p, n, L1, L2, Fd, Fy, fw;
    std::vector<std::wstring> entries;  // the contact-coefficient list
};

// Checks the model name and the row count (all a deletion needs); on success fills NAME and
// ROWS.
std::optional<InputFault> recordKeyFault(const RecordTexts& t, std::wstring& name, int& rows);

// Checks a whole record; on success fills MODEL.
std::optional<InputFault> recordFault(const RecordTexts& t, CoolerModel& model);

// A number typed into a tile: the whole text (spaces around it allowed) is a decimal number.
std::optional<double> typedNumber(const std::wstring& text);

}  // namespace vrn2
