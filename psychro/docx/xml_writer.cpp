#include "psychro/docx/xml_writer.h"

#include <utility>

namespace vrn2 {
namespace {

bool allowedInXml(char32_t c) {
    return c == 0x9 || c == 0xA || c == 0xD || (c >= 0x20 && c <= 0xD7FF) || (c >= 0xE000 && c <= 0xFFFD) ||
           (c >= 0x10000 && c <= 0x10FFFF);
}

bool isHighSurrogate(char32_t c) { return c >= 0xD800 && c <= 0xDBFF; }
bool isLowSurrogate(char32_t c) { return c >= 0xDC00 && c <= 0xDFFF; }

void putUtf8(std::string& out, char32_t c) {
    if (c < 0x80) {
        out += static_cast<char>(c);
    } else if (c < 0x800) {
        out += static_cast<char>(0xC0 | (c >> 6));
        out += static_cast<char>(0x80 | (c & 0x3F));
    } else if (c < 0x10000) {
        out += static_cast<char>(0xE0 | (c >> 12));
        out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (c & 0x3F));
    } else {
        out += static_cast<char>(0xF0 | (c >> 18));
        out += static_cast<char>(0x80 | ((c >> 12) & 0x3F));
        out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (c & 0x3F));
    }
}

// Calls EACH with every code point of TEXT that XML allows. A surrogate pair (from a 16-bit
// wchar_t) is one code point; a surrogate on its own is dropped.
template <typename Each>
void forEachXmlChar(std::wstring_view text, Each each) {
    for (std::size_t k = 0; k < text.size(); ++k) {
        char32_t c = static_cast<char32_t>(text[k]);
        if (isHighSurrogate(c) && k + 1 < text.size() && isLowSurrogate(static_cast<char32_t>(text[k + 1]))) {
            c = 0x10000 + ((c - 0xD800) << 10) + (static_cast<char32_t>(text[k + 1]) - 0xDC00);
            ++k;
        }
        if (allowedInXml(c)) each(c);
    }
}

std::string escaped(std::wstring_view text, bool attribute) {
    std::string out;
    out.reserve(text.size());
    forEachXmlChar(text, [&](char32_t c) {
        switch (c) {
            case U'&': out += "&amp;"; return;
            case U'<': out += "&lt;"; return;
            case U'>': out += "&gt;"; return;
            default: break;
        }
        if (attribute) {
            switch (c) {
                case U'"': out += "&quot;"; return;
                case U'\'': out += "&apos;"; return;
                case U'\t': out += "&#9;"; return;
                case U'\n': out += "&#10;"; return;
                case U'\r': out += "&#13;"; return;
                default: break;
            }
        } else if (c == U'\r') {
            out += "&#13;";  // a bare carriage return would be read as a line feed
            return;
        }
        putUtf8(out, c);
    });
    return out;
}

}  // namespace

std::string xmlUtf8(std::wstring_view text) {
    std::string out;
    forEachXmlChar(text, [&](char32_t c) { putUtf8(out, c); });
    return out;
}

std::string escapeXmlText(std::wstring_view text) { return escaped(text, false); }
std::string escapeXmlAttribute(std::wstring_view text) { return escaped(text, true); }

XmlWriter::XmlWriter() : out_("<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\n") {}

void XmlWriter::startTag(std::string_view name, std::initializer_list<XmlAttribute> attributes) {
    out_ += '<';
    out_ += name;
    for (const XmlAttribute& a : attributes) {
        out_ += ' ';
        out_ += a.name;
        out_ += "=\"";
        out_ += escapeXmlAttribute(a.value);
        out_ += '"';
    }
}

void XmlWriter::open(std::string_view name, std::initializer_list<XmlAttribute> attributes) {
    startTag(name, attributes);
    out_ += '>';
    openElements_.emplace_back(name);
}

void XmlWriter::empty(std::string_view name, std::initializer_list<XmlAttribute> attributes) {
    startTag(name, attributes);
    out_ += "/>";
}

void XmlWriter::text(std::wstring_view text) { out_ += escapeXmlText(text); }

void XmlWriter::close() {
    if (openElements_.empty()) return;
    out_ += "</";
    out_ += openElements_.back();
    out_ += '>';
    openElements_.pop_back();
}

void XmlWriter::element(std::string_view name, std::wstring_view text, std::initializer_list<XmlAttribute> attributes) {
    open(name, attributes);
    this->text(text);
    close();
}

std::string XmlWriter::finish() {
    while (!openElements_.empty()) close();
    return std::move(out_);
}

}  // namespace vrn2
