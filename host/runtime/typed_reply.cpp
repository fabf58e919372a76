#include "host/runtime/typed_reply.h"

#include <charconv>
#include <cwctype>

namespace host {
namespace {

// A decimal number as typed: sign, digits with one point, an exponent; nothing else.
std::optional<double> parseReal(std::wstring_view text) {
    text = trimmed(text);
    std::string narrow;
    for (wchar_t c : text) {
        if (!(std::iswdigit(c) || c == L'.' || c == L'+' || c == L'-' || c == L'e' || c == L'E')) return std::nullopt;
        narrow += static_cast<char>(c);
    }
    if (!narrow.empty() && narrow.front() == '+') narrow.erase(0, 1);
    double v = 0;
    auto [end, ec] = std::from_chars(narrow.data(), narrow.data() + narrow.size(), v);
    if (narrow.empty() || ec != std::errc() || end != narrow.data() + narrow.size()) return std::nullopt;
    return v;
}

std::optional<long long> parseInteger(std::wstring_view text) {
    text = trimmed(text);
    bool negative = !text.empty() && text.front() == L'-';
    if (!text.empty() && (text.front() == L'-' || text.front() == L'+')) text.remove_prefix(1);
    if (text.empty() || text.size() > 12) return std::nullopt;
    long long v = 0;
    for (wchar_t c : text) {
        if (!std::iswdigit(c)) return std::nullopt;
        v = v * 10 + (c - L'0');
    }
    return negative ? -v : v;
}

std::wstring shortest(double v) {
    char buffer[64];
    auto [end, ec] = std::to_chars(buffer, buffer + sizeof buffer, v);
    return ec == std::errc() ? std::wstring(buffer, end) : std::wstring();
}

}  // namespace

std::wstring_view trimmed(std::wstring_view s) {
    while (!s.empty() && std::iswspace(s.front())) s.remove_prefix(1);
    while (!s.empty() && std::iswspace(s.back())) s.remove_suffix(1);
    return s;
}

std::optional<double> numberOf(const TypedReply& r) {
    switch (r.kind) {
    case TypedReply::Kind::Integer: return static_cast<double>(r.integer);
    case TypedReply::Kind::Real: return r.real;
    case TypedReply::Kind::Text: return parseReal(r.text);
    default: return std::nullopt;
    }
}

std::optional<std::array<double, 3>> pointOf(const TypedReply& r) {
    if (r.kind == TypedReply::Kind::Point) return std::array<double, 3>{r.point[0], r.point[1], r.point[2]};
    if (r.kind != TypedReply::Kind::Text) return std::nullopt;
    std::array<double, 3> p{0, 0, 0};
    std::wstring_view rest = r.text;
    for (int i = 0; i < 3; ++i) {
        size_t comma = rest.find(L',');
        auto v = parseReal(rest.substr(0, comma));
        if (!v) return std::nullopt;
        p[i] = *v;
        if (comma == std::wstring_view::npos) return i >= 1 ? std::optional(p) : std::nullopt;
        rest.remove_prefix(comma + 1);
    }
    return std::nullopt;
}

std::wstring textOf(const TypedReply& r) {
    switch (r.kind) {
    case TypedReply::Kind::Text: return r.text;
    case TypedReply::Kind::Integer: return std::to_wstring(r.integer);
    case TypedReply::Kind::Real: return shortest(r.real);
    case TypedReply::Kind::Point: return shortest(r.point[0]) + L"," + shortest(r.point[1]) + L"," + shortest(r.point[2]);
    case TypedReply::Kind::Enter: break;
    }
    return L"";
}

std::optional<long long> integerOf(const TypedReply& r) {
    if (r.kind == TypedReply::Kind::Integer) return r.integer;
    if (r.kind == TypedReply::Kind::Text) return parseInteger(r.text);
    return std::nullopt;
}

}  // namespace host
