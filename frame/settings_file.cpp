#include "frame/settings_file.h"

#include <cerrno>
#include <cstdio>

#include "frame/file_handle.h"
#include "frame/text_file.h"

namespace vrn2 {
namespace {

struct LineSpan {
    size_t start = 0;
    size_t end = 0;   // where the line end starts
    size_t next = 0;  // behind the line end
};

// The span of line LINENUMBER, or nothing when BYTES has fewer lines.
std::optional<LineSpan> findLine(const std::string& bytes, int lineNumber) {
    if (lineNumber < 1) return std::nullopt;
    size_t start = 0;
    for (int n = 1; start < bytes.size(); ++n) {
        size_t feed = bytes.find('\n', start);
        LineSpan span;
        span.start = start;
        span.next = feed == std::string::npos ? bytes.size() : feed + 1;
        span.end = feed == std::string::npos ? bytes.size() : feed;
        if (span.end > start && bytes[span.end - 1] == '\r') --span.end;
        if (n == lineNumber) return span;
        start = span.next;
    }
    return std::nullopt;
}

int countLines(const std::string& bytes) {
    int count = 0;
    for (size_t start = 0; start < bytes.size(); ++count) {
        size_t feed = bytes.find('\n', start);
        start = feed == std::string::npos ? bytes.size() : feed + 1;
    }
    return count;
}

// The whole file; a file that does not exist reads as empty. False on any other failure.
bool readBytes(const wchar_t* path, std::string& bytes, bool& missing) {
    bytes.clear();
    missing = false;
    errno = 0;
    FileHandle file(path, L"rb");
    if (!file) {
        missing = errno == ENOENT;
        return missing;
    }
    char chunk[4096];
    size_t n = 0;
    while ((n = std::fread(chunk, 1, sizeof chunk, file.get())) > 0) bytes.append(chunk, n);
    return !std::ferror(file.get());
}

bool replaceFile(const wchar_t* path, const std::string& bytes) {
    std::wstring temporary = std::wstring(path) + L".tmp";
    FileHandle file(temporary.c_str(), L"wb");
    if (!file) return false;
    bool written = std::fwrite(bytes.data(), 1, bytes.size(), file.get()) == bytes.size();
    written = file.close() && written;
    if (!written || _wrename(temporary.c_str(), path) != 0) {
        _wremove(temporary.c_str());
        return false;
    }
    return true;
}

}  // namespace

std::optional<std::string> settingsLine(const std::string& bytes, int lineNumber) {
    auto span = findLine(bytes, lineNumber);
    if (!span) return std::nullopt;
    return bytes.substr(span->start, span->end - span->start);
}

std::string withSettingsLine(const std::string& bytes, int lineNumber, const std::string& line) {
    if (lineNumber < 1) return bytes;
    if (auto span = findLine(bytes, lineNumber)) {
        std::string out = bytes.substr(0, span->start) + line;
        return out + bytes.substr(span->end);
    }
    std::string out = bytes;
    if (!out.empty() && out.back() != '\n') out += '\n';
    for (int n = countLines(out) + 1; n < lineNumber; ++n) out += '\n';
    return out + line + '\n';
}

bool readSettingsLine(const wchar_t* path, int lineNumber, std::wstring& text) {
    std::string bytes;
    bool missing = false;
    if (!readBytes(path, bytes, missing) || missing) return false;
    auto line = settingsLine(bytes, lineNumber);
    return line && fromLocaleBytes(*line, text);
}

bool writeSettingsLines(const wchar_t* path, const std::vector<SettingsLine>& lines) {
    std::string bytes;
    bool missing = false;
    if (!readBytes(path, bytes, missing)) return false;
    for (const SettingsLine& line : lines) {
        std::string encoded;
        // A value with a line end of its own would move every line after it.
        if (line.number < 1 || line.text.find_first_of(L"\r\n") != std::wstring::npos) return false;
        if (!toLocaleBytes(line.text, encoded)) return false;
        bytes = withSettingsLine(bytes, line.number, encoded);
    }
    return replaceFile(path, bytes);
}

bool writeSettingsLine(const wchar_t* path, int lineNumber, const std::wstring& text) {
    return writeSettingsLines(path, {{lineNumber, text}});
}

}  // namespace vrn2
