// The ZIP container of an Office Open XML document, put together in memory (libzip), so that
// the file is written in one piece afterwards and a failure leaves nothing half written.
#pragma once

#include <string>
#include <vector>

namespace vrn2 {

struct PackagePart {
    std::string name;   // path inside the package, "/"-separated, e.g. "word/document.xml"
    std::string bytes;  // the part's content
};

// The archive holding PARTS in their order, each compressed, with the modification time
// MTIME (seconds since 1970) so that the same parts give the same bytes. Answers false, with
// ARCHIVE emptied, when the library refuses a part or the archive.
bool zipPackage(const std::vector<PackagePart>& parts, long long mtime, std::string& archive);

}  // namespace vrn2
