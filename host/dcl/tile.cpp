#include "host/dcl/tile.h"

namespace host::dcl {

std::wstring_view kindName(TileKind kind) {
    switch (kind) {
    case TileKind::Dialog: return L"dialog";
    case TileKind::Cluster: return L"cluster";
    case TileKind::RadioCluster: return L"radio_cluster";
    case TileKind::Tile: return L"tile";
    case TileKind::Text: return L"text";
    case TileKind::Image: return L"image";
    case TileKind::Button: return L"button";
    case TileKind::ImageButton: return L"image_button";
    case TileKind::Toggle: return L"toggle";
    case TileKind::RadioButton: return L"radio_button";
    case TileKind::ListBox: return L"list_box";
    case TileKind::EditBox: return L"edit_box";
    case TileKind::PopupList: return L"popup_list";
    case TileKind::Slider: return L"slider";
    case TileKind::Spacer: return L"spacer";
    }
    return L"tile";
}

bool isActive(TileKind kind) {
    switch (kind) {
    case TileKind::Button:
    case TileKind::ImageButton:
    case TileKind::Toggle:
    case TileKind::RadioButton:
    case TileKind::ListBox:
    case TileKind::EditBox:
    case TileKind::PopupList:
    case TileKind::Slider: return true;
    default: return false;
    }
}

bool isList(TileKind kind) { return kind == TileKind::ListBox || kind == TileKind::PopupList; }
bool isImage(TileKind kind) { return kind == TileKind::Image || kind == TileKind::ImageButton; }
bool isCluster(TileKind kind) {
    return kind == TileKind::Cluster || kind == TileKind::RadioCluster || kind == TileKind::Dialog;
}

bool Tile::has(std::wstring_view name) const { return attributes.find(std::wstring(name)) != attributes.end(); }

std::wstring Tile::attr(std::wstring_view name, std::wstring_view fallback) const {
    auto it = attributes.find(std::wstring(name));
    return it == attributes.end() ? std::wstring(fallback) : it->second.text;
}

bool Tile::flag(std::wstring_view name) const {
    auto it = attributes.find(std::wstring(name));
    return it != attributes.end() && it->second.type == AttrValue::Type::Word && it->second.text == L"true";
}

}  // namespace host::dcl
