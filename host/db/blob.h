// Compact storage of one record's groups, as the DXF file holds them. Each group is its code
// (two bytes), the length of its value text (one byte, or 0xFF and four bytes) and the value
// text exactly as read, in the drawing's code page. A drawing that is not changed is written
// back from these bytes unchanged.
#pragma once

#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

namespace host::db {

struct RawGroup {
    int code = 0;
    std::string_view value;
};

inline void appendGroup(std::string& blob, int code, std::string_view value) {
    auto c = static_cast<uint16_t>(static_cast<int16_t>(code));
    blob += static_cast<char>(c & 0xFF);
    blob += static_cast<char>(c >> 8);
    if (value.size() < 0xFF) {
        blob += static_cast<char>(value.size());
    } else {
        blob += static_cast<char>(0xFF);
        auto n = static_cast<uint32_t>(value.size());
        char len[4];
        std::memcpy(len, &n, 4);
        blob.append(len, 4);
    }
    blob.append(value);
}

// Walks the groups of a blob in order.
class BlobCursor {
public:
    explicit BlobCursor(std::string_view blob) : p_(blob.data()), end_(blob.data() + blob.size()) {}
    bool next(RawGroup& g) {
        if (p_ >= end_) return false;
        auto lo = static_cast<unsigned char>(p_[0]);
        auto hi = static_cast<unsigned char>(p_[1]);
        g.code = static_cast<int16_t>(static_cast<uint16_t>(lo | (hi << 8)));
        size_t len = static_cast<unsigned char>(p_[2]);
        p_ += 3;
        if (len == 0xFF) {
            uint32_t n;
            std::memcpy(&n, p_, 4);
            len = n;
            p_ += 4;
        }
        g.value = std::string_view(p_, len);
        p_ += len;
        return true;
    }
    // Offset of the next group from the start of the blob.
    const char* position() const { return p_; }

private:
    const char* p_;
    const char* end_;
};

// The value of the first group with the code, or nullptr-data view when there is none.
inline bool findGroup(std::string_view blob, int code, std::string_view& value) {
    BlobCursor c(blob);
    RawGroup g;
    while (c.next(g)) {
        if (g.code == code) {
            value = g.value;
            return true;
        }
        if (g.code == 1001) break;  // extended data follows: not the entity's own groups
    }
    return false;
}

}  // namespace host::db
