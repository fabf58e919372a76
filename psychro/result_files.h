// Viewing and deleting the result files that the calculation commands append to in the
// current folder. One mechanism serves every command; a command is one row of parameters.
#pragma once

#include <cstdio>
#include <string>
#include <vector>

namespace vrn2 {

struct ResultFileCommand {
    const wchar_t* resultFile;         // bare name: the host's current folder
    const wchar_t* dialogFile;         // relative to the installation root, used as it stands
    const wchar_t* explanationDialog;  // viewers: opened by "resintr"
    const wchar_t* cannotShowMessage;  // viewers: printed when "v_resdlg" cannot be created
};

// Lists the result file in "v_resdlg". RTNORM, or RTERROR with the command's message when the
// file or the dialog cannot be opened.
int viewResultFile(const ResultFileCommand& command);

// Asks in "delwarming" and deletes the result file when the user confirms with "ok".
// RTNORM, or RTERROR when the dialog cannot be shown.
int deleteResultFile(const ResultFileCommand& command);

// Each read takes at most this many characters, so a longer line becomes several entries.
inline constexpr int kResultReadChars = 99;

// The list entries of an open wide-character text stream: one per read of at most 99
// characters, each cut at its first line feed and its first U+FFFF. The end of the file is
// tested before each read and not the read itself, so when the last read finds nothing the
// entry before it comes a second time, as it always has in this list. A read error (bytes
// that are not text) ends the list.
std::vector<std::wstring> readResultEntries(FILE* file);

}  // namespace vrn2
