#include "frame/result_file.h"

#include <cwchar>

#include "frame/file_handle.h"

namespace vrn2 {

bool appendResultBlock(const wchar_t* fileName, const std::wstring& title, const std::wstring& block,
                       const Message& failure) {
    // The title goes only into a new file: an existing one is appended to as it is.
    bool isNew = !fileExists(fileName);
    FileHandle file(fileName, isNew ? L"w" : L"a+");
    bool written = false;
    if (file) {
        std::wstring text = isNew ? title + block : block;
        written = std::fputws(text.c_str(), file.get()) >= 0;
        written = file.close() && written;
    }
    if (!written) report(failure);
    return written;
}

}  // namespace vrn2
