// Code-page conversions; the host's ANSI code page is 936 (GBK), as on a Chinese system.
#include <iconv.h>

#include <cstring>
#include <cwchar>
#include <string>
#include <vector>

#include "host/boundary.h"
#include "host/text.h"
#include "windows.h"

namespace {

const char* charsetOf(UINT codePage) {
    switch (codePage) {
    case CP_ACP:
    case 936: return "GBK";
    case 1252: return "WINDOWS-1252";
    case CP_UTF8: return "UTF-8";
    default: return nullptr;
    }
}

bool convert(const char* to, const char* from, const char* in, size_t inLen, std::string& out) {
    iconv_t cd = iconv_open(to, from);
    if (cd == reinterpret_cast<iconv_t>(-1)) return false;
    out.assign(inLen * 4 + 16, '\0');
    char* src = const_cast<char*>(in);
    char* dst = out.data();
    size_t srcLeft = inLen, dstLeft = out.size();
    size_t r = iconv(cd, &src, &srcLeft, &dst, &dstLeft);
    iconv_close(cd);
    if (r == static_cast<size_t>(-1)) return false;
    out.resize(out.size() - dstLeft);
    return true;
}

}  // namespace

extern "C" int WideCharToMultiByte(UINT CodePage, DWORD, LPCWSTR lpWideCharStr, int cchWideChar,
                                   char* lpMultiByteStr, int cbMultiByte, const char*, BOOL* lpUsedDefaultChar) {
    return host::guarded(__func__, 0, [&]() -> int {
        const char* charset = charsetOf(CodePage);
        if (!charset || !lpWideCharStr) return 0;
        size_t n = cchWideChar < 0 ? std::wcslen(lpWideCharStr) + 1 : static_cast<size_t>(cchWideChar);
        std::string utf8 = host::toUtf8(std::wstring_view(lpWideCharStr, n));
        std::string out;
        if (!convert(charset, "UTF-8", utf8.data(), utf8.size(), out)) {
            if (lpUsedDefaultChar) *lpUsedDefaultChar = TRUE;
            return 0;
        }
        if (lpUsedDefaultChar) *lpUsedDefaultChar = FALSE;
        if (cbMultiByte == 0) return static_cast<int>(out.size());
        if (!lpMultiByteStr || static_cast<size_t>(cbMultiByte) < out.size()) return 0;
        std::memcpy(lpMultiByteStr, out.data(), out.size());
        return static_cast<int>(out.size());
    });
}

extern "C" int MultiByteToWideChar(UINT CodePage, DWORD, const char* lpMultiByteStr, int cbMultiByte,
                                   LPWSTR lpWideCharStr, int cchWideChar) {
    return host::guarded(__func__, 0, [&]() -> int {
        const char* charset = charsetOf(CodePage);
        if (!charset || !lpMultiByteStr) return 0;
        size_t n = cbMultiByte < 0 ? std::strlen(lpMultiByteStr) + 1 : static_cast<size_t>(cbMultiByte);
        std::string utf8;
        if (!convert("UTF-8", charset, lpMultiByteStr, n, utf8)) return 0;
        std::wstring wide = host::fromUtf8(utf8);
        if (cchWideChar == 0) return static_cast<int>(wide.size());
        if (!lpWideCharStr || static_cast<size_t>(cchWideChar) < wide.size()) return 0;
        std::wmemcpy(lpWideCharStr, wide.data(), wide.size());
        return static_cast<int>(wide.size());
    });
}
