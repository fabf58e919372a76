// The selection sets open in one drawing: at most 128 at a time, as the editor allows.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <unordered_set>
#include <vector>

namespace host::db {

class SelectionSets {
public:
    static constexpr size_t kMaxOpen = 128;

    struct Set {
        std::vector<uint32_t> members;  // record indices in the order they were added
        std::unordered_set<uint32_t> index;
        bool add(uint32_t member);      // false when it was a member already
        bool remove(uint32_t member);   // false when it was not a member
        bool contains(uint32_t member) const { return index.count(member) != 0; }
    };

    // A new empty set; 0 when 128 sets are open.
    long create();
    Set* find(long id);
    bool release(long id);
    size_t openCount() const { return sets_.size(); }

    // The members of the last set a selection made ("P" selects them again).
    std::vector<uint32_t> previous;

private:
    std::map<long, Set> sets_;
    long next_ = 1;
};

}  // namespace host::db
