#include "coil/database_text.h"

#include <cerrno>
#include <cstdio>
#include <cwchar>
#include <cwctype>

#include "coil/model_lookup.h"
#include "frame/file_handle.h"
#include "frame/text_file.h"
#include "frame/text_format.h"

namespace vrn2 {
namespace {

struct Token {
    size_t begin = 0, end = 0;
};

// The next whitespace-separated token at or after FROM; false at the end of the text.
bool nextToken(const std::wstring& text, size_t from, Token& token) {
    size_t k = from;
    while (k < text.size() && std::iswspace(text[k])) ++k;
    if (k >= text.size()) return false;
    token.begin = k;
    while (k < text.size() && !std::iswspace(text[k])) ++k;
    token.end = k;
    return true;
}

// A record starts at the line break before its header token, so that removing it removes
// exactly what appending it added.
size_t recordStart(const std::wstring& text, size_t headerBegin) {
    return (headerBegin > 0 && text[headerBegin - 1] == L'\n') ? headerBegin - 1 : headerBegin;
}

}  // namespace

std::wstring contactListEntry(double Vy, double E2) {
    std::wstring entry;
    appendFormat(entry, L"Vy=%.2lf   E2=%.4lf", Vy, E2);
    return entry;
}

std::wstring formatCoolerRecord(const CoolerModel& m, const std::vector<std::wstring>& entries) {
    std::wstring text = L"\n" + coolerHeader(m.name, m.rows);
    appendFormat(text, L"\nA=%.4lf B=%.4lf m=%.4lf p=%.4lf n=%.4lf", m.A, m.B, m.m, m.p, m.n);
    appendFormat(text, L"\nL=%.2lf-%.2lf Fd=%.4lf Fy=%.4lf fw=%.6lf\n", m.L1, m.L2, m.Fd, m.Fy, m.fw);
    for (const std::wstring& entry : entries) text += entry + L"\n";
    return text;
}

bool findRecordSpan(const std::wstring& text, const std::wstring& name, int rows, RecordSpan& span) {
    const std::wstring header = coolerHeader(name, rows);
    Token token;
    size_t at = 0;
    while (nextToken(text, at, token)) {
        at = token.end;
        if (text.compare(token.begin, token.end - token.begin, header) != 0) continue;
        span.begin = recordStart(text, token.begin);
        span.end = text.size();
        // The record runs to the next token that opens another one, as the lookup reads it.
        while (nextToken(text, at, token)) {
            at = token.end;
            if (std::wstring_view(text).substr(token.begin, token.end - token.begin).find(L'{') !=
                std::wstring_view::npos) {
                span.end = recordStart(text, token.begin);
                break;
            }
        }
        return true;
    }
    return false;
}

bool readTextFile(const std::wstring& path, std::wstring& text) {
    FileHandle file(path.c_str(), L"rt");
    // A byte sequence that is no text stops the reading early; an edit must not go on from a
    // part of the file.
    return file && readWideText(file.get(), text);
}

bool writeTextFile(const std::wstring& path, const std::wstring& text) {
    FileHandle file(path.c_str(), L"wt");
    if (!file) return false;
    bool ok = text.empty() || std::fputws(text.c_str(), file.get()) >= 0;
    ok = !std::ferror(file.get()) && ok;
    ok = file.close() && ok;
    if (!ok) _wremove(path.c_str());
    return ok;
}

bool replaceDatabase(const std::wstring& path, const std::wstring& tempPath, const std::wstring& text) {
    if (!writeTextFile(tempPath, text)) return false;
    if (_wrename(tempPath.c_str(), path.c_str()) != 0) {
        _wremove(tempPath.c_str());
        return false;
    }
    return true;
}

}  // namespace vrn2
