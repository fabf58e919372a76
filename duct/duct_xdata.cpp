#include "duct/duct_xdata.h"

#include <cwchar>

#include "acdbads.h"
#include "adscodes.h"
#include "frame/list_builder.h"
#include "frame/rblist.h"
#include "frame/xdata.h"

namespace vrn2::duct {

std::vector<double> readXdataNumbers(const ads_name entity, const wchar_t* application) {
    std::vector<double> numbers;
    RbList list;
    if (readXdata(entity, application, static_cast<int>(XdataKind::List), list.out()) == RTNORM) {
        for (const resbuf* rb = list.get(); rb; rb = rb->rbnext) {
            if (rb->restype == RTREAL) numbers.push_back(rb->resval.rreal);
            else if (rb->restype == RTSHORT) numbers.push_back(rb->resval.rint);
            else if (rb->restype == RTLONG) numbers.push_back(static_cast<double>(rb->resval.rlong));
        }
        return numbers;
    }
    if (auto text = readXdataText(entity, application)) {
        wchar_t* end = nullptr;
        double value = std::wcstod(text->c_str(), &end);
        if (end != text->c_str()) numbers.push_back(value);
    }
    return numbers;
}

std::optional<double> readXdataNumber(const ads_name entity, const wchar_t* application) {
    std::vector<double> numbers = readXdataNumbers(entity, application);
    if (numbers.empty()) return std::nullopt;
    return numbers.front();
}

std::optional<std::wstring> readXdataText(const ads_name entity, const wchar_t* application) {
    RbList value;
    if (readXdata(entity, application, static_cast<int>(XdataKind::String), value.out()) != RTNORM || !value ||
        value.get()->restype != RTSTR) {
        return std::nullopt;
    }
    return std::wstring(value.get()->resval.rstring);
}

bool writeXdataText(const ads_name entity, const wchar_t* application, const std::wstring& text) {
    RbList message(newStringBuffer(RTSTR, text.c_str()));
    return message && attachXdata(entity, application, message.get()) == RTNORM;
}

bool writeXdataValue(const ads_name entity, const wchar_t* application, double value) {
    wchar_t text[64];
    std::swprintf(text, 64, L"%.7lf", value);
    return writeXdataText(entity, application, text);
}

bool removeXdata(const ads_name entity, const wchar_t* application) {
    ListBuilder change;
    if (!change.addName(-1, entity) || !change.add(-3) || !change.addString(1001, application)) return false;
    return acdbEntMod(change.get()) == RTNORM;
}

}  // namespace vrn2::duct
