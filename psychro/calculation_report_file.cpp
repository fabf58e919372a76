#include "psychro/calculation_report_file.h"

#include <ctime>
#include <cwchar>
#include <cwctype>

#include "acutads.h"
#include "frame/report.h"
#include "psychro/calculation_report.h"
#include "psychro/chart_state.h"
#include "psychro/docx/whole_file.h"
#include "psychro/docx/zip_package.h"

namespace vrn2 {
namespace {

constexpr wchar_t kMsgNoName[] = L"输入计算书的文件名.";
constexpr wchar_t kMsgBadName[] = L"文件名中不能有 \\ / : * ? \" < > | 等字符.";
constexpr wchar_t kMsgEmptyJournal[] = L"还没有可写入计算书的计算: 先计算并保存结果.";
constexpr wchar_t kMsgNotWritten[] = L"不能写入计算书文件 %ls, 原有文件未改动.";
constexpr wchar_t kMsgNoPicture[] = L"\n焓湿图的图片未能生成, 计算书中不附焓湿图.";
constexpr wchar_t kMsgWritten[] = L"\n计算书已写入文件 %ls (%d 项计算%ls).";
constexpr wchar_t kExtension[] = L".docx";

bool endsWithExtension(const std::wstring& name) {
    const std::size_t n = sizeof kExtension / sizeof kExtension[0] - 1;
    if (name.size() < n) return false;
    for (std::size_t k = 0; k < n; ++k)
        if (static_cast<wchar_t>(std::towlower(name[name.size() - n + k])) != kExtension[k]) return false;
    return true;
}

std::wstring today() {
    std::time_t now = std::time(nullptr);
    const std::tm* local = std::localtime(&now);
    if (!local) return L"";
    return std::to_wstring(local->tm_year + 1900) + L"年" + std::to_wstring(local->tm_mon + 1) + L"月" +
           std::to_wstring(local->tm_mday) + L"日";
}

// The chart of the current drawing, drawn again from its request, with the journal's states.
bool chartPicture(const std::vector<JournalEntry>& entries, WordPicture& picture, double& pressure) {
    if (!idChart().drawn) return false;
    const DrawnChart& drawn = drawnChart();
    pressure = drawn.request.B;
    if (paintChartPicture(buildIdChart(drawn.request), reportChartMarks(entries), picture)) return true;
    acutPrintf(kMsgNoPicture);
    return false;
}

void alertNotWritten(const std::wstring& name) {
    wchar_t text[512];
    std::swprintf(text, 512, kMsgNotWritten, name.c_str());
    report({Channel::Alert, text});
}

}  // namespace

std::wstring reportFileName(const std::wstring& typed, const wchar_t*& fault) {
    fault = nullptr;
    const std::size_t first = typed.find_first_not_of(L" \t");
    if (first == std::wstring::npos) {
        fault = kMsgNoName;
        return L"";
    }
    std::wstring name = typed.substr(first, typed.find_last_not_of(L" \t") - first + 1);
    for (wchar_t c : name)
        if (c < 0x20 || std::wcschr(L"\\/:*?\"<>|", c)) {
            fault = kMsgBadName;
            return L"";
        }
    if (!endsWithExtension(name)) name += kExtension;
    return name;
}

bool writeCalculationReport(const std::wstring& name) {
    const std::vector<JournalEntry>& entries = calculationJournal();
    if (entries.empty()) {
        report({Channel::Alert, kMsgEmptyJournal});
        return false;
    }
    WordPicture picture;
    double pressure = 0.0;
    const bool withChart = chartPicture(entries, picture, pressure);
    const std::time_t now = std::time(nullptr);
    std::string bytes;
    if (!zipPackage(calculationReportParts(entries, today(), withChart ? &picture : nullptr, pressure), now, bytes) ||
        !writeWholeFile(name, bytes)) {
        alertNotWritten(name);
        return false;
    }
    acutPrintf(kMsgWritten, name.c_str(), static_cast<int>(entries.size()), withChart ? L", 附焓湿图" : L"");
    return true;
}

}  // namespace vrn2
