// c:fzzbdy: the grid parameters in dialog "t_fzzb". Each edit tile and its slider show one
// value (lengths on the slider in tenths, angles in degrees) and follow each other; every
// change redraws the preview from the current values; OK ("d") writes "datlib\t-fzzb.dat".
#include <array>
#include <cstdlib>
#include <string>
#include <vector>

#include "acedads.h"
#include "acutads.h"
#include "adscodes.h"
#include "adsdlg.h"
#include "drawing/drawing_handlers.h"
#include "drawing/grid_geometry.h"
#include "drawing/grid_file.h"
#include "drawing/grid_parameters.h"
#include "frame/dialog_session.h"
#include "frame/file_handle.h"
#include "frame/messages.h"
#include "frame/paths.h"

namespace vrn2 {
namespace {

constexpr wchar_t kDialogFile[] = L"dwglib\\t-fzzb.dcl";
constexpr wchar_t kDialogName[] = L"t_fzzb";
constexpr wchar_t kPreviewTile[] = L"preview";
constexpr int kEditChars = 30;
constexpr short kPreviewBackground = 0;

const wchar_t* const kEditTiles[drawing::kGridFieldCount] = {L"e1", L"e2", L"e3", L"e4", L"e5", L"e6", L"e7", L"e8"};
const wchar_t* const kSliderTiles[drawing::kGridFieldCount] = {L"s1", L"s2", L"s3", L"s4", L"s5", L"s6", L"s7", L"s8"};

std::wstring wide(const std::string& text) { return std::wstring(text.begin(), text.end()); }

std::wstring tileText(ads_hdlg dialog, const wchar_t* key) {
    ACHAR value[kEditChars + 1] = {};
    ads_get_tile(dialog, key, value, kEditChars + 1);
    return value;
}

void drawPreview(ads_hdlg dialog, const drawing::GridParameters& parameters) {
    short width = 0, height = 0;
    if (ads_dimensions_tile(dialog, kPreviewTile, &width, &height) != RTNORM) return;
    if (ads_start_image(dialog, kPreviewTile) != RTNORM) return;
    ads_fill_image(0, 0, width, height, kPreviewBackground);
    if (drawing::gridIsDrawable(parameters)) {
        for (const auto& v : drawing::gridPreview(drawing::gridDrawing(parameters), width, height))
            ads_vector_image(static_cast<short>(v.x1), static_cast<short>(v.y1), static_cast<short>(v.x2),
                             static_cast<short>(v.y2), static_cast<short>(v.colour));
    }
    ads_end_image();
}

void showField(ads_hdlg dialog, int field, double value) {
    ads_set_tile(dialog, kEditTiles[field], wide(drawing::gridEditText(value)).c_str());
    ads_set_tile(dialog, kSliderTiles[field], std::to_wstring(drawing::gridSliderValue(field, value)).c_str());
}

struct DialogState;

// The client data of one tile: the dialog's state and the field the tile shows.
struct TileBinding {
    DialogState* state;
    int field;
};

struct DialogState {
    drawing::GridParameters parameters;
    std::array<TileBinding, drawing::kGridFieldCount> bindings;
};

TileBinding& bindingOf(ads_callback_packet* packet) { return *static_cast<TileBinding*>(packet->client_data); }

// A typed value is taken with the limits the file is read with, and shown back in both tiles.
void onEdit(ads_callback_packet* packet) {
    TileBinding& b = bindingOf(packet);
    const double typed = std::atof(drawing::asciiText(packet->value ? packet->value : L"").c_str());
    b.state->parameters.values[b.field] = drawing::limitGridValue(b.field, typed);
    showField(packet->dialog, b.field, b.state->parameters.values[b.field]);
    drawPreview(packet->dialog, b.state->parameters);
}

void onSlider(ads_callback_packet* packet) {
    TileBinding& b = bindingOf(packet);
    const int position = std::atoi(drawing::asciiText(packet->value ? packet->value : L"").c_str());
    const double value = drawing::limitGridValue(b.field, drawing::gridValueFromSlider(b.field, position));
    b.state->parameters.values[b.field] = value;
    ads_set_tile(packet->dialog, kEditTiles[b.field], wide(drawing::gridEditText(value)).c_str());
    drawPreview(packet->dialog, b.state->parameters);
}

void onToggle(ads_callback_packet* packet) {
    DialogState& state = *static_cast<DialogState*>(packet->client_data);
    state.parameters.centreLines = static_cast<short>(std::atoi(drawing::asciiText(tileText(packet->dialog, L"a")).c_str()));
    state.parameters.labels = static_cast<short>(std::atoi(drawing::asciiText(tileText(packet->dialog, L"b")).c_str()));
    drawPreview(packet->dialog, state.parameters);
}

bool writeGridFile(const std::string& text) {
    const std::wstring path = suitePath(drawing::kGridFileName);
    FileHandle file(path.c_str(), L"w");
    if (!file || std::fputs(text.c_str(), file.get()) < 0 || !file.close()) {
        acutPrintf(kMsgFileOpenFailed);
        return false;
    }
    return true;
}

// OK: the edit tiles' texts as they stand and the two switches go to the file.
void onOk(ads_callback_packet* packet) {
    std::array<std::string, drawing::kGridFieldCount> edits;
    for (int field = 0; field < drawing::kGridFieldCount; ++field)
        edits[field] = drawing::asciiText(tileText(packet->dialog, kEditTiles[field]));
    const int a = std::atoi(drawing::asciiText(tileText(packet->dialog, L"a")).c_str());
    const int b = std::atoi(drawing::asciiText(tileText(packet->dialog, L"b")).c_str());
    if (writeGridFile(drawing::gridFileText(edits, a, b))) ads_done_dialog(packet->dialog, DLGOK);
}

void onCancel(ads_callback_packet* packet) { ads_done_dialog(packet->dialog, DLGCANCEL); }

void fill(ads_hdlg dialog, const drawing::GridParameters& parameters) {
    for (int field = 0; field < drawing::kGridFieldCount; ++field) showField(dialog, field, parameters.values[field]);
    ads_set_tile(dialog, L"a", std::to_wstring(parameters.centreLines).c_str());
    ads_set_tile(dialog, L"b", std::to_wstring(parameters.labels).c_str());
    drawPreview(dialog, parameters);
}

}  // namespace

int editGrid() {
    DialogState state;
    if (!drawing::readGridFile(state.parameters)) return RTNORM;
    DialogSession session(kDialogFile, {Channel::Fail, kMsgUnableOpenDialog});
    if (!session.create(kDialogName, {Channel::Fail, kMsgUnableOpenDialog})) return RTNORM;
    for (int field = 0; field < drawing::kGridFieldCount; ++field) {
        state.bindings[field] = {&state, field};
        session.action(kEditTiles[field], onEdit, &state.bindings[field]);
        session.action(kSliderTiles[field], onSlider, &state.bindings[field]);
    }
    session.action(L"a", onToggle, &state);
    session.action(L"b", onToggle, &state);
    session.action(L"d", onOk);
    session.action(L"e", onCancel);
    fill(session.dialog(), state.parameters);
    session.run();
    return RTNORM;
}

}  // namespace vrn2
