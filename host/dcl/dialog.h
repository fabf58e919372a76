// One dialog between ads_new_dialog and the return of ads_start_dialog: its tiles with their
// current values, modes, lists, images and actions, and its window with one child per tile.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "adsdlg.h"
#include "host/dcl/dcl.h"
#include "host/dcl/tile.h"
#include "windows.h"

namespace host::dcl {

// A tile handle holds its dialog's serial number above this many bits and its index + 1 below.
constexpr int kTileIndexBits = 20;

struct RuntimeTile {
    const Tile* source = nullptr;  // kind, type and declared attributes
    std::wstring key;
    int parent = -1;
    std::vector<int> children;
    std::wstring value;
    bool enabled = true;
    bool selected = false;
    bool highlighted = false;
    std::vector<std::wstring> list;
    std::vector<ImageOp> image;
    CLIENTFUNC callback = nullptr;
    void* clientData = nullptr;
    HWND window = nullptr;

    TileKind kind() const { return source->kind; }
};

class Dialog {
public:
    Dialog(std::uintptr_t serial, std::wstring name, std::filesystem::path file, const Tile& tree,
           CLIENTFUNC defaultCallback, int x, int y);
    ~Dialog();
    Dialog(const Dialog&) = delete;
    Dialog& operator=(const Dialog&) = delete;

    ads_hdlg handle() const { return reinterpret_cast<ads_hdlg>(serial_); }
    ads_htile tileHandle(int index) const;
    std::uintptr_t serial() const { return serial_; }
    const std::wstring& name() const { return name_; }
    const std::filesystem::path& file() const { return file_; }

    // Index of the tile with KEY (case-sensitive), -1 when none; the dialog itself is 0.
    int find(std::wstring_view key) const;
    RuntimeTile& tile(int index) { return tiles_[static_cast<size_t>(index)]; }
    const RuntimeTile& tile(int index) const { return tiles_[static_cast<size_t>(index)]; }
    int tileCount() const { return static_cast<int>(tiles_.size()); }
    // Enabled, and so are all the clusters around it.
    bool usable(int index) const;

    // The new text of a text tile, an edit box or the dialog's title, shown in its window.
    void showText(int index);

    CLIENTFUNC defaultCallback = nullptr;
    std::wstring focus;
    int x = -1, y = -1;
    bool started = false;
    bool done = false;
    int status = DLGCANCEL;
    bool cancelledByHost = false;
    int depth = 0;
    std::vector<std::wstring> lispActions;

    DialogRecord record() const;

private:
    void flatten(const Tile& tile, int parent);
    void createWindows();

    std::uintptr_t serial_;
    std::wstring name_;
    std::filesystem::path file_;
    Tile tree_;  // a copy: the file may be unloaded while the dialog is open
    std::vector<RuntimeTile> tiles_;
};

// The dialog and tile a tile handle names; both null when it names none that is alive.
struct TileRef {
    Dialog* dialog = nullptr;
    int index = -1;
};

}  // namespace host::dcl
