// A small XML writer for the parts of an Office document: elements are opened and closed in
// order, attribute values and text are escaped, and wide text is written as UTF-8. Characters
// that XML 1.0 does not allow (control characters other than tab, line feed and carriage
// return, U+FFFE, U+FFFF, unpaired surrogates) are left out, so whatever a user typed gives a
// well-formed part.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace vrn2 {

// UTF-8 of TEXT (UTF-32 or, where wchar_t has 16 bits, UTF-16), with the characters that XML
// does not allow left out.
std::string xmlUtf8(std::wstring_view text);
// TEXT for use between tags: "&", "<" and ">" as entities.
std::string escapeXmlText(std::wstring_view text);
// TEXT for use inside a double-quoted attribute value: also '"' and "'", and tab, line feed
// and carriage return as character references so that a reader keeps them.
std::string escapeXmlAttribute(std::wstring_view text);

struct XmlAttribute {
    std::string_view name;
    std::wstring value;
};

class XmlWriter {
public:
    // Starts the part with the XML declaration (UTF-8, standalone).
    XmlWriter();

    // <NAME attributes...> ; the element stays open until close().
    void open(std::string_view name, std::initializer_list<XmlAttribute> attributes = {});
    // <NAME attributes.../>
    void empty(std::string_view name, std::initializer_list<XmlAttribute> attributes = {});
    // Escaped character data inside the open element.
    void text(std::wstring_view text);
    // </NAME> of the innermost open element; nothing when none is open.
    void close();
    // <NAME attributes...>TEXT</NAME>
    void element(std::string_view name, std::wstring_view text, std::initializer_list<XmlAttribute> attributes = {});

    // Closes what is still open and hands over the part.
    std::string finish();

private:
    void startTag(std::string_view name, std::initializer_list<XmlAttribute> attributes);

    std::string out_;
    std::vector<std::string> openElements_;
};

}  // namespace vrn2
