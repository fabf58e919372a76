// Selection filter lists: groups an entity must have, with wildcard patterns for strings,
// -4 relational tests (point tests as three comma-separated operators), <AND <OR <XOR <NOT
// groupings and -3 extended-data tests.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "adsdef.h"
#include "host/db/group_values.h"

namespace host::db {

class Database;

class SelectionFilter {
public:
    SelectionFilter();
    ~SelectionFilter();
    SelectionFilter(SelectionFilter&&) noexcept;
    SelectionFilter& operator=(SelectionFilter&&) noexcept;

    // Reads a filter list; 0, or the ERRNO value of the fault (56 to 67). A null list
    // passes everything.
    short compile(const Database& db, const resbuf* filter);
    bool matches(const Database& db, uint32_t index) const;
    bool empty() const;

    struct Node;

private:
    std::vector<std::unique_ptr<Node>> nodes_;  // all must pass
    bool needsData_ = false;
    bool needsXdata_ = false;
};

}  // namespace host::db
