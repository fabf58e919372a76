// Rules of extended data: registered application names, the codes allowed, balanced braces,
// the length of strings and binary chunks, and the room each entity has (16383 bytes).
#pragma once

#include "host/db/entity_lists.h"

namespace host::db {

constexpr long kXdataRoom = 16383;
constexpr size_t kXdataStringMax = 255;  // characters of a 1000 string
constexpr size_t kXdataBinaryMax = 127;  // bytes of a 1004 chunk

// Checks the blocks of an extended-data list and gives each application the spelling it was
// registered with. 0 when sound, else the ERRNO value.
short checkXdata(const Database& db, std::vector<XdataBlock>& blocks);
// The same for one application's block, its name left as given; REGISTERED skips looking the
// application up.
short checkXdataBlock(const Database& db, const XdataBlock& block, bool registered = false);

// Bytes the blocks take on an entity: per application 3 (its reference and size); per
// group 1 for the code and then 2 and one per character for text (1000, 1003), 1 for a
// brace, 1 and the bytes for a binary chunk, 8 for a handle, 24 for a point, 8 for a real,
// 2 for a 16-bit and 4 for a 32-bit integer.
long xdataSize(const std::vector<XdataBlock>& blocks);

}  // namespace host::db
