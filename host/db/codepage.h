// Text of a drawing file: its bytes in the drawing's code page (UTF-8 from AC1021 on), with
// the file's escapes: \U+XXXX for a character the code page cannot hold, \M+cXXXX for a
// double-byte character of another code page, and ^X for control characters.
#pragma once

#include <string>
#include <string_view>

namespace host::db {

class TextCodec {
public:
    // The codec of a drawing of the given $ACADVER and $DWGCODEPAGE.
    static TextCodec forDrawing(std::string_view acadver, std::string_view codePage);
    static TextCodec utf8();

    std::wstring decode(std::string_view raw) const;
    // Characters the code page cannot hold are written as \U+XXXX (upper-case hex).
    std::string encode(std::wstring_view text) const;

    bool isUtf8() const { return kind_ == Kind::Utf8; }
    const std::string& charset() const { return charset_; }

private:
    enum class Kind { Utf8, Cp1252, Iconv };
    Kind kind_ = Kind::Cp1252;
    std::string charset_;  // iconv name for Kind::Iconv
};

// The iconv charset for a $DWGCODEPAGE value ("ANSI_936" gives "GBK"); empty for the
// built-in Windows-1252, which is also the answer for unknown names.
std::string charsetForCodePage(std::string_view codePage);

}  // namespace host::db
