#include "psychro/process_report.h"

#include "frame/text_format.h"

namespace vrn2 {
namespace {

constexpr wchar_t kInfinity[] = L"∞";

JournalQuantity quantity(const wchar_t* name, const wchar_t* unit, double value) {
    JournalQuantity q;
    q.name = name;
    q.unit = unit;
    q.value = value;
    return q;
}

JournalQuantity textQuantity(const wchar_t* name, const wchar_t* unit, const wchar_t* text) {
    JournalQuantity q = quantity(name, unit, 0.0);
    q.text = text;
    return q;
}

// The five quantities a designer reads off a state, prefixed with WHOSE, e.g. L"终点".
void addState(std::vector<JournalQuantity>& out, const std::wstring& whose, const AirState& s) {
    const struct {
        const wchar_t* name;
        const wchar_t* unit;
        double value;
    } rows[] = {{L"干球温度", L"℃", s.t},  {L"含湿量", L"g/kg", s.d}, {L"相对湿度", L"%", s.fy},
                {L"焓值", L"kJ/kg", s.i}, {L"湿球温度", L"℃", s.ts}};
    for (const auto& row : rows) out.push_back(quantity((whose + row.name).c_str(), row.unit, row.value));
}

// Labels are padded to one column of the file as a fixed-width font shows it, where a Chinese
// character (and ℃) takes two places.
constexpr int kLabelColumns = 28;

std::wstring paddedLabel(const JournalQuantity& q) {
    std::wstring label = q.name + (q.unit.empty() ? L"" : L"(" + q.unit + L")");
    int width = 0;
    for (wchar_t c : label) width += c >= 0x1100 ? 2 : 1;
    if (width < kLabelColumns) label.append(static_cast<size_t>(kLabelColumns - width), L' ');
    return label;
}

void putRows(std::wstring& out, const std::vector<JournalQuantity>& rows) {
    for (const JournalQuantity& q : rows) {
        const std::wstring label = paddedLabel(q);
        if (!q.text.empty())
            appendFormat(out, L"\n         %ls:   %ls", label.c_str(), q.text.c_str());
        else
            appendFormat(out, L"\n         %ls:   %.*lf", label.c_str(), q.decimals, q.value);
    }
}

}  // namespace

std::vector<JournalQuantity> processInputQuantities(const ProcessInput& in) {
    std::vector<JournalQuantity> out;
    out.push_back(textQuantity(L"处理过程", L"", processKindName(in.kind)));
    addState(out, L"初始", in.start);
    const bool byMoisture = in.given == EndGiven::moisture;
    switch (in.kind) {
        case ProcessKind::heating:
        case ProcessKind::cooling: out.push_back(quantity(L"终点干球温度", L"℃", in.endT)); break;
        case ProcessKind::dehumidifying:
            out.push_back(quantity(L"终点干球温度", L"℃", in.endT));
            out.push_back(byMoisture ? quantity(L"终点含湿量", L"g/kg", in.endD)
                                     : quantity(L"终点相对湿度", L"%", in.endFy));
            break;
        case ProcessKind::dewPoint:
            out.push_back(quantity(L"机器露点温度", L"℃", in.dewPointT));
            out.push_back(quantity(L"终点相对湿度", L"%", in.endFy));
            break;
        case ProcessKind::adiabatic:
        case ProcessKind::steam:
            out.push_back(byMoisture ? quantity(L"终点含湿量", L"g/kg", in.endD)
                                     : quantity(L"终点相对湿度", L"%", in.endFy));
            break;
        case ProcessKind::ratio:
            out.push_back(quantity(L"热湿比ε", L"kJ/kg", in.epsilon));
            out.push_back(byMoisture ? quantity(L"终点含湿量", L"g/kg", in.endD)
                                     : quantity(L"终点干球温度", L"℃", in.endT));
            break;
        case ProcessKind::mixing:
            addState(out, L"第二股空气", in.second);
            out.push_back(quantity(L"第二股空气流量", L"kg/h", in.G2));
            break;
    }
    out.push_back(quantity(L"空气流量", L"kg/h", in.G));
    return out;
}

std::vector<JournalQuantity> processResultQuantities(const ProcessInput& in, const ProcessResult& r) {
    std::vector<JournalQuantity> out;
    addState(out, L"终点", r.end);
    if (in.kind == ProcessKind::mixing) {
        out.push_back(quantity(L"混合后空气流量", L"kg/h", r.G));
    } else {
        out.push_back(quantity(L"热量Q", L"kW", r.Q));
        out.push_back(quantity(L"湿量W", L"kg/h", r.W));
    }
    out.push_back(r.epsilonInfinite ? textQuantity(L"热湿比ε", L"kJ/kg", kInfinity)
                                    : quantity(L"热湿比ε", L"kJ/kg", r.epsilon));
    if (in.kind == ProcessKind::dewPoint) {
        out.push_back(quantity(L"机器露点含湿量", L"g/kg", r.dewPoint.d));
        out.push_back(quantity(L"接触系数", L"", r.contactFactor));
    }
    return out;
}

std::wstring processResultBlock(const ProcessInput& in, const ProcessResult& r, const ProcessLabels& labels) {
    std::wstring out;
    appendFormat(out, L"\n__________________________________________\n\n(B=%.3lfkPa)", in.start.B);
    appendFormat(out, L"\n 空气处理过程: %ls (%ls→%ls)", processKindName(in.kind), labels.start.c_str(),
                 labels.end.c_str());
    out += L"\n 输入参数:";
    putRows(out, processInputQuantities(in));
    out += L"\n 计算结果:";
    putRows(out, processResultQuantities(in, r));
    return out;
}

JournalEntry processJournalEntry(const ProcessInput& in, const ProcessResult& r, const ProcessLabels& labels) {
    JournalEntry entry;
    entry.kind = JournalKind::process;
    entry.title = processKindName(in.kind);
    entry.B = in.start.B;
    entry.inputs = processInputQuantities(in);
    entry.results = processResultQuantities(in, r);
    entry.states.push_back({labels.start, L"初始状态点", r.start});
    entry.states.push_back({labels.end, L"终状态点", r.end});
    if (in.kind == ProcessKind::mixing) entry.states.push_back({labels.third, L"第二股空气状态点", in.second});
    if (in.kind == ProcessKind::dewPoint) entry.states.push_back({labels.third, L"机器露点", r.dewPoint});
    return entry;
}

ProcessDrawing processDrawing(const ProcessInput& in, const ProcessResult& r, const ProcessLabels& labels) {
    ProcessDrawing drawing;
    drawing.states.push_back({labels.start, r.start.i, r.start.d});
    drawing.states.push_back({labels.end, r.end.i, r.end.d});
    if (in.kind == ProcessKind::mixing) {
        drawing.states.push_back({labels.third, in.second.i, in.second.d});
        drawing.legs.push_back({0, 2, true});
        return drawing;
    }
    drawing.legs.push_back({0, 1, false});
    if (in.kind == ProcessKind::dewPoint && r.contactFactor < 1.0) {
        drawing.states.push_back({labels.third, r.dewPoint.i, r.dewPoint.d});
        drawing.legs.push_back({1, 2, true});
    }
    return drawing;
}

}  // namespace vrn2
