// A Word document (Office Open XML WordprocessingML) built paragraph by paragraph: titled and
// headed paragraphs, ruled tables and one inline PNG picture, on A4 pages. The parts come out
// ready for the ZIP container. Chinese text is set in 宋体 (headings in 黑体) through the
// eastAsia font of every run, Latin text in Times New Roman.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "psychro/docx/xml_writer.h"
#include "psychro/docx/zip_package.h"

namespace vrn2 {

enum class ParagraphStyle { normal, title, heading1, heading2, caption };

struct WordTable {
    std::vector<std::wstring> header;             // the first row, bold, repeated on each page
    std::vector<std::vector<std::wstring>> rows;  // each as long as the header
    std::vector<int> widths;                      // of the columns, in twentieths of a point
};

// A PNG picture and its size in pixels.
struct WordPicture {
    std::string png;
    int widthPx = 0;
    int heightPx = 0;
};

class WordDocument {
public:
    WordDocument();

    void paragraph(std::wstring_view text, ParagraphStyle style = ParagraphStyle::normal);
    void table(const WordTable& table);
    // PICTURE in a centred paragraph of its own, WIDTHCM wide with its aspect kept. One
    // picture per document (it is the part "word/media/chart.png").
    void picture(WordPicture picture, double widthCm, std::wstring_view name);

    // The package: content types, relationships, styles, the document and the picture.
    std::vector<PackagePart> parts();

private:
    void run(std::wstring_view text, bool bold, const wchar_t* chineseFont);

    XmlWriter body_;
    WordPicture picture_;
    bool hasPicture_ = false;
};

}  // namespace vrn2
