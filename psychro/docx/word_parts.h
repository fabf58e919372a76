// The fixed parts of a Word package around its document: content types, the package's and
// the document's relationships, and the styles the document's paragraphs name.
#pragma once

#include <string>

namespace vrn2 {

inline constexpr char kWordNamespace[] = "http://schemas.openxmlformats.org/wordprocessingml/2006/main";
inline constexpr char kRelationshipsNamespace[] = "http://schemas.openxmlformats.org/officeDocument/2006/relationships";
// The relationship id by which the document names its picture.
inline constexpr wchar_t kPictureRelationship[] = L"rIdPicture";
inline constexpr char kPicturePart[] = "word/media/chart.png";

// Fonts of the runs: Latin text, Chinese text, and Chinese text of titles and headings.
inline constexpr wchar_t kLatinFont[] = L"Times New Roman";
inline constexpr wchar_t kChineseFont[] = L"宋体";
inline constexpr wchar_t kChineseHeadingFont[] = L"黑体";

std::string wordContentTypes();
std::string wordPackageRelationships();
std::string wordDocumentRelationships(bool withPicture);
std::string wordStyles();

}  // namespace vrn2
