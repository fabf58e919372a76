#include "psychro/docx/word_parts.h"

#include <string_view>

#include "psychro/docx/xml_writer.h"

namespace vrn2 {
namespace {

constexpr wchar_t kPackageRelationshipsNamespace[] = L"http://schemas.openxmlformats.org/package/2006/relationships";
constexpr wchar_t kRelationshipTypes[] = L"http://schemas.openxmlformats.org/officeDocument/2006/relationships/";

std::wstring wide(std::string_view ascii) { return std::wstring(ascii.begin(), ascii.end()); }

void relationship(XmlWriter& xml, const wchar_t* id, const wchar_t* type, const wchar_t* target) {
    xml.empty("Relationship", {{"Id", id}, {"Type", std::wstring(kRelationshipTypes) + type}, {"Target", target}});
}

void fonts(XmlWriter& xml, const wchar_t* chinese) {
    xml.empty("w:rFonts", {{"w:ascii", kLatinFont}, {"w:hAnsi", kLatinFont}, {"w:cs", kLatinFont}, {"w:eastAsia", chinese}});
}

void size(XmlWriter& xml, const wchar_t* halfPoints) {
    xml.empty("w:sz", {{"w:val", halfPoints}});
    xml.empty("w:szCs", {{"w:val", halfPoints}});
}

void defaults(XmlWriter& xml) {
    xml.open("w:docDefaults");
    xml.open("w:rPrDefault");
    xml.open("w:rPr");
    fonts(xml, kChineseFont);
    size(xml, L"21");  // 10.5 pt, the usual body size of Chinese documents
    xml.empty("w:lang", {{"w:val", L"en-US"}, {"w:eastAsia", L"zh-CN"}});
    xml.close();
    xml.close();
    xml.open("w:pPrDefault");
    xml.open("w:pPr");
    xml.empty("w:spacing", {{"w:after", L"60"}, {"w:line", L"300"}, {"w:lineRule", L"auto"}});
    xml.close();
    xml.close();
    xml.close();
}

struct HeadStyle {
    const wchar_t* id;
    const wchar_t* name;  // the built-in name, so that Word and other readers know the style
    const wchar_t* halfPoints;
    const wchar_t* outlineLevel;  // null: not in the outline
    bool centred;
};

void headStyle(XmlWriter& xml, const HeadStyle& style) {
    xml.open("w:style", {{"w:type", L"paragraph"}, {"w:styleId", style.id}});
    xml.empty("w:name", {{"w:val", style.name}});
    xml.empty("w:basedOn", {{"w:val", L"Normal"}});
    xml.empty("w:next", {{"w:val", L"Normal"}});
    xml.empty("w:qFormat");
    xml.open("w:pPr");
    xml.empty("w:keepNext");
    xml.empty("w:spacing", {{"w:before", L"240"}, {"w:after", L"120"}});
    if (style.centred) xml.empty("w:jc", {{"w:val", L"center"}});
    if (style.outlineLevel) xml.empty("w:outlineLvl", {{"w:val", style.outlineLevel}});
    xml.close();
    xml.open("w:rPr");
    fonts(xml, kChineseHeadingFont);
    xml.empty("w:b");
    size(xml, style.halfPoints);
    xml.close();
    xml.close();
}

}  // namespace

std::string wordContentTypes() {
    XmlWriter xml;
    xml.open("Types", {{"xmlns", L"http://schemas.openxmlformats.org/package/2006/content-types"}});
    xml.empty("Default", {{"Extension", L"rels"}, {"ContentType", L"application/vnd.openxmlformats-package.relationships+xml"}});
    xml.empty("Default", {{"Extension", L"xml"}, {"ContentType", L"application/xml"}});
    xml.empty("Default", {{"Extension", L"png"}, {"ContentType", L"image/png"}});
    const std::wstring office = L"application/vnd.openxmlformats-officedocument.wordprocessingml.";
    xml.empty("Override", {{"PartName", L"/word/document.xml"}, {"ContentType", office + L"document.main+xml"}});
    xml.empty("Override", {{"PartName", L"/word/styles.xml"}, {"ContentType", office + L"styles+xml"}});
    return xml.finish();
}

std::string wordPackageRelationships() {
    XmlWriter xml;
    xml.open("Relationships", {{"xmlns", kPackageRelationshipsNamespace}});
    relationship(xml, L"rIdDocument", L"officeDocument", L"word/document.xml");
    return xml.finish();
}

std::string wordDocumentRelationships(bool withPicture) {
    XmlWriter xml;
    xml.open("Relationships", {{"xmlns", kPackageRelationshipsNamespace}});
    relationship(xml, L"rIdStyles", L"styles", L"styles.xml");
    // The target is relative to the folder of the document part.
    if (withPicture) relationship(xml, kPictureRelationship, L"image", L"media/chart.png");
    return xml.finish();
}

std::string wordStyles() {
    XmlWriter xml;
    xml.open("w:styles", {{"xmlns:w", wide(kWordNamespace)}});
    defaults(xml);
    xml.open("w:style", {{"w:type", L"paragraph"}, {"w:default", L"1"}, {"w:styleId", L"Normal"}});
    xml.empty("w:name", {{"w:val", L"Normal"}});
    xml.empty("w:qFormat");
    xml.close();
    headStyle(xml, {L"Title", L"Title", L"36", nullptr, true});
    headStyle(xml, {L"Heading1", L"heading 1", L"28", L"0", false});
    headStyle(xml, {L"Heading2", L"heading 2", L"24", L"1", false});
    headStyle(xml, {L"Caption", L"caption", L"20", nullptr, true});
    xml.open("w:style", {{"w:type", L"table"}, {"w:default", L"1"}, {"w:styleId", L"TableNormal"}});
    xml.empty("w:name", {{"w:val", L"Normal Table"}});
    xml.close();
    return xml.finish();
}

}  // namespace vrn2
