#include "coil/record_inputs.h"

#include <cmath>
#include <cwchar>
#include <cwctype>

namespace vrn2 {
namespace {

bool blank(const std::wstring& text) {
    for (wchar_t c : text)
        if (!std::iswspace(c)) return false;
    return true;
}

// The number after KEY in TEXT.
std::optional<double> numberAfter(const std::wstring& text, const wchar_t* key) {
    const size_t at = text.find(key);
    if (at == std::wstring::npos) return std::nullopt;
    const wchar_t* start = text.c_str() + at + std::wcslen(key);
    wchar_t* end = nullptr;
    const double value = std::wcstod(start, &end);
    if (end == start) return std::nullopt;
    return value;
}

}  // namespace

std::optional<double> typedNumber(const std::wstring& text) {
    const wchar_t* start = text.c_str();
    wchar_t* end = nullptr;
    const double value = std::wcstod(start, &end);
    if (end == start || !std::isfinite(value)) return std::nullopt;
    while (*end && std::iswspace(*end)) ++end;
    if (*end) return std::nullopt;
    return value;
}

bool isContactCoefficient(double E2) { return E2 > 0.0 && E2 <= 1.0; }

std::optional<InputFault> contactEntryFault(const std::wstring& VyText, const std::wstring& E2Text,
                                            size_t entriesInList, ContactPair& pair) {
    if (blank(VyText)) return InputFault{L"Vy_value", kMsgEnterVy};
    if (blank(E2Text)) return InputFault{L"E2_value", kMsgEnterE2};
    const auto Vy = typedNumber(VyText);
    // A zero velocity would end the table where the check reads it.
    if (!Vy || *Vy <= 0.0) return InputFault{L"Vy_value", L"不正确的迎面风速."};
    const auto E2 = typedNumber(E2Text);
    if (!E2 || !isContactCoefficient(*E2)) return InputFault{L"E2_value", kMsgBadE2};
    if (entriesInList >= static_cast<size_t>(kMaxContactPairs))
        return InputFault{L"E2_list", L"接触系数最多十组."};
    pair = {*Vy, *E2};
    return std::nullopt;
}

bool parseContactEntry(const std::wstring& entry, ContactPair& pair) {
    const auto Vy = numberAfter(entry, L"Vy=");
    const auto E2 = numberAfter(entry, L"E2=");
    if (!Vy || !E2) return false;
    pair = {*Vy, *E2};
    return true;
}

std::optional<InputFault> recordKeyFault(const RecordTexts& t, std::wstring& name, int& rows) {
    if (blank(t.type)) return InputFault{L"type", kMsgEnterModel};
    // The name becomes one token of the database's header "{name*rows}".
    for (wchar_t c : t.type)
        if (std::iswspace(c) || c == L'{' || c == L'}')
            return InputFault{L"type", L"表冷器型号中不能有空格或花括号."};
    const auto count = typedNumber(t.rows);
    if (!isCount(count)) return InputFault{L"Nn", kMsgEnterRows};
    name = t.type;
    rows = static_cast<int>(*count);
    return std::nullopt;
}

std::optional<InputFault> recordFault(const RecordTexts& t, CoolerModel& model) {
    CoolerModel m;
    int rows = 0;
    if (auto fault = recordKeyFault(t, m.name, rows)) return fault;
    m.rows = static_cast<short>(rows);
    struct Field {
        const std::wstring& text;
        double* value;
        const wchar_t* key;
        const wchar_t* message;
        bool positive;  // a divisor of the check: it must be above zero
    };
    const Field fields[] = {
        {t.A, &m.A, L"A_value", L"输入正确的A值(大于零).", true},
        {t.m, &m.m, L"m_value", L"输入正确的m值.", false},
        {t.p, &m.p, L"p_value", L"输入正确的p值.", false},
        {t.B, &m.B, L"B_value", L"输入正确的B值(大于零).", true},
        {t.n, &m.n, L"n_value", L"输入正确的n值.", false},
        {t.L1, &m.L1, L"L1_value", L"输入正确的风量范围.", false},
        {t.L2, &m.L2, L"L2_value", L"输入正确的风量范围.", false},
        {t.Fd, &m.Fd, L"Fd_value", L"输入正确的每排散热面积(大于零).", true},
        {t.Fy, &m.Fy, L"Fy_value", L"输入正确的迎风面积(大于零).", true},
        {t.fw, &m.fw, L"fw_value", L"输入正确的通水断面积(大于零).", true},
    };
    for (const Field& f : fields) {
        const auto value = typedNumber(f.text);
        if (!value || (f.positive && *value <= 0.0)) return InputFault{f.key, f.message};
        *f.value = *value;
    }
    if (t.entries.empty()) return InputFault{L"Vy_value", L"至少输入一组接触系数."};
    for (size_t k = 0; k < t.entries.size() && k < static_cast<size_t>(kMaxContactPairs); ++k)
        if (!parseContactEntry(t.entries[k], m.E2[k])) return InputFault{L"E2_list", kMsgBadE2};
    model = m;
    return std::nullopt;
}

}  // namespace vrn2
