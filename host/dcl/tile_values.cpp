#include "host/dcl/tile_values.h"

#include <algorithm>
#include <cwchar>
#include <set>

namespace host::dcl {
namespace {

std::vector<std::wstring> splitLines(const std::wstring& text) {
    std::vector<std::wstring> lines;
    size_t start = 0;
    for (;;) {
        size_t nl = text.find(L'\n', start);
        lines.push_back(text.substr(start, nl == std::wstring::npos ? std::wstring::npos : nl - start));
        if (nl == std::wstring::npos) break;
        start = nl + 1;
    }
    return lines;
}

std::wstring joinIndices(const std::vector<int>& indices) {
    std::wstring out;
    for (int i : indices) {
        if (!out.empty()) out += L' ';
        out += std::to_wstring(i);
    }
    return out;
}

std::wstring onOff(std::wstring_view value) { return value == L"1" ? L"1" : L"0"; }

// The list selection VALUE kept to existing items; one item unless multiple_select.
std::wstring fitSelection(const RuntimeTile& tile, std::wstring_view value) {
    auto indices = parseIndices(value);
    std::vector<int> kept;
    if (indices) {
        std::set<int> seen;
        for (int i : *indices)
            if (i < static_cast<int>(tile.list.size()) && seen.insert(i).second) kept.push_back(i);
    }
    bool multiple = tile.kind() == TileKind::ListBox && tile.source->flag(L"multiple_select");
    if (!multiple && kept.size() > 1) kept.resize(1);
    if (multiple) std::sort(kept.begin(), kept.end());
    if (tile.kind() == TileKind::PopupList && kept.empty() && !tile.list.empty()) return L"0";
    return joinIndices(kept);
}

std::wstring sliderValue(const RuntimeTile& tile, std::wstring_view text) {
    long lo = intAttribute(*tile.source, L"min_value", 0);
    long hi = intAttribute(*tile.source, L"max_value", 10000);
    if (lo > hi) std::swap(lo, hi);
    std::wstring s(text);
    wchar_t* end = nullptr;
    long v = std::wcstol(s.c_str(), &end, 10);
    if (s.empty() || (end && *end)) return tile.value.empty() ? std::to_wstring(lo) : tile.value;
    return std::to_wstring(std::clamp(v, lo, hi));
}

// Radio buttons: only the last one declared on stays on; the cluster's own value may name one.
void initialRadioCluster(Dialog& dialog, int cluster) {
    RuntimeTile& c = dialog.tile(cluster);
    int on = -1;
    for (int child : c.children)
        if (dialog.tile(child).kind() == TileKind::RadioButton && dialog.tile(child).value == L"1") on = child;
    std::wstring wanted = c.source->attr(L"value");
    for (int child : c.children)
        if (!wanted.empty() && dialog.tile(child).key == wanted && dialog.tile(child).kind() == TileKind::RadioButton)
            on = child;
    if (on >= 0)
        selectRadio(dialog, on);
    else
        c.value.clear();
}

}  // namespace

long intAttribute(const Tile& tile, std::wstring_view name, long fallback) {
    std::wstring text = tile.attr(name);
    if (text.empty()) return fallback;
    wchar_t* end = nullptr;
    long v = std::wcstol(text.c_str(), &end, 10);
    return (end && *end) ? fallback : v;
}

double realAttribute(const Tile& tile, std::wstring_view name, double fallback) {
    std::wstring text = tile.attr(name);
    if (text.empty()) return fallback;
    wchar_t* end = nullptr;
    double v = std::wcstod(text.c_str(), &end);
    return (end && *end) ? fallback : v;
}

std::optional<std::vector<int>> parseIndices(std::wstring_view text) {
    std::vector<int> out;
    size_t i = 0;
    while (i < text.size()) {
        if (text[i] == L' ' || text[i] == L'\t') {
            ++i;
            continue;
        }
        long v = 0;
        size_t start = i;
        while (i < text.size() && text[i] >= L'0' && text[i] <= L'9') {
            v = v * 10 + (text[i] - L'0');
            if (v > 32767) return std::nullopt;
            ++i;
        }
        if (i == start || (i < text.size() && text[i] != L' ' && text[i] != L'\t')) return std::nullopt;
        out.push_back(static_cast<int>(v));
    }
    return out;
}

void fitListValue(RuntimeTile& tile) { tile.value = fitSelection(tile, tile.value); }

size_t editLimit(const RuntimeTile& tile) {
    long limit = intAttribute(*tile.source, L"edit_limit", kDefaultEditLimit);
    return limit > 0 ? static_cast<size_t>(limit) : static_cast<size_t>(kDefaultEditLimit);
}

void applyInitialValues(Dialog& dialog) {
    for (int i = 0; i < dialog.tileCount(); ++i) {
        RuntimeTile& t = dialog.tile(i);
        const Tile& src = *t.source;
        t.enabled = i == 0 || src.attr(L"is_enabled") != L"false";
        switch (t.kind()) {
        case TileKind::Dialog: t.value = src.has(L"value") ? src.attr(L"value") : src.attr(L"label"); break;
        case TileKind::Text: t.value = src.has(L"value") ? src.attr(L"value") : src.attr(L"label"); break;
        case TileKind::Toggle:
        case TileKind::RadioButton: t.value = onOff(src.attr(L"value")); break;
        case TileKind::ListBox:
        case TileKind::PopupList:
            if (src.has(L"list")) t.list = splitLines(src.attr(L"list"));
            t.value = fitSelection(t, src.attr(L"value"));
            break;
        case TileKind::Slider: t.value = sliderValue(t, src.attr(L"value")); break;
        case TileKind::Button:
        case TileKind::ImageButton:
        case TileKind::Spacer:
        case TileKind::RadioCluster: t.value.clear(); break;
        default: t.value = src.attr(L"value"); break;
        }
    }
    for (int i = 0; i < dialog.tileCount(); ++i)
        if (dialog.tile(i).kind() == TileKind::RadioCluster) initialRadioCluster(dialog, i);
}

void selectRadio(Dialog& dialog, int button) {
    RuntimeTile& b = dialog.tile(button);
    if (b.parent < 0) return;
    RuntimeTile& cluster = dialog.tile(b.parent);
    for (int child : cluster.children)
        if (dialog.tile(child).kind() == TileKind::RadioButton) dialog.tile(child).value = L"0";
    b.value = L"1";
    if (cluster.kind() == TileKind::RadioCluster) cluster.value = b.key;
}

void setValue(Dialog& dialog, int index, std::wstring_view value) {
    RuntimeTile& t = dialog.tile(index);
    switch (t.kind()) {
    case TileKind::Toggle: t.value = onOff(value); break;
    case TileKind::RadioButton:
        if (value == L"1") {
            selectRadio(dialog, index);
        } else {
            t.value = L"0";
            if (t.parent >= 0 && dialog.tile(t.parent).value == t.key) dialog.tile(t.parent).value.clear();
        }
        break;
    case TileKind::RadioCluster:
        if (value.empty()) {
            for (int child : t.children)
                if (dialog.tile(child).kind() == TileKind::RadioButton) dialog.tile(child).value = L"0";
            t.value.clear();
        }
        for (int child : t.children)
            if (dialog.tile(child).kind() == TileKind::RadioButton && dialog.tile(child).key == value)
                selectRadio(dialog, child);
        break;
    case TileKind::ListBox:
    case TileKind::PopupList: t.value = fitSelection(t, value); break;
    case TileKind::Slider: t.value = sliderValue(t, value); break;
    case TileKind::Button:
    case TileKind::ImageButton:
    case TileKind::Spacer: break;  // no value to show
    default:
        t.value = value;
        dialog.showText(index);
        break;
    }
}

}  // namespace host::dcl
