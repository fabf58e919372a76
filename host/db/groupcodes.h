// Which member of a resbuf carries the value of each DXF group code. One table for the
// drawing database, the DXF reader and writer, and the conversions to AutoLISP values.
#pragma once

namespace host {

enum class GroupType { None, String, Point, Real, Short, Long, Name, Binary, Handle };

// Group codes and ADS result types (RTxxx) alike. Unknown codes give None.
GroupType groupType(int code);

}  // namespace host
