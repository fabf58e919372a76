#include "psychro/docx/whole_file.h"

#include <cstdio>

#include "frame/file_handle.h"

namespace vrn2 {

bool writeWholeFile(const std::wstring& name, const std::string& bytes) {
    const std::wstring temporary = name + L".part";
    FileHandle file(temporary.c_str(), L"wb");
    if (!file) return false;
    bool written = std::fwrite(bytes.data(), 1, bytes.size(), file.get()) == bytes.size();
    written = file.close() && written;
    if (written && _wrename(temporary.c_str(), name.c_str()) != 0) {
#ifdef _WIN32
        // Renaming does not replace an existing file there: the old one goes first.
        written = _wremove(name.c_str()) == 0 && _wrename(temporary.c_str(), name.c_str()) == 0;
#else
        written = false;
#endif
    }
    if (!written) _wremove(temporary.c_str());
    return written;
}

}  // namespace vrn2
