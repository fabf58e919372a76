// Files: open, close, reading and writing lines and characters, findfile, load, and the
// vl- functions on file names and folders.
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <memory>
#include <sstream>

#include "host/db/wildcard.h"
#include "host/file_names.h"
#include "host/lisp/interpreter.h"
#include "host/lisp/lisp_files.h"
#include "host/output.h"
#include "host/session.h"
#include "host/text.h"

namespace fs = std::filesystem;

namespace host::lisp {
namespace {

using Args = std::vector<ValuePtr>;

// An open file. A file read is decoded whole when opened; writes are encoded and appended
// at once, so what was written is on disk when the script stops, closed or not.
struct OpenFile {
    std::wstring name;
    bool reading = false;
    FileEncoding encoding = FileEncoding::CodePage;
    std::wstring text;  // reading: the contents
    size_t at = 0;      // reading: the next character
    std::ofstream out;  // writing
};

struct OpenFiles {
    std::map<long long, std::unique_ptr<OpenFile>> files;
    long long next = 1;
};

OpenFiles& openFiles() { return sessionPart<OpenFiles>(); }

OpenFile* fileOf(const ValuePtr& v) {
    if (!v || v->kind != Kind::File) badArgument(L"streamp", v);
    auto& files = openFiles().files;
    auto it = files.find(v->integer);
    return it == files.end() ? nullptr : it->second.get();
}

ValuePtr fileValue(long long id, const std::wstring& name) {
    auto v = std::make_shared<Value>();
    v->kind = Kind::File;
    v->integer = id;
    v->text = name;
    return v;
}

bool readBytes(const fs::path& path, std::string& bytes) {
    std::ifstream in(path, std::ios::binary);
    if (!in) return false;
    std::ostringstream ss;
    ss << in.rdbuf();
    bytes = ss.str();
    return true;
}

// The encoding an existing file shows by its byte-order mark, if any.
std::optional<FileEncoding> markedEncoding(const fs::path& path) {
    std::string head;
    std::ifstream in(path, std::ios::binary);
    head.resize(3);
    in.read(head.data(), 3);
    head.resize(static_cast<size_t>(in.gcount()));
    if (head.rfind("\xEF\xBB\xBF", 0) == 0) return FileEncoding::Utf8;
    if (head.rfind("\xFF\xFE", 0) == 0) return FileEncoding::Utf16;
    return std::nullopt;
}

ValuePtr openFile(const Args& a) {
    expectCount(a, 2, 3);
    const std::wstring& name = stringArg(a[0]);
    std::wstring mode = stringArg(a[1]);
    if (mode != L"r" && mode != L"w" && mode != L"a") fail(L"bad argument value: " + printValue(a[1]));
    auto file = std::make_unique<OpenFile>();
    file->name = name;
    file->reading = mode == L"r";
    if (a.size() == 3) {
        auto encoding = encodingNamed(stringArg(a[2]));
        if (!encoding) fail(L"bad argument value: " + printValue(a[2]));
        file->encoding = *encoding;
    }
    fs::path path = pathOf(name);
    std::error_code ec;
    if (file->reading) {
        std::string bytes;
        if (fs::is_directory(path, ec) || !readBytes(path, bytes)) return nil();
        file->text = decodeFileText(bytes, file->encoding);
    } else {
        bool appendingToMarked = false;
        if (mode == L"a" && fs::exists(path, ec)) {
            if (auto marked = markedEncoding(path)) {
                file->encoding = *marked;
                appendingToMarked = true;
            }
        }
        file->out.open(path, std::ios::binary | (mode == L"a" ? std::ios::app : std::ios::trunc));
        if (!file->out) return nil();
        bool fresh = mode == L"w" || fs::file_size(path, ec) == 0;
        if (fresh && !appendingToMarked && file->encoding == FileEncoding::Utf16) file->out << "\xFF\xFE";
    }
    auto& table = openFiles();
    long long id = table.next++;
    table.files[id] = std::move(file);
    return fileValue(id, name);
}

void writeText(OpenFile& f, const std::wstring& text) {
    f.out << encodeFileText(text, f.encoding);
    f.out.flush();
}

// The writable open file at position I, or null when the argument is absent.
OpenFile* outputFile(const Args& a, size_t i) {
    if (a.size() <= i || isNil(a[i])) return nullptr;
    OpenFile* f = fileOf(a[i]);
    if (!f || f->reading) badArgument(L"streamp", a[i]);
    return f;
}

OpenFile* inputFile(const Args& a, size_t i) {
    if (a.size() <= i || isNil(a[i])) return nullptr;
    OpenFile* f = fileOf(a[i]);
    if (!f || !f->reading) badArgument(L"streamp", a[i]);
    return f;
}

std::wstring root(Interpreter& in) {
    ValuePtr drv = in.symbolValue(L"_DRV");
    return drv && drv->kind == Kind::Str ? drv->text : L"";
}

void addOpenAndClose(Interpreter& in) {
    in.define(L"OPEN", [](Interpreter&, const Args& a) { return openFile(a); });
    in.define(L"CLOSE", [](Interpreter&, const Args& a) {
        expectCount(a, 1, 1);
        if (!fileOf(a[0])) badArgument(L"streamp", a[0]);
        openFiles().files.erase(a[0]->integer);
        return nil();
    });
}

void addReadWrite(Interpreter& in) {
    in.define(L"WRITE-LINE", [](Interpreter&, const Args& a) {
        expectCount(a, 1, 2);
        const std::wstring& text = stringArg(a[0]);
        if (OpenFile* f = outputFile(a, 1)) writeText(*f, text + L"\r\n");
        else emit(OutputKind::CommandLine, text + L"\n");
        return a[0];
    });
    in.define(L"WRITE-CHAR", [](Interpreter&, const Args& a) {
        expectCount(a, 1, 2);
        auto c = static_cast<wchar_t>(intArg(a[0]));
        std::wstring text = c == L'\n' ? L"\r\n" : std::wstring(1, c);
        if (OpenFile* f = outputFile(a, 1)) writeText(*f, text);
        else emit(OutputKind::CommandLine, std::wstring(1, c));
        return a[0];
    });
    // Without a file these read the keyboard, which a headless run does not have: nil.
    in.define(L"READ-LINE", [](Interpreter&, const Args& a) {
        expectCount(a, 0, 1);
        OpenFile* f = inputFile(a, 0);
        if (!f || f->at >= f->text.size()) return nil();
        size_t end = f->text.find(L'\n', f->at);
        if (end == std::wstring::npos) end = f->text.size();
        std::wstring line = f->text.substr(f->at, end - f->at);
        if (!line.empty() && line.back() == L'\r') line.pop_back();
        f->at = end + 1;
        return makeStr(line);
    });
    in.define(L"READ-CHAR", [](Interpreter&, const Args& a) {
        expectCount(a, 0, 1);
        OpenFile* f = inputFile(a, 0);
        if (!f || f->at >= f->text.size()) return nil();
        wchar_t c = f->text[f->at++];
        if (c == L'\r' && f->at < f->text.size() && f->text[f->at] == L'\n') c = f->text[f->at++];
        return makeInt(static_cast<long long>(c));
    });
}

void addSearch(Interpreter& in) {
    in.define(L"FINDFILE", [](Interpreter& i, const Args& a) {
        expectCount(a, 1, 1);
        auto found = findInFolders(stringArg(a[0]), searchFolders(i.currentSource(), root(i)));
        return found ? makeStr(*found) : nil();
    });
    // (load NAME [ONFAILURE]): NAME, or NAME.lsp, where findfile looks.
    in.define(L"LOAD", [](Interpreter& i, const Args& a) {
        expectCount(a, 1, 2);
        const std::wstring& name = stringArg(a[0]);
        auto folders = searchFolders(i.currentSource(), root(i));
        auto found = pathOf(name).has_extension() ? findInFolders(name, folders) : std::nullopt;
        if (!found) found = findInFolders(name + L".lsp", folders);
        if (!found && !pathOf(name).has_extension()) found = findInFolders(name, folders);
        std::string bytes;
        if (!found || !readBytes(pathOf(*found), bytes)) {
            if (a.size() == 2) return a[1];
            fail(L"LOAD failed: " + printValue(a[0]));
        }
        return i.evalText(decodeFileText(bytes, FileEncoding::Utf8), *found);
    });
}

void addFileNames(Interpreter& in) {
    in.define(L"VL-FILENAME-BASE", [](Interpreter&, const Args& a) {
        expectCount(a, 1, 1);
        return makeStr(nameOf(pathOf(stringArg(a[0])).stem()));
    });
    in.define(L"VL-FILENAME-EXTENSION", [](Interpreter&, const Args& a) {
        expectCount(a, 1, 1);
        std::wstring ext = nameOf(pathOf(stringArg(a[0])).extension());
        return ext.empty() ? nil() : makeStr(ext);
    });
    in.define(L"VL-FILENAME-DIRECTORY", [](Interpreter&, const Args& a) {
        expectCount(a, 1, 1);
        return makeStr(nameOf(pathOf(stringArg(a[0])).parent_path()));
    });
    in.define(L"VL-FILE-DIRECTORY-P", [](Interpreter&, const Args& a) {
        expectCount(a, 1, 1);
        std::error_code ec;
        return fs::is_directory(pathOf(stringArg(a[0])), ec) ? t() : nil();
    });
    // (vl-directory-files [DIR PATTERN MODE]): MODE -1 folders only, 1 files only, else both.
    in.define(L"VL-DIRECTORY-FILES", [](Interpreter&, const Args& a) {
        expectCount(a, 0, 3);
        fs::path dir = a.empty() || isNil(a[0]) ? fs::current_path() : pathOf(stringArg(a[0]));
        std::wstring pattern = a.size() > 1 && !isNil(a[1]) ? stringArg(a[1]) : L"*";
        long long mode = a.size() > 2 && !isNil(a[2]) ? intArg(a[2]) : 0;
        std::error_code ec;
        if (!fs::is_directory(dir, ec)) return nil();
        std::vector<std::wstring> names;
        if (mode != 1) names = {L".", L".."};
        for (const auto& entry : fs::directory_iterator(dir, ec)) {
            bool folder = entry.is_directory(ec);
            if ((mode == 1 && folder) || (mode == -1 && !folder)) continue;
            names.push_back(nameOf(entry.path().filename()));
        }
        std::sort(names.begin(), names.end());
        Args out;
        for (auto& n : names)
            if (db::wildcardMatchNoCase(n, pattern)) out.push_back(makeStr(n));
        return makeList(out);
    });
}

}  // namespace

bool writeToLispFile(const ValuePtr& v, const std::wstring& text) {
    if (!v || v->kind != Kind::File) return false;
    OpenFile* f = fileOf(v);
    if (!f || f->reading) return false;
    std::wstring crlf;
    for (wchar_t c : text) crlf += c == L'\n' ? std::wstring(L"\r\n") : std::wstring(1, c);
    writeText(*f, crlf);
    return true;
}

void addFileBuiltins(Interpreter& in) {
    addOpenAndClose(in);
    addReadWrite(in);
    addSearch(in);
    addFileNames(in);
}

}  // namespace host::lisp
