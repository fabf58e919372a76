// The auxiliary grid's parameters: the data file "t-fzzb.dat" (eight numbers, two switches),
// the limits applied whenever it is read, and the mappings between values and dialog tiles.
#pragma once

#include <array>
#include <string>

namespace vrn2::drawing {

inline constexpr wchar_t kGridFileName[] = L"datlib\\t-fzzb.dat";
inline constexpr int kGridFieldCount = 8;
// Longest line the reader takes, terminator included; the rest of a longer line is read as the
// next line.
inline constexpr std::size_t kGridLineBuffer = 1000;

struct GridParameters {
    // First family: start, end, spacing, angle in degrees; second family likewise.
    std::array<double, kGridFieldCount> values{};
    short centreLines = 0;  // 0 = draw them
    short labels = 0;       // 0 = draw them

    double p1() const { return values[0]; }
    double p2() const { return values[1]; }
    double spacing1() const { return values[2]; }
    double angle1() const { return values[3]; }
    double q1() const { return values[4]; }
    double q2() const { return values[5]; }
    double spacing2() const { return values[6]; }
    double angle2() const { return values[7]; }
};

// FIELD (0..7) holds a length (start, end, spacing) rather than an angle.
bool isGridLength(int field);

// VALUE for FIELD with the read limits applied: spacings at least 0.5, the first angle within
// −90…90, the second within 0…180; starts and ends unchanged.
double limitGridValue(int field, double value);

// The parameters in the file's text: lines as a C line reader takes them, numbers by decimal
// conversion (a text that is not a number reads as 0), switches by integer conversion, the
// limits applied. Missing lines read as 0.
GridParameters parseGridFile(const std::string& text);

// The file's text from the eight edit-tile texts and the two switches: "%s\n" for each text,
// "%2d\n" and "%2d" for the switches, so the file ends without a line break.
std::string gridFileText(const std::array<std::string, kGridFieldCount>& editTexts, int centreLines, int labels);

// Tile texts: an edit tile shows the value with two decimals; its slider the value × 10 for
// lengths and the value itself for angles, rounded and kept within the slider's range.
std::string gridEditText(double value);
int gridSliderValue(int field, double value);
double gridValueFromSlider(int field, int sliderValue);
int gridSliderMinimum(int field);
int gridSliderMaximum(int field);

}  // namespace vrn2::drawing
