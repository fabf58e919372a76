// The process results file: air-handling processes and return-air systems each append one
// block to it in the current folder; c:q_res shows it.
#pragma once

#include <string>

namespace vrn2 {

inline constexpr wchar_t kProcessResultFile[] = L"qres.txt";

// The line the file starts with when it is created.
std::wstring processResultTitle();

// Appends BLOCK (which starts with its own separator line) to the process results file.
// On failure says "不能创建存放结果的文件." and answers false; the file is left as it was.
bool appendProcessResult(const std::wstring& block);

}  // namespace vrn2
