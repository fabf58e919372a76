// Result files of the calculations ("wair002.txt", "gscal.txt", "sccal.txt"): each saved
// result is one block appended to the file, which gets a title when it is created.
#pragma once

#include <string>

#include "frame/report.h"

namespace vrn2 {

// Appends BLOCK to FILENAME (a bare name lands in the host's current folder); a file that did
// not exist yet gets TITLE in front of it. Title and block go out in one write. On failure
// reports FAILURE (nothing when it has no text) and answers false; a file that cannot be
// opened or created is left as it was.
bool appendResultBlock(const wchar_t* fileName, const std::wstring& title, const std::wstring& block,
                       const Message& failure = {});

}  // namespace vrn2
