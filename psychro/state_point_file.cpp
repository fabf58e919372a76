#include "psychro/state_point_file.h"

#include "frame/result_file.h"
#include "frame/text_format.h"
#include "psychro/state_point_choices.h"

namespace vrn2 {
namespace {

constexpr wchar_t kTitle[] = L"\n          空气状态与处理过程计算结果 \n";
constexpr wchar_t kMsgCannotCreate[] = L"不能创建存放结果的文件.";
constexpr wchar_t kSeparator[] = L"\n________________________________________________\n";
constexpr wchar_t kPressureLine[] = L"\n                  (大气压B=%.3lf kPa )\n";
constexpr wchar_t kRow[] = L"               %ls   %.3lf\n";
// Choice 1 writes its pressure line and rows one blank further left.
constexpr wchar_t kPressureLineChoice1[] = L"\n                 (大气压B=%.3lf kPa )\n";
constexpr wchar_t kRowChoice1[] = L"              %ls   %.3lf\n";

// Known quantities, indexed by choice; entry 0 heads a state picked on the chart.
constexpr const wchar_t* kKnownLines[kChoiceCount + 1] = {
    L"\n           选取点求状态参数.结果如下:\n",
    L"\n          已知IH=%.2lf(kJ/kg),D=%.2lf(g/kg),求其它参数:\n",
    L"\n           已知T=%.2lf℃,FY=%.2lf(%%),求其它参数:\n",
    L"\n           已知T=%.2lf℃,TS=%.2lf℃,求其它参数:\n",
    L"\n           已知T=%.2lf℃,D=%.2lf(g/kg),求其它参数:\n",
    L"\n           已知IH=%.2lf(kJ/kg),求TS :\n",
    L"\n           已知T=%.2lf℃,TL=%.2lf℃,求其它参数:\n",
    L"\n           已知FY=%.2lf(%%),D=%.2lf(g/kg),求其它参数:\n",
    L"\n           已知FY=%.2lf(%%),DB=%.2lf(g/kg),求其它参数:\n",
    L"\n           已知DB=%.2lf(g/kg),TL=%.2lf℃,求其它参数:\n",
};

struct RowQuantity {
    StateField field;
    const wchar_t* label;
};
constexpr RowQuantity kRowQuantities[5] = {
    {StateField::t, L"   干球温度T ℃ :"},   {StateField::ts, L"   湿球温度TS ℃:"},
    {StateField::d, L"   含湿量D(g/kg):"}, {StateField::fy, L"   相对湿度FY(%):"},
    {StateField::i, L"   焓值IH(kJ/kg):"},
};

void addRow(StatePointBlock& block, const RowQuantity& q, const AirState& state) {
    block.rows[block.rowCount++] = {q.label, fieldOf(state, q.field)};
}

}  // namespace

StatePointBlock statePointBlock(int choice, const AirState& state) {
    StatePointBlock block{};
    const StatePointChoice* given = statePointChoice(choice);
    bool first = choice == 1;
    block.pressureFormat = first ? kPressureLineChoice1 : kPressureLine;
    block.pressure = state.B;
    block.knownFormat = kKnownLines[given ? choice : kChoicePickedPoint];
    block.rowFormat = first ? kRowChoice1 : kRow;
    if (given)
        for (int k = 0; k < given->inputCount; ++k)
            block.known[block.knownCount++] = fieldOf(state, given->inputs[k].field);

    if (choice == kChoiceWetBulbOnly) {
        addRow(block, kRowQuantities[1], state);
        return block;
    }
    for (const RowQuantity& q : kRowQuantities) {
        bool isGiven = false;
        if (given)
            for (int k = 0; k < given->inputCount; ++k) isGiven = isGiven || given->inputs[k].field == q.field;
        if (!isGiven) addRow(block, q, state);
    }
    return block;
}

std::wstring statePointText(const StatePointBlock& block) {
    std::wstring text = kSeparator;
    appendFormat(text, block.pressureFormat, block.pressure);
    appendFormat(text, block.knownFormat, block.known[0], block.known[1]);
    for (int r = 0; r < block.rowCount; ++r)
        appendFormat(text, block.rowFormat, block.rows[r].label, block.rows[r].value);
    return text;
}

bool appendStatePointBlock(const wchar_t* fileName, const StatePointBlock& block) {
    return appendResultBlock(fileName, kTitle, statePointText(block), {Channel::Alert, kMsgCannotCreate});
}

}  // namespace vrn2
