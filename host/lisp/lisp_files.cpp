#include "host/lisp/lisp_files.h"

#include <cstdlib>
#include <filesystem>

#include "adscodes.h"
#include "host/db/codepage.h"
#include "host/file_names.h"
#include "host/runtime/host.h"
#include "host/text.h"

namespace fs = std::filesystem;

namespace host::lisp {
namespace {

std::string drawingCodePage() {
    auto& h = Host::instance();
    if (!h.hasDocument()) return "ANSI_1252";
    auto* v = h.current().sysvars().find(L"DWGCODEPAGE");
    return v && v->type == RTSTR && !v->text.empty() ? toUtf8(v->text) : "ANSI_1252";
}

db::TextCodec codePageCodec() { return db::TextCodec::forDrawing("AC1015", drawingCodePage()); }

std::wstring decodeUtf16(std::string_view bytes) {
    std::wstring out;
    for (size_t k = 0; k + 1 < bytes.size(); k += 2) {
        unsigned unit = static_cast<unsigned char>(bytes[k]) | (static_cast<unsigned char>(bytes[k + 1]) << 8);
        if (unit >= 0xD800 && unit < 0xDC00 && k + 3 < bytes.size()) {
            unsigned low = static_cast<unsigned char>(bytes[k + 2]) | (static_cast<unsigned char>(bytes[k + 3]) << 8);
            out += static_cast<wchar_t>(0x10000 + ((unit - 0xD800) << 10) + (low - 0xDC00));
            k += 2;
        } else {
            out += static_cast<wchar_t>(unit);
        }
    }
    return out;
}

std::string encodeUtf16(std::wstring_view text) {
    std::string out;
    auto put = [&](unsigned unit) {
        out += static_cast<char>(unit & 0xFF);
        out += static_cast<char>(unit >> 8);
    };
    for (wchar_t c : text) {
        auto code = static_cast<unsigned>(c);
        if (code >= 0x10000) {
            put(0xD800 + ((code - 0x10000) >> 10));
            put(0xDC00 + ((code - 0x10000) & 0x3FF));
        } else {
            put(code);
        }
    }
    return out;
}

}  // namespace

std::optional<FileEncoding> encodingNamed(const std::wstring& name) {
    std::wstring n = upperAscii(name);
    if (n == L"UTF8" || n == L"UTF-8") return FileEncoding::Utf8;
    if (n == L"UTF16" || n == L"UTF-16" || n == L"UTF16LE" || n == L"UTF-16LE") return FileEncoding::Utf16;
    if (n == L"ANSI") return FileEncoding::CodePage;
    return std::nullopt;
}

std::wstring decodeFileText(const std::string& bytes, FileEncoding encoding) {
    if (bytes.rfind("\xEF\xBB\xBF", 0) == 0) return fromUtf8(std::string_view(bytes).substr(3));
    if (bytes.rfind("\xFF\xFE", 0) == 0) return decodeUtf16(std::string_view(bytes).substr(2));
    switch (encoding) {
    case FileEncoding::Utf8: return fromUtf8(bytes);
    case FileEncoding::Utf16: return decodeUtf16(bytes);
    case FileEncoding::CodePage: break;
    }
    return codePageCodec().decode(bytes);
}

std::string encodeFileText(const std::wstring& text, FileEncoding encoding) {
    switch (encoding) {
    case FileEncoding::Utf8: return toUtf8(text);
    case FileEncoding::Utf16: return encodeUtf16(text);
    case FileEncoding::CodePage: break;
    }
    return codePageCodec().encode(text);
}

std::vector<std::wstring> searchFolders(const std::wstring& loadingFile, const std::wstring& root) {
    std::vector<std::wstring> folders;
    if (!loadingFile.empty()) folders.push_back(nameOf(pathOf(loadingFile).parent_path()));
    folders.push_back(nameOf(fs::current_path()));
    if (!root.empty()) folders.push_back(root);
    if (const char* path = std::getenv("ACAD")) {
        std::wstring list = fromUtf8(path);
        size_t start = 0;
        while (start <= list.size()) {
            size_t end = list.find_first_of(L";:", start);
            if (end == std::wstring::npos) end = list.size();
            if (end > start) folders.push_back(list.substr(start, end - start));
            start = end + 1;
        }
    }
    return folders;
}

std::optional<std::wstring> findInFolders(const std::wstring& name, const std::vector<std::wstring>& folders) {
    std::error_code ec;
    fs::path p = pathOf(name);
    if (p.is_absolute()) {
        if (fs::is_regular_file(p, ec)) return nameOf(p);
        return std::nullopt;
    }
    for (const auto& folder : folders) {
        fs::path candidate = pathOf(folder.empty() ? L"." : folder) / p;
        if (fs::is_regular_file(candidate, ec)) return nameOf(candidate.lexically_normal());
    }
    return std::nullopt;
}

}  // namespace host::lisp
