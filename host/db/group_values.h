// Groups with their values read: the form in which the entity functions, the selection
// filters and the host commands see a record. A point is one group (its Y and Z lines of the
// file folded in), a handle reference holds the handle it designates, text is decoded from
// the drawing's code page. Each group remembers the file's text of its value, so that a group
// whose value did not change is written back exactly as it was read.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "host/db/groupcodes.h"

namespace host::db {

class Database;

struct Group {
    int code = 0;
    GroupType type = GroupType::None;  // None: a code the host does not know, held as text
    std::wstring text;                 // String, Handle, None
    double real = 0.0;                 // Real
    double point[3] = {0.0, 0.0, 0.0}; // Point
    int dims = 3;                      // coordinates of a point in the file: 2 for plan points
    long long integer = 0;             // Short, Long
    uint64_t ref = 0;                  // Name: the handle designated (0: none)
    std::string binary;                // Binary: the bytes
    std::string_view raw[3];           // the file's text of the value (a point's X, Y, Z)
    bool hasRaw = false;

    bool sameValue(const Group& other) const;
};

using GroupList = std::vector<Group>;

// Reads a record's groups: its own data, and from the first 1001 group its extended data
// (into xdata, or dropped when xdata is null). The raw views point into blob.
void decodeGroups(const Database& db, std::string_view blob, GroupList& data, GroupList* xdata);
// Writes groups back; a group with hasRaw is written from its raw text.
void encodeGroups(const Database& db, const GroupList& groups, std::string& blob);
void encodeGroup(const Database& db, const Group& g, std::string& blob);

// Constructors of groups with new values.
Group stringGroup(int code, std::wstring text);
Group realGroup(int code, double v);
Group intGroup(int code, long long v);
Group pointGroup(int code, const double p[3], int dims = 3);
Group refGroup(int code, uint64_t handle);

// Point groups of the file: X codes whose Y and Z follow at +10 and +20.
bool isPointCode(int code);
// Text of a real as the host writes it: shortest form that reads back exactly, with ".0"
// added to whole numbers.
std::string realText(double v);

// Angles are degrees in the file and radians in entity lists (ARC start and end, TEXT and
// INSERT rotation, oblique angles, STYLE oblique ...). These convert a record's groups of the
// given type between the two; a group that keeps its file text is written from that text.
bool isAngleGroup(std::string_view type, int code);
void toListForm(std::string_view type, GroupList& groups);
void toFileForm(std::string_view type, GroupList& groups);

// The first group with the code, or null.
const Group* findCode(const GroupList& groups, int code);
Group* findCode(GroupList& groups, int code);

}  // namespace host::db
