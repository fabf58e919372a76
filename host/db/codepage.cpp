#include "host/db/codepage.h"

#include <iconv.h>

#include <cerrno>
#include <cstring>
#include <map>
#include <mutex>

#include "host/text.h"

namespace host::db {
namespace {

// Windows-1252 bytes 0x80-0x9F; the five unassigned bytes keep their own value.
constexpr char16_t kCp1252High[32] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

std::string upper(std::string_view s) {
    std::string out(s);
    for (auto& c : out)
        if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
    return out;
}

// One conversion descriptor per charset and direction, opened on first use and kept for the
// process: a cache of the C library's converters, nothing a session could see. The host runs
// drawing work on one thread; the lock keeps a stray caller from corrupting the cache.
class IconvCache {
public:
    static IconvCache& instance() {
        static IconvCache cache;
        return cache;
    }
    // Converts and reports whether every input byte was converted.
    bool convert(const std::string& to, const std::string& from, std::string_view in,
                 std::string& out) {
        std::lock_guard lock(mutex_);
        iconv_t cd = open(to, from);
        if (cd == reinterpret_cast<iconv_t>(-1)) return false;
        iconv(cd, nullptr, nullptr, nullptr, nullptr);
        out.resize(in.size() * 4 + 16);
        char* ip = const_cast<char*>(in.data());
        size_t il = in.size();
        char* op = out.data();
        size_t ol = out.size();
        size_t r = iconv(cd, &ip, &il, &op, &ol);
        out.resize(out.size() - ol);
        return r != static_cast<size_t>(-1) && il == 0;
    }
    ~IconvCache() {
        for (auto& [key, cd] : open_) iconv_close(cd);
    }

private:
    iconv_t open(const std::string& to, const std::string& from) {
        auto key = to + "<" + from;
        auto it = open_.find(key);
        if (it != open_.end()) return it->second;
        iconv_t cd = iconv_open(to.c_str(), from.c_str());
        open_[key] = cd;
        return cd;
    }
    std::mutex mutex_;
    std::map<std::string, iconv_t> open_;
};

std::wstring widen(const std::string& utf32) {
    std::wstring out(utf32.size() / sizeof(wchar_t), L'\0');
    std::memcpy(out.data(), utf32.data(), out.size() * sizeof(wchar_t));
    return out;
}

int hexDigit(wchar_t c) {
    if (c >= L'0' && c <= L'9') return c - L'0';
    if (c >= L'A' && c <= L'F') return c - L'A' + 10;
    if (c >= L'a' && c <= L'f') return c - L'a' + 10;
    return -1;
}

bool hexAt(std::wstring_view s, size_t pos, size_t count, unsigned& value) {
    if (pos + count > s.size()) return false;
    value = 0;
    for (size_t i = 0; i < count; ++i) {
        int d = hexDigit(s[pos + i]);
        if (d < 0) return false;
        value = value * 16 + static_cast<unsigned>(d);
    }
    return true;
}

// The charset of the c in \M+cXXXX.
const char* mifCharset(wchar_t c) {
    switch (c) {
    case L'1': return "CP932";
    case L'2': return "CP950";
    case L'3': return "CP949";
    case L'4': return "JOHAB";
    case L'5': return "GBK";
    default: return nullptr;
    }
}

bool decodeMif(std::wstring_view s, size_t pos, std::wstring& out) {
    // pos is at the backslash of \M+cXXXX
    if (pos + 8 > s.size() || s[pos + 1] != L'M' || s[pos + 2] != L'+') return false;
    const char* cs = mifCharset(s[pos + 3]);
    unsigned code;
    if (!cs || !hexAt(s, pos + 4, 4, code)) return false;
    std::string bytes{static_cast<char>(code >> 8), static_cast<char>(code & 0xFF)};
    std::string wide;
    if (!IconvCache::instance().convert("WCHAR_T", cs, bytes, wide) || wide.empty()) return false;
    out += widen(wide);
    return true;
}

// \U+XXXX, \M+cXXXX and ^X escapes of text already in wide characters.
std::wstring unescape(std::wstring_view s) {
    std::wstring out;
    out.reserve(s.size());
    for (size_t i = 0; i < s.size(); ++i) {
        wchar_t c = s[i];
        unsigned code;
        if (c == L'\\' && i + 7 <= s.size() && s[i + 1] == L'U' && s[i + 2] == L'+' &&
            hexAt(s, i + 3, 4, code)) {
            unsigned low;
            if (code >= 0xD800 && code < 0xDC00 && i + 14 <= s.size() && s[i + 7] == L'\\' &&
                s[i + 8] == L'U' && s[i + 9] == L'+' && hexAt(s, i + 10, 4, low) && low >= 0xDC00 &&
                low < 0xE000) {
                out += static_cast<wchar_t>(0x10000 + ((code - 0xD800) << 10) + (low - 0xDC00));
                i += 13;
                continue;
            }
            out += static_cast<wchar_t>(code);
            i += 6;
            continue;
        }
        if (c == L'\\' && decodeMif(s, i, out)) {
            i += 7;
            continue;
        }
        if (c == L'^' && i + 1 < s.size()) {
            wchar_t n = s[i + 1];
            if (n == L' ') {
                out += L'^';
                ++i;
                continue;
            }
            if (n >= L'@' && n <= L'_') {
                out += static_cast<wchar_t>(n - L'@');
                ++i;
                continue;
            }
        }
        out += c;
    }
    return out;
}

bool needsUnescape(std::string_view raw) {
    for (char c : raw)
        if (c == '\\' || c == '^') return true;
    return false;
}

bool isAscii(std::string_view raw) {
    for (char c : raw)
        if (static_cast<unsigned char>(c) >= 0x80) return false;
    return true;
}

void appendEscape(std::string& out, unsigned code) {
    static const char* hex = "0123456789ABCDEF";
    out += "\\U+";
    for (int shift = 12; shift >= 0; shift -= 4) out += hex[(code >> shift) & 0xF];
}

void appendEscaped(std::string& out, wchar_t c) {
    auto code = static_cast<unsigned>(c);
    if (code >= 0x10000) {
        code -= 0x10000;
        appendEscape(out, 0xD800 + (code >> 10));
        appendEscape(out, 0xDC00 + (code & 0x3FF));
    } else {
        appendEscape(out, code);
    }
}

bool encodeCp1252(wchar_t c, char& byte) {
    if (c < 0x80 || (c >= 0xA0 && c <= 0xFF)) {
        byte = static_cast<char>(c);
        return true;
    }
    for (int i = 0; i < 32; ++i)
        if (kCp1252High[i] == c) {
            byte = static_cast<char>(0x80 + i);
            return true;
        }
    return false;
}

// Control characters as ^X and a caret that would read as one as "^ ".
void appendAsciiChar(std::string& out, std::wstring_view text, size_t i) {
    wchar_t c = text[i];
    if (c < 0x20) {
        out += '^';
        out += static_cast<char>(c + 0x40);
    } else if (c == L'^' && i + 1 < text.size() &&
               ((text[i + 1] >= L'@' && text[i + 1] <= L'_') || text[i + 1] == L' ')) {
        out += "^ ";
    } else {
        out += static_cast<char>(c);
    }
}

}  // namespace

std::string charsetForCodePage(std::string_view codePage) {
    std::string cp = upper(codePage);
    static const std::map<std::string, std::string> known = {
        {"ANSI_936", "GBK"},      {"ANSI_932", "CP932"},    {"ANSI_949", "CP949"},
        {"ANSI_950", "CP950"},    {"ANSI_874", "CP874"},    {"ANSI_1250", "CP1250"},
        {"ANSI_1251", "CP1251"},  {"ANSI_1253", "CP1253"},  {"ANSI_1254", "CP1254"},
        {"ANSI_1255", "CP1255"},  {"ANSI_1256", "CP1256"},  {"ANSI_1257", "CP1257"},
        {"ANSI_1258", "CP1258"},  {"DOS932", "CP932"},      {"DOS850", "CP850"},
        {"DOS437", "CP437"},      {"DOS866", "CP866"},      {"MAC-ROMAN", "MACINTOSH"},
        {"BIG5", "BIG5"},         {"GB2312", "GBK"},        {"ANSI_1361", "JOHAB"}};
    auto it = known.find(cp);
    return it == known.end() ? std::string() : it->second;
}

TextCodec TextCodec::utf8() {
    TextCodec c;
    c.kind_ = Kind::Utf8;
    c.charset_ = "UTF-8";
    return c;
}

TextCodec TextCodec::forDrawing(std::string_view acadver, std::string_view codePage) {
    // AC1021 (R2007) and later files are UTF-8 whatever $DWGCODEPAGE says.
    if (acadver.size() == 6 && acadver.substr(0, 2) == "AC" && acadver >= "AC1021") return utf8();
    TextCodec c;
    c.charset_ = charsetForCodePage(codePage);
    c.kind_ = c.charset_.empty() ? Kind::Cp1252 : Kind::Iconv;
    if (c.kind_ == Kind::Cp1252) c.charset_ = "CP1252";
    return c;
}

std::wstring TextCodec::decode(std::string_view raw) const {
    std::wstring wide;
    if (isAscii(raw)) {
        wide.assign(raw.begin(), raw.end());
    } else if (kind_ == Kind::Utf8) {
        wide = fromUtf8(raw);
    } else if (kind_ == Kind::Cp1252) {
        wide.reserve(raw.size());
        for (char ch : raw) {
            auto b = static_cast<unsigned char>(ch);
            wide += (b >= 0x80 && b < 0xA0) ? static_cast<wchar_t>(kCp1252High[b - 0x80])
                                             : static_cast<wchar_t>(b);
        }
    } else {
        std::string utf32;
        if (!IconvCache::instance().convert("WCHAR_T", charset_, raw, utf32)) {
            // An invalid byte sequence: keep what converted and mark the rest.
            wide = widen(utf32);
            wide += L'\uFFFD';
        } else {
            wide = widen(utf32);
        }
    }
    return needsUnescape(raw) ? unescape(wide) : wide;
}

std::string TextCodec::encode(std::wstring_view text) const {
    std::string out;
    out.reserve(text.size());
    for (size_t i = 0; i < text.size(); ++i) {
        wchar_t c = text[i];
        if (c < 0x80) {
            appendAsciiChar(out, text, i);
            continue;
        }
        if (kind_ == Kind::Utf8) {
            if (c >= 0xD800 && c <= 0xDFFF) appendEscaped(out, c);
            else out += toUtf8(std::wstring_view(&text[i], 1));
            continue;
        }
        if (kind_ == Kind::Cp1252) {
            char b;
            if (encodeCp1252(c, b)) out += b;
            else appendEscaped(out, c);
            continue;
        }
        std::string bytes;
        std::string_view one(reinterpret_cast<const char*>(&text[i]), sizeof(wchar_t));
        if (IconvCache::instance().convert(charset_, "WCHAR_T", one, bytes) && !bytes.empty())
            out += bytes;
        else
            appendEscaped(out, c);
    }
    return out;
}

}  // namespace host::db
