#include "coil/model_lookup.h"

#include <algorithm>
#include <cstdio>
#include <cwchar>

#include "coil/token_reader.h"
#include "frame/file_handle.h"

namespace vrn2 {
namespace {

// Closes the file before the alert, so that a user who edits the database from the alert's
// advice finds it free.
bool failClosed(FileHandle& file, const wchar_t* message, const AlertSink& alert) {
    file.close();
    if (alert) alert(message);
    return false;
}

// The number after the first "=" of TOKEN (0 when no number follows, as the C library reads it).
double valueAfterKey(const std::wstring& token, const wchar_t** rest = nullptr) {
    const wchar_t* text = std::wcschr(token.c_str(), L'=');
    text = text ? text + 1 : token.c_str() + token.size();
    wchar_t* end = nullptr;
    double value = std::wcstod(text, &end);
    if (rest) *rest = end;
    return value;
}

// Reads the nine keyed coefficient tokens in their order.
bool readCoefficients(TokenReader& tokens, CoolerModel& out) {
    struct Keyed {
        const wchar_t* key;
        double* value;
    };
    const Keyed keyed[] = {{L"A=", &out.A},  {L"B=", &out.B},   {L"m=", &out.m},
                           {L"p=", &out.p},  {L"n=", &out.n},   {L"L=", &out.L1},
                           {L"Fd=", &out.Fd}, {L"Fy=", &out.Fy}, {L"fw=", &out.fw}};
    std::wstring token;
    for (const Keyed& k : keyed) {
        if (!tokens.next(token) || token.find(k.key) == std::wstring::npos) return false;
        const wchar_t* rest = nullptr;
        *k.value = valueAfterKey(token, &rest);
        if (k.value == &out.L1) {
            // "L=low-high": the high end follows the dash after the low end.
            out.L2 = (*rest == L'-') ? std::wcstod(rest + 1, nullptr) : 0.0;
        }
    }
    return true;
}

// Reads the (Vy, E2) tokens that follow the coefficients; answers their count.
int readContactTokens(TokenReader& tokens, CoolerModel& out) {
    std::vector<double> values;
    std::wstring token;
    while (tokens.peek(token) && token.find(L'{') == std::wstring::npos &&
           token.find(L'=') != std::wstring::npos) {
        tokens.next(token);
        values.push_back(valueAfterKey(token));
    }
    out.E2 = ContactTable{};
    const size_t pairs = std::min<size_t>(values.size() / 2, kMaxContactPairs);
    for (size_t k = 0; k < pairs; ++k) out.E2[k] = {values[2 * k], values[2 * k + 1]};
    return static_cast<int>(values.size());
}

}  // namespace

std::wstring coolerHeader(const std::wstring& name, int rows) {
    return L"{" + name + L"*" + std::to_wstring(rows) + L"}";
}

bool lookupCoolerModel(const std::wstring& path, const std::wstring& name, int rows,
                       CoolerModel& out, const AlertSink& alert) {
    FileHandle file(path.c_str(), L"rt");
    if (!file) {
        if (alert) alert(kMsgNoDeviceFile);
        return false;
    }
    TokenReader tokens(file.get());
    const std::wstring header = coolerHeader(name, rows);
    std::wstring token;
    bool found = false;
    while (!found && tokens.next(token)) found = (token == header);
    if (!found) return failClosed(file, kMsgNoSuchCooler, alert);

    CoolerModel record;
    record.name = name;
    record.rows = static_cast<short>(rows);
    if (!readCoefficients(tokens, record)) return failClosed(file, kMsgBadRecordStructure, alert);
    if (readContactTokens(tokens, record) < 2) return failClosed(file, kMsgNoContactPairs, alert);
    file.close();
    out = record;
    return true;
}

bool parseCoolerHeader(const std::wstring& token, CoolerKey& key) {
    if (token.size() < 5 || token.front() != L'{' || token.back() != L'}') return false;
    const size_t star = token.rfind(L'*');
    if (star == std::wstring::npos || star < 2 || star + 2 > token.size() - 1) return false;
    const std::wstring digits = token.substr(star + 1, token.size() - star - 2);
    wchar_t* end = nullptr;
    const long rows = std::wcstol(digits.c_str(), &end, 10);
    if (*end != L'\0' || rows <= 0 || rows > 32767) return false;
    key.name = token.substr(1, star - 1);
    key.rows = static_cast<int>(rows);
    return true;
}

std::vector<CoolerKey> listCoolerRecords(const std::wstring& path) {
    std::vector<CoolerKey> records;
    FileHandle file(path.c_str(), L"rt");
    if (!file) return records;
    TokenReader tokens(file.get());
    std::wstring token;
    CoolerKey key;
    while (tokens.next(token))
        if (parseCoolerHeader(token, key)) records.push_back(key);
    return records;
}

std::vector<std::wstring> coolerModelNames(const std::vector<CoolerKey>& records) {
    std::vector<std::wstring> names;
    for (const CoolerKey& r : records) {
        bool seen = false;
        for (const auto& n : names) seen = seen || n == r.name;
        if (!seen) names.push_back(r.name);
    }
    return names;
}

}  // namespace vrn2
