// "c:zljs": the hydraulic calculation of the traced network's main path. The inputs (wall
// roughness K, air pressure B, air temperature t) are asked in a dialog, remembered while the
// module is loaded and kept in lines 8 to 10 of "k-sljs.sr" in the current folder, beside the
// result files, so that each project folder keeps its own.
#include <cwchar>
#include <string>
#include <vector>

#include "acdbads.h"
#include "acedads.h"
#include "acutads.h"
#include "adscodes.h"
#include "adsdlg.h"
#include "duct/duct_handlers.h"
#include "duct/duct_xdata.h"
#include "duct/held_network.h"
#include "duct/main_path_calc.h"
#include "duct/results_output.h"
#include "frame/dialog_session.h"
#include "frame/settings_file.h"
#include "frame/tile_numbers.h"

namespace vrn2 {
namespace {

using namespace duct;

constexpr wchar_t kDialogFile[] = L"dwglib\\k-sljs.dcl";
constexpr wchar_t kSettingsFile[] = L"k-sljs.sr";
constexpr int kMaxInputChars = 30;

// Remembered for the module's lifetime.
AirInputs g_inputs;

struct InputTile {
    const wchar_t* key;
    int line;
    const wchar_t* format;
    const wchar_t* missing;
    const wchar_t* notANumber;
    double AirInputs::*field;
};

constexpr InputTile kInputTiles[] = {
    {L"K", 8, L"%.4lf", L"输入当量粗糙度K值.", L"输入正确的当量粗糙度K.", &AirInputs::K},
    {L"B", 9, L"%.3lf", L"输入空气压力值.", L"输入正确的空气压力值.", &AirInputs::B},
    {L"t", 10, L"%.2lf", L"输入空气温度值.", L"输入正确的空气温度值.", &AirInputs::t},
};

std::wstring formatted(const wchar_t* format, double value) {
    wchar_t text[64];
    std::swprintf(text, 64, format, value);
    return text;
}

void fillInputs(ads_hdlg dialog) {
    for (const InputTile& tile : kInputTiles) {
        std::wstring text;
        if (!readSettingsLine(kSettingsFile, tile.line, text)) text = formatted(tile.format, g_inputs.*tile.field);
        ads_set_tile(dialog, tile.key, text.c_str());
    }
}

// Checks K, B and t in order; the first fault is shown with the focus on its tile.
void onCalculate(ads_callback_packet* packet) {
    ads_hdlg dialog = packet->dialog;
    AirInputs inputs;
    for (const InputTile& tile : kInputTiles) {
        std::wstring text;
        double value = 0.0;
        if (!readTileText(dialog, tile.key, kMaxInputChars, text) || text.empty()) {
            return showInputError(dialog, tile.missing, tile.key, ErrorPlace::Alert);
        }
        if (!readTileNumber(dialog, tile.key, kMaxInputChars, value)) {
            return showInputError(dialog, tile.notANumber, tile.key, ErrorPlace::Alert);
        }
        if (tile.field == &AirInputs::t && !(value >= -10.0 && value <= 70.0)) {
            return showInputError(dialog, tile.notANumber, tile.key, ErrorPlace::Alert);
        }
        inputs.*tile.field = value;
    }
    g_inputs = inputs;
    std::vector<SettingsLine> lines;
    for (const InputTile& tile : kInputTiles) lines.push_back({tile.line, formatted(tile.format, inputs.*tile.field)});
    if (!writeSettingsLines(kSettingsFile, lines)) acutPrintf(L"\n无法保存计算参数文件k-sljs.sr.");
    ads_done_dialog(dialog, 1);
}

bool askInputs() {
    DialogSession dialogs(kDialogFile, {Channel::Alert, L"\n不能装载对话框文件K-SLJS.DCL.."});
    if (!dialogs.loaded()) return false;
    if (!dialogs.create(L"sljs_dlg", {Channel::Alert, L"不能显示SLJS_DLG对话框."})) return false;
    fillInputs(dialogs.dialog());
    dialogs.action(L"cal", onCalculate);
    return dialogs.run() == 1;
}

bool promptForTrace() {
    DialogSession dialogs(kDialogFile, {Channel::Alert, L"\n不能装载对话框文件K-SLJS.DCL.."});
    if (!dialogs.create(L"jzdy_prompt", {Channel::Alert, L"不能显示JZDY_PROMPT对话框."})) return false;
    return dialogs.run() == 1;
}

// Writes each calculated loss on its duct and tells each segment on the command line.
void reportSegments(const DuctNetwork& network, const MainPathResult& result) {
    for (const SegmentOutcome& o : result.segments) {
        const DuctSegment& s = network.segments[o.segment];
        if (!o.loss.computed) {
            acutPrintf(L"\n编号:%d 风管尺寸或风量未知,未计算阻力.", s.number);
            continue;
        }
        ads_name line;
        if (acdbHandEnt(s.handle.c_str(), line) == RTNORM) writeXdataValue(line, L"K_DUCT_DP", o.loss.total);
        acutPrintf(L"\n编号:%d 局部阻力ΔPj=%.4lfPa,沿程阻力ΔPl=%.4lfPa", s.number, o.loss.localLoss,
                   o.loss.frictionLoss);
    }
}

}  // namespace

int ductHydraulicCalc() {
    DuctNetwork& network = heldNetwork();
    if (network.mainLeaf == kNoSegment) {
        promptForTrace();
        return RTERROR;
    }
    if (!askInputs()) return RTNORM;
    MainPathResult result = calculateMainPath(network, g_inputs);
    reportSegments(network, result);
    writeResultsFile(network, result.total);
    showResults(network, result.total);
    acutPrintf(L"\n最不利管路总阻力ΔP=%.4lfPa.", result.total);
    return RTNORM;
}

}  // namespace vrn2
