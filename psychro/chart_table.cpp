#include "psychro/chart_table.h"

#include <cwchar>

namespace vrn2 {
namespace {

// Column widths in text heights: the name, then six numbers.
constexpr double kColumnWidth[kStateTableColumns] = {6.0, 6.0, 6.0, 6.0, 6.0, 7.0, 7.0};
constexpr double kRowHeight = 2.0;
// Characters per column in the viewer's lines.
constexpr int kLineColumn = 10;

std::wstring formatted(const wchar_t* format, double value) {
    wchar_t text[40];
    std::swprintf(text, 40, format, value);
    return text;
}

}  // namespace

bool addChartStatePoint(std::vector<ChartStatePoint>& table, const AirState& state, const std::wstring& name) {
    if (table.size() >= static_cast<size_t>(kMaxChartStatePoints)) return false;
    table.push_back({name.empty() ? std::to_wstring(table.size() + 1) : name, state});
    return true;
}

std::vector<std::wstring> stateTableHeads() {
    return {L"状态点", L"t(℃)", L"ts(℃)", L"d(g/kg)", L"φ(%)", L"i(kJ/kg)", L"v(m³/kg)"};
}

std::vector<std::wstring> stateTableCells(const ChartStatePoint& p) {
    const AirState& s = p.state;
    return {p.name,
            formatted(L"%.2f", s.t),
            formatted(L"%.2f", s.ts),
            formatted(L"%.2f", s.d),
            formatted(L"%.1f", s.fy),
            formatted(L"%.2f", s.i),
            formatted(L"%.3f", s.v)};
}

std::vector<std::wstring> stateTableLines(const std::vector<ChartStatePoint>& table) {
    auto line = [](const std::vector<std::wstring>& cells) {
        std::wstring text;
        for (const std::wstring& cell : cells) {
            text += cell;
            if (cell.size() < static_cast<size_t>(kLineColumn)) text.append(kLineColumn - cell.size(), L' ');
        }
        while (!text.empty() && text.back() == L' ') text.pop_back();
        return text;
    };
    std::vector<std::wstring> lines{line(stateTableHeads())};
    for (const ChartStatePoint& p : table) lines.push_back(line(stateTableCells(p)));
    return lines;
}

TableDrawing layoutStateTable(const std::vector<ChartStatePoint>& table, size_t firstRow, ChartPoint topLeft,
                              double h) {
    TableDrawing out;
    if (firstRow > table.size() || (firstRow == table.size() && firstRow > 0)) return out;
    double width = 0.0;
    for (double w : kColumnWidth) width += w * h;
    const double rowHeight = kRowHeight * h;
    // Text row k (0 the heads, k the k-th point) lies between rules k and k + 1.
    const size_t fromRow = firstRow == 0 ? 0 : firstRow + 1, toRow = table.size() + 1;
    const double upper = topLeft.y - fromRow * rowHeight, lower = topLeft.y - toRow * rowHeight;
    for (size_t r = fromRow == 0 ? 0 : fromRow + 1; r <= toRow; ++r) {
        const double y = topLeft.y - r * rowHeight;
        out.lines.push_back({kLayerStatePoints, {{topLeft.x, y}, {topLeft.x + width, y}}, false});
    }
    double x = topLeft.x;
    for (int c = 0; c <= kStateTableColumns; ++c) {
        out.lines.push_back({kLayerStatePoints, {{x, upper}, {x, lower}}, false});
        if (c < kStateTableColumns) x += kColumnWidth[c] * h;
    }
    auto addRow = [&](size_t r, const std::vector<std::wstring>& cells) {
        double left = topLeft.x;
        const double y = topLeft.y - (r + 0.5) * rowHeight;
        for (int c = 0; c < kStateTableColumns; ++c) {
            const double w = kColumnWidth[c] * h;
            out.texts.push_back({kLayerStatePoints, cells[c], {left + 0.5 * w, y}, 0.8 * h, 0.0, TextAlign::centre});
            left += w;
        }
    };
    if (firstRow == 0) addRow(0, stateTableHeads());
    for (size_t r = firstRow; r < table.size(); ++r) addRow(r + 1, stateTableCells(table[r]));
    return out;
}

ChartPoint stateTableCorner(const ChartFrame& frame, double h) { return {frame.right + 10.0 * h, frame.top}; }

}  // namespace vrn2
