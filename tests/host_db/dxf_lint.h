// Checks a DXF text for the faults other readers refuse a drawing for, which ezdxf's audit
// does not report: extended data of applications missing from APPID, handles used twice or
// not below $HANDSEED, owners that name nothing, inserts of blocks that do not exist, and
// polylines whose vertex count is not the first group of their subclass.
#pragma once

#include <string>
#include <vector>

namespace dbtest {

// The faults found, one line each; empty for a sound drawing.
std::vector<std::string> lintDxf(const std::string& text);

}  // namespace dbtest
