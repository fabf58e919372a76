#include "host/runtime/files.h"

#include <cerrno>
#include <cstdio>
#include <string>

#include <unistd.h>

#include "host/boundary.h"
#include "host/text.h"
#include "wchar_io.h"

namespace host {

std::filesystem::path nativePath(std::wstring_view path) {
    std::wstring p(path);
    for (auto& c : p)
        if (c == L'\\') c = L'/';
    return std::filesystem::path(toUtf8(p));
}

}  // namespace host

extern "C" FILE* _wfopen(const wchar_t* filename, const wchar_t* mode) {
    return host::guarded(__func__, nullptr, [&]() -> FILE* {
        if (!filename || !mode) {
            errno = EINVAL;
            return nullptr;
        }
        std::string m = host::toUtf8(mode);
        // Text and binary modes are the same here; the ccs= encodings are not.
        if (m.find("ccs=") != std::string::npos) m = m.substr(0, m.find(','));
        return std::fopen(host::nativePath(filename).c_str(), m.c_str());
    });
}

extern "C" int _wremove(const wchar_t* filename) {
    return host::guarded(__func__, -1, [&]() -> int {
        if (!filename) return -1;
        return std::remove(host::nativePath(filename).c_str());
    });
}

extern "C" int _wunlink(const wchar_t* filename) {
    return host::guarded(__func__, -1, [&]() -> int {
        if (!filename) return -1;
        return ::unlink(host::nativePath(filename).c_str());
    });
}

extern "C" int _wrename(const wchar_t* oldname, const wchar_t* newname) {
    return host::guarded(__func__, -1, [&]() -> int {
        if (!oldname || !newname) return -1;
        return std::rename(host::nativePath(oldname).c_str(), host::nativePath(newname).c_str());
    });
}
