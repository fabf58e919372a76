// The XML writer of the Word parts: markup characters escaped where they would break the part,
// wide text written as UTF-8 (the bytes worked out by hand from the code points), characters
// that XML 1.0 forbids left out, and elements nested and closed in order.
#include <gtest/gtest.h>

#include "psychro/docx/xml_writer.h"

namespace {

using vrn2::escapeXmlAttribute;
using vrn2::escapeXmlText;
using vrn2::xmlUtf8;
using vrn2::XmlWriter;

constexpr char kDeclaration[] = "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\n";

TEST(XmlEscaping, MarkupCharactersInTextAndAttributes) {
    EXPECT_EQ(escapeXmlText(L"a<b & c>d"), "a&lt;b &amp; c&gt;d");
    // Quotes need no escape between tags; an entity typed by the user stays text.
    EXPECT_EQ(escapeXmlText(L"\"x\" 'y' &amp;"), "\"x\" 'y' &amp;amp;");
    EXPECT_EQ(escapeXmlAttribute(L"\"x\" 'y' <z>&"), "&quot;x&quot; &apos;y&apos; &lt;z&gt;&amp;");
    // Inside an attribute a reader would turn tab and line feed into blanks.
    EXPECT_EQ(escapeXmlAttribute(L"a\tb\nc\rd"), "a&#9;b&#10;c&#13;d");
    EXPECT_EQ(escapeXmlText(L"a\tb\nc\rd"), "a\tb\nc&#13;d");
}

TEST(XmlEscaping, WideTextBecomesUtf8) {
    // 计 U+8BA1, 算 U+7B97, 书 U+4E66, ℃ U+2103, φ U+03C6, ³ U+00B3, 😀 U+1F600
    EXPECT_EQ(xmlUtf8(L"计算书"), "\xE8\xAE\xA1\xE7\xAE\x97\xE4\xB9\xA6");
    EXPECT_EQ(xmlUtf8(L"℃φ³"), "\xE2\x84\x83\xCF\x86\xC2\xB3");
    std::wstring emoji;
    if constexpr (sizeof(wchar_t) == 2)
        emoji = {wchar_t(0xD83D), wchar_t(0xDE00)};
    else
        emoji = {wchar_t(0x1F600)};
    EXPECT_EQ(xmlUtf8(emoji), "\xF0\x9F\x98\x80");
    EXPECT_EQ(escapeXmlText(L"B<计"), "B&lt;\xE8\xAE\xA1");
}

TEST(XmlEscaping, CharactersXmlForbidsAreLeftOut) {
    EXPECT_EQ(escapeXmlText(std::wstring(L"a\x01" L"b\x1F" L"c\x7F" L"d", 7)), "abc\x7F" "d");
    EXPECT_EQ(escapeXmlText(std::wstring(L"a\0b", 3)), "ab");
    EXPECT_EQ(escapeXmlAttribute(std::wstring{L'x', wchar_t(0xFFFE), wchar_t(0xFFFF), L'y'}), "xy");
    // A surrogate without its partner is no character.
    EXPECT_EQ(escapeXmlText(std::wstring{L'x', wchar_t(0xD800), L'y', wchar_t(0xDC00)}), "xy");
}

TEST(XmlWriterTest, ElementsNestAndCloseInOrder) {
    XmlWriter xml;
    xml.open("w:p", {{"w:a", L"1 & 2"}});
    xml.empty("w:b");
    xml.element("w:t", L"<温度>", {{"xml:space", L"preserve"}});
    xml.open("w:r");
    xml.text(L"x");
    EXPECT_EQ(xml.finish(), std::string(kDeclaration) +
                                "<w:p w:a=\"1 &amp; 2\"><w:b/><w:t xml:space=\"preserve\">&lt;\xE6\xB8\xA9\xE5\xBA\xA6"
                                "&gt;</w:t><w:r>x</w:r></w:p>");
}

TEST(XmlWriterTest, CloseWithNothingOpenWritesNothing) {
    XmlWriter xml;
    xml.close();
    xml.empty("a");
    xml.close();
    EXPECT_EQ(xml.finish(), std::string(kDeclaration) + "<a/>");
}

}  // namespace
