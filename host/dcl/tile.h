// A tile as a dialog uses it: its primitive kind, the attributes it ends up with after
// inheritance, and its children.
#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "host/dcl/syntax.h"

namespace host::dcl {

enum class TileKind {
    Dialog, Cluster, RadioCluster, Tile, Text, Image, Button, ImageButton, Toggle, RadioButton,
    ListBox, EditBox, PopupList, Slider, Spacer
};

// The primitive's name as DCL spells it ("radio_button", "radio_cluster", ...).
std::wstring_view kindName(TileKind kind);
// Tiles the user operates: each must have a key.
bool isActive(TileKind kind);
bool isList(TileKind kind);
bool isImage(TileKind kind);
bool isCluster(TileKind kind);

struct Tile {
    TileKind kind = TileKind::Tile;
    std::wstring type;  // the name the tile was made from ("ok_button", "edit_box", ...)
    std::map<std::wstring, AttrValue> attributes;
    std::vector<Tile> children;
    std::filesystem::path file;  // where the tile was written; empty for the host's own
    int line = 0;

    bool has(std::wstring_view name) const;
    // The attribute's text, or FALLBACK when the tile does not have it.
    std::wstring attr(std::wstring_view name, std::wstring_view fallback = L"") const;
    bool flag(std::wstring_view name) const;  // a boolean attribute set to true
    std::wstring key() const { return attr(L"key"); }
};

}  // namespace host::dcl
