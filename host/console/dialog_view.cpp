#include "host/console/dialog_view.h"

#include <sstream>

namespace host::console {
namespace {

std::wstring outcome(const dcl::DialogRecord& d) {
    if (d.cancelledByHost) return L"cancelled (no queued action left)";
    switch (d.status) {
        case DLGOK: return L"OK";
        case DLGCANCEL: return L"Cancel";
        case DLGALLDONE: return L"closed with every dialog";
        default: return L"status " + std::to_wstring(d.status);
    }
}

// The items of a list tile that VALUE (indices separated by spaces) chooses.
std::wstring chosenItems(const dcl::TileRecord& t) {
    std::wistringstream indices(t.value);
    std::wstring out;
    long index;
    while (indices >> index) {
        if (!out.empty()) out += L"; ";
        out += index >= 0 && static_cast<size_t>(index) < t.list.size() ? t.list[index] : L"#" + std::to_wstring(index);
    }
    return out;
}

std::wstring trimmed(const std::wstring& s) {
    size_t first = s.find_first_not_of(L' '), last = s.find_last_not_of(L' ');
    return first == std::wstring::npos ? std::wstring() : s.substr(first, last - first + 1);
}

// One tile as a line; empty for tiles that show nothing (spacers, unlabelled columns).
std::wstring tileLine(const dcl::TileRecord& tile) {
    dcl::TileRecord t = tile;  // labels are padded with spaces to line up in the layout
    t.label = trimmed(t.label);
    const std::wstring& kind = t.kind;
    std::wstring line;
    if (kind == L"button" || kind == L"image_button") line = L"[ " + (t.label.empty() ? t.key : t.label) + L" ]";
    else if (kind == L"toggle") line = (t.value == L"1" ? L"[x] " : L"[ ] ") + t.label;
    else if (kind == L"radio_button") line = (t.value == L"1" ? L"(o) " : L"( ) ") + t.label;
    else if (kind == L"text") line = trimmed(t.value.empty() ? t.label : t.value);
    else if (kind == L"edit_box" || kind == L"slider") line = trimmed(t.label + L" [" + t.value + L"]");
    else if (kind == L"popup_list" || kind == L"list_box") line = trimmed(t.label + L" <" + chosenItems(t) + L">");
    else if (kind == L"image") line = L"(picture of " + std::to_wstring(t.image.size()) + L" strokes)";
    else if ((kind == L"cluster" || kind == L"radio_cluster") && !t.label.empty()) line = L"-- " + t.label + L" --";
    if (line.empty()) return line;
    if (!t.enabled) line += L"  (greyed out)";
    return line;
}

}  // namespace

std::wstring dialogView(const dcl::DialogRecord& d) {
    std::wstring out = L"+-- " + d.title + L" (" + d.name + L"): " + outcome(d) + L"\n";
    for (size_t i = 1; i < d.tiles.size(); ++i) {  // the first tile is the dialog itself
        std::wstring line = tileLine(d.tiles[i]);
        if (!line.empty()) out += L"| " + line + L"\n";
    }
    out += L"+--\n";
    return out;
}

}  // namespace host::console
