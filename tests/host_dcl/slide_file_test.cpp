// Slide files read for image tiles: every kind of vector record, the byte order the test
// number gives, files that are not slides, and the fit into a tile with y turned downwards.
#include <gtest/gtest.h>

#include <array>
#include <string>

#include "host/dcl/slide_file.h"

namespace {

using host::dcl::Slide;

std::string header(bool bigEndian) {
    std::string h("AutoCAD Slide\r\n\x1a", 17);
    h += '\x56';
    h += '\x02';
    auto word = [&](int v) {
        if (bigEndian) h += static_cast<char>(v >> 8), h += static_cast<char>(v & 0xFF);
        else h += static_cast<char>(v & 0xFF), h += static_cast<char>(v >> 8);
    };
    word(99);                    // highest x dot
    word(49);                    // highest y dot
    h += std::string("\x80\x96\x98\x00", 4);  // aspect 2.0 × 10^7, low byte first always
    word(0);                     // hardware fill
    word(0x1234);                // test number
    return h;
}

std::string words(bool bigEndian, std::initializer_list<int> values) {
    std::string out;
    for (int v : values) {
        if (bigEndian) out += static_cast<char>(v >> 8), out += static_cast<char>(v & 0xFF);
        else out += static_cast<char>(v & 0xFF), out += static_cast<char>(v >> 8);
    }
    return out;
}

TEST(SlideFile, ReadsEveryKindOfVectorInEitherByteOrder) {
    for (bool big : {false, true}) {
        std::string bytes = header(big);
        bytes += words(big, {0xFF03, 10, 20, 30, 40});  // colour 3, then a full vector
        bytes += words(big, {0xFB00 | 0x05});            // offset vector from (10, 20): from x +5, ...
        bytes += std::string("\xFE\x02\x03", 3);          // ... from y -2, to x +2, to y +3
        bytes += words(big, {0xFE00 | 0xFC});            // common end from (15, 18): to x -4, ...
        bytes += std::string("\x06", 1);                  // ... to y +6
        bytes += words(big, {0xFC00});
        Slide slide;
        std::wstring problem;
        ASSERT_TRUE(host::dcl::parseSlide(bytes, slide, problem));
        EXPECT_EQ(slide.highX, 99);
        EXPECT_EQ(slide.highY, 49);
        ASSERT_EQ(slide.vectors.size(), 3u);
        const auto& v = slide.vectors;
        EXPECT_EQ((std::array<int, 5>{v[0].x1, v[0].y1, v[0].x2, v[0].y2, v[0].color}),
                  (std::array<int, 5>{10, 20, 30, 40, 3}));
        EXPECT_EQ((std::array<int, 4>{v[1].x1, v[1].y1, v[1].x2, v[1].y2}), (std::array<int, 4>{15, 18, 12, 23}));
        EXPECT_EQ((std::array<int, 4>{v[2].x1, v[2].y1, v[2].x2, v[2].y2}), (std::array<int, 4>{15, 18, 11, 24}));
    }
}

TEST(SlideFile, RefusesWhatIsNoSlide) {
    Slide slide;
    std::wstring problem;
    EXPECT_FALSE(host::dcl::parseSlide("AutoCAD Slide Library 1.0", slide, problem));
    EXPECT_FALSE(host::dcl::parseSlide(header(false) + words(false, {1, 2}), slide, problem));  // no end
    EXPECT_FALSE(host::dcl::parseSlide(header(false) + words(false, {0x9000}), slide, problem));
    EXPECT_EQ(host::dcl::slideFilePath(L"C:\\suite\\dwglib\\formula").generic_string(), "C:/suite/dwglib/formula.sld");
    EXPECT_EQ(host::dcl::slideFilePath(L"x/y.sld").generic_string(), "x/y.sld");
}

TEST(SlideFile, FitsIntoTheTileKeepingItsShape) {
    Slide slide;
    slide.highX = 99;
    slide.highY = 49;
    slide.vectors = {{0, 0, 99, 49, 7}};
    // A tile twice as high as the slide's shape: the slide is 200 wide, 100 high, centred.
    const auto fitted = host::dcl::fitSlide(slide, 0, 0, 200, 200);
    ASSERT_EQ(fitted.size(), 1u);
    EXPECT_EQ(fitted[0].x1, 0);
    EXPECT_EQ(fitted[0].y1, 50 + 98);  // the slide's bottom is the image's lower edge
    EXPECT_EQ(fitted[0].x2, 198);
    EXPECT_EQ(fitted[0].y2, 50);
}

}  // namespace
