#include "host/dcl/paths.h"

#include <system_error>

#include "host/file_names.h"
#include "host/session.h"
#include "host/text.h"

namespace host::dcl {
namespace fs = std::filesystem;
namespace {

struct SearchPath {
    std::vector<fs::path> folders;
};

std::vector<fs::path>& folders() { return sessionPart<SearchPath>().folders; }

bool isFile(const fs::path& p) {
    std::error_code ec;
    return fs::is_regular_file(p, ec);
}

// The entry of DIR whose name equals NAME without regard to ASCII case.
std::optional<fs::path> caseBlindEntry(const fs::path& dir, const fs::path& name) {
    std::error_code ec;
    fs::path exact = dir / name;
    if (fs::exists(exact, ec)) return exact;
    for (fs::directory_iterator it(dir.empty() ? fs::path(".") : dir, ec), end; !ec && it != end; it.increment(ec)) {
        if (equalsNoCase(nameOf(it->path().filename()), nameOf(name))) return dir / it->path().filename();
    }
    return std::nullopt;
}

}  // namespace

fs::path fromPlatformPath(std::wstring_view name) {
    std::wstring text(name);
    for (auto& c : text)
        if (c == L'\\') c = L'/';
    if (text.size() >= 2 && text[1] == L':' &&
        ((text[0] >= L'A' && text[0] <= L'Z') || (text[0] >= L'a' && text[0] <= L'z')))
        text.erase(0, 2);
    return pathOf(text);
}

std::optional<fs::path> existingFile(const fs::path& path) {
    if (isFile(path)) return path;
    fs::path current = path.has_root_path() ? path.root_path() : fs::path();
    for (const auto& part : path.relative_path()) {
        if (part == "." || part == "..") {
            current /= part;
            continue;
        }
        auto next = caseBlindEntry(current, part);
        if (!next) return std::nullopt;
        current = *next;
    }
    if (isFile(current)) return current;
    return std::nullopt;
}

std::optional<fs::path> findDclFile(std::wstring_view name, const std::vector<fs::path>& first) {
    fs::path p = fromPlatformPath(name);
    if (p.empty() || !p.has_filename()) return std::nullopt;
    if (!p.has_extension()) p += ".dcl";
    if (p.is_absolute()) return existingFile(p);
    for (const auto& dir : first)
        if (auto found = existingFile(dir / p)) return found;
    for (const auto& dir : folders())
        if (auto found = existingFile(dir / p)) return found;
    return std::nullopt;
}

void setSearchPath(std::vector<fs::path> f) { folders() = std::move(f); }
const std::vector<fs::path>& searchPath() { return folders(); }

}  // namespace host::dcl
