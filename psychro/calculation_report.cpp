#include "psychro/calculation_report.h"

#include <cmath>
#include <cwchar>

#include "psychro/docx/word_document.h"

namespace vrn2 {
namespace {

constexpr wchar_t kReportTitle[] = L"空气调节计算书";
constexpr double kChartWidthCm = 15.0;
// Column widths in twentieths of a point; the page holds about 9400.
const std::vector<int> kQuantityColumns = {4000, 2400, 1800};
const std::vector<int> kStateColumns = {1100, 2000, 1500, 1500, 1500, 1500};

WordTable quantityTable(const std::vector<JournalQuantity>& quantities) {
    WordTable table{{L"参数", L"数值", L"单位"}, {}, kQuantityColumns};
    for (const JournalQuantity& q : quantities)
        table.rows.push_back({q.name, q.text.empty() ? reportNumber(q.value, q.decimals) : q.text, q.unit});
    return table;
}

WordTable stateTable(const std::vector<JournalState>& states, int entryNumber) {
    WordTable table{{L"状态点", L"名称", L"干球温度 t (℃)", L"含湿量 d (g/kg)", L"相对湿度 φ (%)", L"焓 i (kJ/kg)"},
                    {},
                    kStateColumns};
    for (const JournalState& s : states)
        table.rows.push_back({reportStateMark(s.label, entryNumber), s.name, reportNumber(s.state.t, 3),
                              reportNumber(s.state.d, 3), reportNumber(s.state.fy, 3), reportNumber(s.state.i, 3)});
    return table;
}

void writeEntry(WordDocument& doc, const JournalEntry& entry, int number) {
    doc.paragraph(std::to_wstring(number) + L". " + entry.title, ParagraphStyle::heading1);
    doc.paragraph(L"大气压力 B = " + reportNumber(entry.B, 3) + L" kPa");
    doc.paragraph(L"输入参数", ParagraphStyle::heading2);
    doc.table(quantityTable(entry.inputs));
    doc.paragraph(L"计算结果", ParagraphStyle::heading2);
    doc.table(quantityTable(entry.results));
    if (entry.states.empty()) return;
    doc.paragraph(L"状态点", ParagraphStyle::heading2);
    doc.table(stateTable(entry.states, number));
}

// One pressure for the whole report when every calculation used it.
std::wstring pressureLine(const std::vector<JournalEntry>& entries) {
    for (const JournalEntry& e : entries)
        if (std::fabs(e.B - entries.front().B) > 5e-4) return L"大气压力: 各项计算的大气压力不同, 见各项的输入参数.";
    return L"大气压力: B = " + reportNumber(entries.front().B, 3) + L" kPa";
}

void writeChart(WordDocument& doc, const std::vector<JournalEntry>& entries, const WordPicture* chart, double B) {
    doc.paragraph(L"焓湿图", ParagraphStyle::heading1);
    if (!chart) {
        doc.paragraph(L"当前图形中没有绘制焓湿图, 本计算书不附焓湿图.");
        return;
    }
    doc.picture(*chart, kChartWidthCm, L"焓湿图");
    doc.paragraph(L"图 焓湿图 (B = " + reportNumber(B, 3) + L" kPa) 与各项计算的状态点", ParagraphStyle::caption);
    std::wstring legend = L"图中红点为各项计算的状态点, 标记后的数字为计算的序号:";
    int number = 0;
    for (const JournalEntry& e : entries) {
        ++number;
        for (const JournalState& s : e.states) legend += L" " + reportStateMark(s.label, number) + L" " + s.name + L";";
    }
    if (!legend.empty() && legend.back() == L';') legend.back() = L'.';
    doc.paragraph(legend);
}

}  // namespace

std::wstring reportStateMark(const std::wstring& label, int entryNumber) {
    const bool endsInDigit = !label.empty() && label.back() >= L'0' && label.back() <= L'9';
    return label + (endsInDigit ? L"-" : L"") + std::to_wstring(entryNumber);
}

std::vector<ChartPictureMark> reportChartMarks(const std::vector<JournalEntry>& entries) {
    std::vector<ChartPictureMark> marks;
    int number = 0;
    for (const JournalEntry& e : entries) {
        ++number;
        for (const JournalState& s : e.states) marks.push_back({reportStateMark(s.label, number), s.state.i, s.state.d});
    }
    return marks;
}

std::wstring reportNumber(double value, int decimals) {
    if (!std::isfinite(value)) return L"—";
    wchar_t pattern[16];
    std::swprintf(pattern, 16, L"%%.%df", decimals < 0 ? 0 : decimals > 9 ? 9 : decimals);
    wchar_t printed[400];  // the largest double in fixed notation has 309 digits
    if (std::swprintf(printed, 400, pattern, value) < 0) return L"—";
    std::wstring text = printed;
    // A value that rounds to zero is shown without a sign.
    if (text[0] == L'-' && text.find_first_not_of(L"-0.") == std::wstring::npos) text.erase(0, 1);
    return text;
}

std::vector<PackagePart> calculationReportParts(const std::vector<JournalEntry>& entries, const std::wstring& date,
                                                const WordPicture* chart, double chartPressure) {
    WordDocument doc;
    doc.paragraph(kReportTitle, ParagraphStyle::title);
    doc.paragraph(L"计算日期: " + date);
    if (!entries.empty()) doc.paragraph(pressureLine(entries));
    doc.paragraph(L"本计算书共 " + std::to_wstring(entries.size()) + L" 项计算, 按计算的先后排列.");
    int number = 0;
    for (const JournalEntry& entry : entries) writeEntry(doc, entry, ++number);
    writeChart(doc, entries, chart, chartPressure);
    return doc.parts();
}

}  // namespace vrn2
