#include "host/dcl/loader.h"

#include <cwchar>
#include <fstream>
#include <set>
#include <sstream>

#include "host/dcl/audit.h"
#include "host/dcl/expander.h"
#include "host/dcl/parser.h"
#include "host/dcl/paths.h"
#include "host/text.h"

namespace host::dcl {
namespace fs = std::filesystem;
namespace {

class Loader {
public:
    explicit Loader(LoadOutcome& out) : out_(out) {}

    bool run(const fs::path& path) {
        out_.dcl = std::make_unique<LoadedDcl>();
        out_.dcl->path = path;
        if (!collect(path) || !out_.problems.empty()) return false;
        bool audit = auditLevel() > 0;
        Expander expander(out_.dcl->library, out_.problems, audit);
        for (const Definition* def : out_.dcl->library.fileDefinitions()) {
            auto tile = expander.build(*def);
            if (!tile || tile->kind != TileKind::Dialog) continue;
            if (audit) auditDialog(*tile, out_.problems);
            out_.dcl->dialogs[def->name] = std::move(*tile);
        }
        return out_.problems.empty();
    }

private:
    LoadOutcome& out_;
    std::set<fs::path> seen_;

    // Parses PATH and, first, the files it includes; adds their definitions to the library.
    bool collect(const fs::path& path) {
        seen_.insert(key(path));
        std::wstring text;
        if (!read(path, text)) {
            out_.problems.push_back(Problem{path, 0, L"cannot read the file"});
            return false;
        }
        auto parsed = std::make_unique<ParsedFile>();
        ParseResult result = parseDcl(text, path);
        if (result.error) {
            out_.problems.push_back(Problem{path, result.error->line, result.error->message});
            return false;
        }
        *parsed = std::move(result.file);
        ParsedFile& file = *parsed;
        out_.dcl->files.push_back(std::move(parsed));
        bool ok = true;
        for (const auto& inc : file.includes) {
            auto found = findDclFile(inc.name, {path.parent_path()});
            if (!found) {
                out_.problems.push_back(Problem{path, inc.line, L"cannot find the included file \"" + inc.name + L"\""});
                ok = false;
            } else if (!seen_.count(key(*found)) && !collect(*found)) {
                ok = false;
            }
        }
        for (const auto& def : file.definitions) out_.dcl->library.add(def);
        return ok;
    }

    static fs::path key(const fs::path& p) {
        std::error_code ec;
        fs::path c = fs::weakly_canonical(p, ec);
        return ec ? p.lexically_normal() : c;
    }

    static bool read(const fs::path& path, std::wstring& text) {
        std::ifstream in(path, std::ios::binary);
        if (!in) return false;
        std::ostringstream bytes;
        bytes << in.rdbuf();
        if (in.bad()) return false;
        text = fromUtf8(bytes.str());
        return true;
    }

    // The audit level that a file's `dcl_settings : default_dcl_settings` asks for (default 1).
    int auditLevel() const {
        const Definition* settings = out_.dcl->library.find(L"dcl_settings");
        if (!settings || settings->file.empty()) return 1;
        for (auto it = settings->body.attributes.rbegin(); it != settings->body.attributes.rend(); ++it)
            if (it->name == L"audit_level" && it->value.type == AttrValue::Type::Integer)
                return static_cast<int>(std::wcstol(it->value.text.c_str(), nullptr, 10));
        return 1;
    }
};

}  // namespace

LoadOutcome loadDclFile(const fs::path& path) {
    LoadOutcome out;
    if (!Loader(out).run(path.lexically_normal())) out.dcl.reset();
    return out;
}

LoadOutcome loadDcl(std::wstring_view name) {
    auto found = findDclFile(name, {fs::path()});
    if (!found) {
        LoadOutcome out;
        fs::path shown = fromPlatformPath(name);
        if (!shown.has_extension()) shown += ".dcl";
        out.problems.push_back(Problem{shown, 0, L"file not found"});
        return out;
    }
    return loadDclFile(*found);
}

}  // namespace host::dcl
