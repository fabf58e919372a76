#include "psychro/docx/word_document.h"

#include <cmath>
#include <string>
#include <utility>

#include "psychro/docx/word_parts.h"

namespace vrn2 {
namespace {

// A4 portrait with margins of 2.2 cm left and right, in twentieths of a point.
constexpr wchar_t kPageWidth[] = L"11906", kPageHeight[] = L"16838";
constexpr wchar_t kMarginTopBottom[] = L"1440", kMarginSides[] = L"1247";
constexpr double kEmuPerCm = 360000.0;

const wchar_t* styleId(ParagraphStyle style) {
    switch (style) {
        case ParagraphStyle::title: return L"Title";
        case ParagraphStyle::heading1: return L"Heading1";
        case ParagraphStyle::heading2: return L"Heading2";
        case ParagraphStyle::caption: return L"Caption";
        case ParagraphStyle::normal: break;
    }
    return nullptr;
}

const wchar_t* chineseFontOf(ParagraphStyle style) {
    return style == ParagraphStyle::normal || style == ParagraphStyle::caption ? kChineseFont : kChineseHeadingFont;
}

std::wstring number(long long value) { return std::to_wstring(value); }

void cellBorders(XmlWriter& xml) {
    xml.open("w:tblBorders");
    for (const char* side : {"w:top", "w:left", "w:bottom", "w:right", "w:insideH", "w:insideV"})
        xml.empty(side, {{"w:val", L"single"}, {"w:sz", L"4"}, {"w:space", L"0"}, {"w:color", L"000000"}});
    xml.close();
}

void inlinePicture(XmlWriter& xml, long long cx, long long cy, std::wstring_view name) {
    const std::wstring extentX = number(cx), extentY = number(cy);
    xml.open("wp:inline", {{"distT", L"0"}, {"distB", L"0"}, {"distL", L"0"}, {"distR", L"0"}});
    xml.empty("wp:extent", {{"cx", extentX}, {"cy", extentY}});
    xml.empty("wp:docPr", {{"id", L"1"}, {"name", std::wstring(name)}});
    xml.open("wp:cNvGraphicFramePr");
    xml.empty("a:graphicFrameLocks", {{"noChangeAspect", L"1"}});
    xml.close();
    xml.open("a:graphic");
    xml.open("a:graphicData", {{"uri", L"http://schemas.openxmlformats.org/drawingml/2006/picture"}});
    xml.open("pic:pic");
    xml.open("pic:nvPicPr");
    xml.empty("pic:cNvPr", {{"id", L"0"}, {"name", L"chart.png"}});
    xml.empty("pic:cNvPicPr");
    xml.close();
    xml.open("pic:blipFill");
    xml.empty("a:blip", {{"r:embed", kPictureRelationship}});
    xml.open("a:stretch");
    xml.empty("a:fillRect");
    xml.close();
    xml.close();
    xml.open("pic:spPr");
    xml.open("a:xfrm");
    xml.empty("a:off", {{"x", L"0"}, {"y", L"0"}});
    xml.empty("a:ext", {{"cx", extentX}, {"cy", extentY}});
    xml.close();
    xml.open("a:prstGeom", {{"prst", L"rect"}});
    xml.empty("a:avLst");
    xml.close();
    xml.close();
    xml.close();  // pic:pic
    xml.close();  // a:graphicData
    xml.close();  // a:graphic
    xml.close();  // wp:inline
}

}  // namespace

WordDocument::WordDocument() {
    const std::wstring w(kWordNamespace, kWordNamespace + sizeof kWordNamespace - 1);
    const std::wstring r(kRelationshipsNamespace, kRelationshipsNamespace + sizeof kRelationshipsNamespace - 1);
    body_.open("w:document", {{"xmlns:w", w},
                              {"xmlns:r", r},
                              {"xmlns:wp", L"http://schemas.openxmlformats.org/drawingml/2006/wordprocessingDrawing"},
                              {"xmlns:a", L"http://schemas.openxmlformats.org/drawingml/2006/main"},
                              {"xmlns:pic", L"http://schemas.openxmlformats.org/drawingml/2006/picture"}});
    body_.open("w:body");
}

void WordDocument::run(std::wstring_view text, bool bold, const wchar_t* chineseFont) {
    body_.open("w:r");
    body_.open("w:rPr");
    body_.empty("w:rFonts", {{"w:ascii", kLatinFont}, {"w:hAnsi", kLatinFont}, {"w:eastAsia", chineseFont}});
    if (bold) body_.empty("w:b");
    body_.close();
    body_.element("w:t", text, {{"xml:space", L"preserve"}});
    body_.close();
}

void WordDocument::paragraph(std::wstring_view text, ParagraphStyle style) {
    body_.open("w:p");
    if (const wchar_t* id = styleId(style)) {
        body_.open("w:pPr");
        body_.empty("w:pStyle", {{"w:val", id}});
        body_.close();
    }
    run(text, false, chineseFontOf(style));
    body_.close();
}

void WordDocument::table(const WordTable& table) {
    body_.open("w:tbl");
    body_.open("w:tblPr");
    body_.empty("w:tblW", {{"w:w", L"0"}, {"w:type", L"auto"}});
    body_.empty("w:jc", {{"w:val", L"center"}});
    cellBorders(body_);
    body_.close();
    body_.open("w:tblGrid");
    for (int width : table.widths) body_.empty("w:gridCol", {{"w:w", number(width)}});
    body_.close();
    auto row = [&](const std::vector<std::wstring>& cells, bool header) {
        body_.open("w:tr");
        if (header) {
            body_.open("w:trPr");
            body_.empty("w:tblHeader");
            body_.close();
        }
        for (std::size_t c = 0; c < cells.size(); ++c) {
            body_.open("w:tc");
            body_.open("w:tcPr");
            body_.empty("w:tcW", {{"w:w", number(c < table.widths.size() ? table.widths[c] : 1500)}, {"w:type", L"dxa"}});
            body_.close();
            body_.open("w:p");
            body_.open("w:pPr");
            body_.empty("w:spacing", {{"w:before", L"20"}, {"w:after", L"20"}});
            body_.empty("w:jc", {{"w:val", header || c > 0 ? L"center" : L"left"}});
            body_.close();
            run(cells[c], header, kChineseFont);
            body_.close();
            body_.close();
        }
        body_.close();
    };
    row(table.header, true);
    for (const auto& cells : table.rows) row(cells, false);
    body_.close();
    // Word joins two tables that follow each other; an empty paragraph keeps them apart.
    body_.empty("w:p");
}

void WordDocument::picture(WordPicture picture, double widthCm, std::wstring_view name) {
    if (picture.widthPx <= 0 || picture.heightPx <= 0) return;
    const long long cx = std::llround(widthCm * kEmuPerCm);
    const long long cy = std::llround(widthCm * kEmuPerCm * picture.heightPx / picture.widthPx);
    body_.open("w:p");
    body_.open("w:pPr");
    body_.empty("w:jc", {{"w:val", L"center"}});
    body_.close();
    body_.open("w:r");
    body_.open("w:drawing");
    inlinePicture(body_, cx, cy, name);
    body_.close();
    body_.close();
    body_.close();
    picture_ = std::move(picture);
    hasPicture_ = true;
}

std::vector<PackagePart> WordDocument::parts() {
    body_.open("w:sectPr");
    body_.empty("w:pgSz", {{"w:w", kPageWidth}, {"w:h", kPageHeight}});
    body_.empty("w:pgMar", {{"w:top", kMarginTopBottom}, {"w:right", kMarginSides}, {"w:bottom", kMarginTopBottom},
                            {"w:left", kMarginSides}, {"w:header", L"851"}, {"w:footer", L"992"}, {"w:gutter", L"0"}});
    std::vector<PackagePart> parts = {
        {"[Content_Types].xml", wordContentTypes()},
        {"_rels/.rels", wordPackageRelationships()},
        {"word/document.xml", body_.finish()},
        {"word/_rels/document.xml.rels", wordDocumentRelationships(hasPicture_)},
        {"word/styles.xml", wordStyles()},
    };
    if (hasPicture_) parts.push_back({kPicturePart, std::move(picture_.png)});
    return parts;
}

}  // namespace vrn2
