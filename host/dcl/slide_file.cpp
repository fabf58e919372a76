#include "host/dcl/slide_file.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "host/text.h"

namespace host::dcl {
namespace {

constexpr char kIdentifier[] = "AutoCAD Slide\r\n\x1a";  // and its NUL: 17 bytes
constexpr size_t kHeaderBytes = 31;

class Reader {
public:
    Reader(const std::string& bytes, size_t at, bool swap) : bytes_(bytes), at_(at), swap_(swap) {}
    bool has(size_t n) const { return at_ + n <= bytes_.size(); }
    int word() {
        unsigned lo = static_cast<unsigned char>(bytes_[at_]), hi = static_cast<unsigned char>(bytes_[at_ + 1]);
        at_ += 2;
        return static_cast<int>(swap_ ? (lo << 8) | hi : (hi << 8) | lo);
    }
    int signedByte() { return static_cast<std::int8_t>(bytes_[at_++]); }

private:
    const std::string& bytes_;
    size_t at_;
    bool swap_;
};

int word(const std::string& b, size_t at) {
    return static_cast<unsigned char>(b[at]) | (static_cast<unsigned char>(b[at + 1]) << 8);
}

}  // namespace

bool parseSlide(const std::string& bytes, Slide& slide, std::wstring& problem) {
    if (bytes.size() < kHeaderBytes || bytes.compare(0, 17, std::string(kIdentifier, 17)) != 0) {
        problem = L"not a slide file";
        return false;
    }
    if (static_cast<unsigned char>(bytes[17]) != 0x56 || bytes[18] != 2) {
        problem = L"not a new-format slide";
        return false;
    }
    const bool swap = word(bytes, 29) != 0x1234;  // the test number tells the byte order
    Reader in(bytes, 19, swap);
    slide = Slide{};
    slide.highX = in.word();
    slide.highY = in.word();
    Reader records(bytes, kHeaderBytes, swap);
    short color = 7;
    // The saved point: the start of a full or offset vector, the end of a common-end vector.
    int px = 0, py = 0;
    SlideVector v;
    while (records.has(2)) {
        const int w = records.word();
        const int kind = w >> 8;
        if (kind < 0x80) {
            if (!records.has(6)) break;
            v = {w, records.word(), records.word(), records.word(), color};
            px = v.x1, py = v.y1;
        } else if (kind == 0xFB) {
            if (!records.has(3)) break;
            const int dx1 = static_cast<std::int8_t>(w & 0xFF), dy1 = records.signedByte();
            const int dx2 = records.signedByte(), dy2 = records.signedByte();
            v = {px + dx1, py + dy1, px + dx2, py + dy2, color};
            px = v.x1, py = v.y1;
        } else if (kind == 0xFC) {
            return true;
        } else if (kind == 0xFD) {
            if (!records.has(4)) break;
            int count = records.word();
            records.word();
            for (; count > 0 && records.has(4); --count) records.word(), records.word();
            continue;  // fills are not vectors
        } else if (kind == 0xFE) {
            if (!records.has(1)) break;
            const int dx = static_cast<std::int8_t>(w & 0xFF), dy = records.signedByte();
            v = {px, py, px + dx, py + dy, color};
            px = v.x2, py = v.y2;
        } else if (kind == 0xFF) {
            color = static_cast<short>(w & 0xFF);
            continue;
        } else {
            problem = L"unknown slide record";
            return false;
        }
        slide.vectors.push_back(v);
    }
    problem = L"slide file ends without its end record";
    return false;
}

std::filesystem::path slideFilePath(const std::wstring& name) {
    std::wstring path = name;
    std::replace(path.begin(), path.end(), L'\\', L'/');
    std::filesystem::path file(toUtf8(path));
    if (!file.has_extension()) file += ".sld";
    return file;
}

std::vector<SlideVector> fitSlide(const Slide& slide, int x, int y, int width, int height) {
    const double sx = static_cast<double>(width) / (slide.highX + 1);
    const double sy = static_cast<double>(height) / (slide.highY + 1);
    const double scale = std::min(sx, sy);
    const double left = x + (width - (slide.highX + 1) * scale) / 2;
    const double top = y + (height - (slide.highY + 1) * scale) / 2;
    auto px = [&](int v) { return static_cast<int>(std::lround(left + v * scale)); };
    auto py = [&](int v) { return static_cast<int>(std::lround(top + (slide.highY - v) * scale)); };
    std::vector<SlideVector> fitted;
    for (const SlideVector& v : slide.vectors) fitted.push_back({px(v.x1), py(v.y1), px(v.x2), py(v.y2), v.color});
    return fitted;
}

}  // namespace host::dcl
