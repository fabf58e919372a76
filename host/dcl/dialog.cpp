#include "host/dcl/dialog.h"

#include "host/dcl/tile_values.h"
#include "host/win/window_registry.h"

namespace host::dcl {
namespace {

// The Windows control class a tile would be.
std::wstring controlClass(const Tile& tile) {
    switch (tile.kind) {
    case TileKind::Button:
    case TileKind::ImageButton:
    case TileKind::Toggle:
    case TileKind::RadioButton: return L"Button";
    case TileKind::EditBox: return L"Edit";
    case TileKind::ListBox: return L"ListBox";
    case TileKind::PopupList: return L"ComboBox";
    case TileKind::Slider: return L"msctls_trackbar32";
    case TileKind::Cluster:
    case TileKind::RadioCluster: return tile.flag(L"boxed") ? L"Button" : L"Static";
    default: return L"Static";
    }
}

bool showsValue(TileKind kind) {
    return kind == TileKind::Dialog || kind == TileKind::Text || kind == TileKind::EditBox;
}

}  // namespace

Dialog::Dialog(std::uintptr_t serial, std::wstring name, std::filesystem::path file, const Tile& tree,
               CLIENTFUNC defaultCb, int px, int py)
    : defaultCallback(defaultCb), x(px), y(py), serial_(serial), name_(std::move(name)),
      file_(std::move(file)), tree_(tree) {
    flatten(tree_, -1);
    applyInitialValues(*this);
    createWindows();
}

Dialog::~Dialog() {
    if (!tiles_.empty() && tiles_.front().window) DestroyWindow(tiles_.front().window);
}

void Dialog::flatten(const Tile& tile, int parent) {
    int index = static_cast<int>(tiles_.size());
    RuntimeTile rt;
    rt.source = &tile;
    rt.key = tile.key();
    rt.parent = parent;
    tiles_.push_back(std::move(rt));
    if (parent >= 0) tiles_[static_cast<size_t>(parent)].children.push_back(index);
    for (const auto& child : tile.children) flatten(child, index);
}

// The dialog is a top-level window titled with its label; every tile is a child control of
// it, as the controls of a dialog box are on Windows.
void Dialog::createWindows() {
    HWND top = win::createWindow(tiles_.front().value, nullptr, L"#32770");
    tiles_.front().window = top;
    for (size_t i = 1; i < tiles_.size(); ++i) {
        const RuntimeTile& t = tiles_[i];
        std::wstring text = showsValue(t.kind()) ? t.value : t.source->attr(L"label");
        tiles_[i].window = win::createWindow(std::move(text), top, controlClass(*t.source));
    }
}

void Dialog::showText(int index) {
    RuntimeTile& t = tile(index);
    if (t.window && showsValue(t.kind())) SetWindowTextW(t.window, t.value.c_str());
}

ads_htile Dialog::tileHandle(int index) const {
    return reinterpret_cast<ads_htile>((serial_ << kTileIndexBits) | static_cast<std::uintptr_t>(index + 1));
}

int Dialog::find(std::wstring_view key) const {
    if (key.empty()) return -1;
    for (size_t i = 0; i < tiles_.size(); ++i)
        if (tiles_[i].key == key) return static_cast<int>(i);
    return -1;
}

bool Dialog::usable(int index) const {
    for (int i = index; i > 0; i = tile(i).parent)
        if (!tile(i).enabled) return false;
    return true;
}

DialogRecord Dialog::record() const {
    DialogRecord r;
    r.name = name_;
    r.file = file_;
    r.title = tiles_.front().value;
    r.status = status;
    r.cancelledByHost = cancelledByHost;
    r.depth = depth;
    r.focus = focus;
    r.lispActions = lispActions;
    for (const auto& t : tiles_) {
        TileRecord tr;
        tr.key = t.key;
        tr.kind = kindName(t.kind());
        tr.type = t.source->type;
        tr.label = t.source->attr(L"label");
        tr.value = t.value;
        tr.enabled = t.enabled;
        tr.selected = t.selected;
        tr.highlighted = t.highlighted;
        tr.list = t.list;
        tr.image = t.image;
        r.tiles.push_back(std::move(tr));
    }
    return r;
}

}  // namespace host::dcl
