// The calculation report written as a file in the current folder: the name a user typed made
// into a document name, and the report of the journal, with the chart of the current drawing,
// written in one piece.
#pragma once

#include <string>

namespace vrn2 {

inline constexpr wchar_t kDefaultReportName[] = L"计算书.docx";

// The document name for TYPED: blanks around it dropped and ".docx" added unless it ends so
// (in any case). Empty, with FAULT set to the message for the user, when TYPED is empty or
// holds a folder separator or a character that a file name cannot have.
std::wstring reportFileName(const std::wstring& typed, const wchar_t*& fault);

// Writes the report of the calculation journal to NAME and tells the user: on the command
// line when it is written, in an alert when it is not (the journal empty, or the file not
// written; an old file of that name is then left as it was).
bool writeCalculationReport(const std::wstring& name);

}  // namespace vrn2
