#include "frame/data_file.h"

#include "frame/file_handle.h"
#include "frame/messages.h"
#include "frame/paths.h"
#include "frame/text_file.h"

namespace vrn2 {
namespace {

bool readDataText(const wchar_t* relative, Channel failure, std::wstring& text) {
    if (!loadInstallRoot()) return false;
    FileHandle file(suitePath(relative).c_str(), L"r");
    if (!file || !readWideText(file.get(), text)) {
        report({failure, kMsgFileOpenFailed});
        return false;
    }
    return true;
}

}  // namespace

bool readDataLines(const wchar_t* relative, Channel failure, std::vector<std::wstring>& lines) {
    std::wstring text;
    if (!readDataText(relative, failure, text)) return false;
    lines = splitLines(text);
    return true;
}

bool readDataTokens(const wchar_t* relative, Channel failure, std::vector<std::wstring>& tokens) {
    std::wstring text;
    if (!readDataText(relative, failure, text)) return false;
    tokens = splitTokens(text);
    return true;
}

}  // namespace vrn2
