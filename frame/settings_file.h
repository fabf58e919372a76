// Settings files of numbered lines ("k-sljs.sr"): one value per line, line 1 first. Writing a
// line keeps every other line byte for byte and goes through a temporary file beside the
// settings file, which replaces it only once it is completely written; a failure leaves the old
// file as it was.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace vrn2 {

// The pure part, over the file's bytes.
// Line LINENUMBER without its line end ("\n" or "\r\n"); nothing when the file is shorter.
std::optional<std::string> settingsLine(const std::string& bytes, int lineNumber);
// BYTES with line LINENUMBER replaced by LINE, which keeps the line end the old line had. A
// shorter file is extended with empty lines up to it; every line it adds ends with "\n", and
// a last line without a line end gets one before anything follows it.
std::string withSettingsLine(const std::string& bytes, int lineNumber, const std::string& line);

// Reads line LINENUMBER of PATH as text; false when the file cannot be read, is shorter, or
// the line is not text in the current locale.
bool readSettingsLine(const wchar_t* path, int lineNumber, std::wstring& text);

struct SettingsLine {
    int number;  // from 1
    std::wstring text;
};

// Writes the given lines into PATH, which is created when it does not exist. False, with PATH
// as it was, when anything fails, also for a text holding a line end or a line number below 1.
bool writeSettingsLines(const wchar_t* path, const std::vector<SettingsLine>& lines);
bool writeSettingsLine(const wchar_t* path, int lineNumber, const std::wstring& text);

}  // namespace vrn2
