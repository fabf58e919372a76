// "c:sccal": the coil-check dialog. The model list holds the models of the device database;
// "cal" checks the inputs in a fixed order, looks the record up and runs the check, showing
// the outlet state, the outlet water temperature and the load in the dialog, which stays open;
// "saveres" appends the last finished check to sccal.txt.
#include <cwchar>
#include <iterator>
#include <optional>
#include <string>
#include <vector>

#include "acedads.h"
#include "adsdlg.h"
#include "coil/coil_check_inputs.h"
#include "coil/coil_handlers.h"
#include "coil/cooler_dialog_files.h"
#include "coil/cooler_report.h"
#include "coil/model_lookup.h"
#include "frame/dialog_session.h"
#include "frame/messages.h"
#include "frame/paths.h"
#include "frame/result_file.h"
#include "frame/tile_numbers.h"

namespace vrn2 {
namespace {

constexpr wchar_t kMainDialog[] = L"sccaldlg";
constexpr wchar_t kHelpDialog[] = L"intro_scproofcal";
constexpr wchar_t kNothingToSave[] = L"先按\"校核计算\"求出结果.";
constexpr wchar_t kSaved[] = L"结果已存在文件sccal.txt中.";
constexpr int kMaxInputChars = 30;

constexpr const wchar_t* kResultKeys[] = {L"ih_value", L"d_value",  L"t_value",   L"ts_value",
                                          L"tl_value", L"fy_value", L"tw2_value", L"Q_value"};

struct Session {
    int dclId = -1;
    std::vector<std::wstring> models;  // the entries of the model list
    // The last finished check, which "saveres" writes.
    bool checked = false;
    CoilCheckInput input;
    std::wstring model;
    CoolerShown shown;
};

std::optional<double> tileNumber(ads_hdlg dialog, const wchar_t* key) {
    double value = 0.0;
    if (!readTileNumber(dialog, key, kMaxInputChars, value)) return std::nullopt;
    return value;
}

// The chosen model, or empty when the list has no selection.
std::wstring chosenModel(ads_hdlg dialog, const Session& session) {
    std::wstring index;
    if (!readTileText(dialog, L"type", 15, index) || index.empty()) return {};
    const long k = std::wcstol(index.c_str(), nullptr, 10);
    return k >= 0 && static_cast<size_t>(k) < session.models.size() ? session.models[k] : std::wstring();
}

CoilCheckReadings readInputs(ads_hdlg dialog, const Session& session) {
    CoilCheckReadings r;
    r.modelChosen = !chosenModel(dialog, session).empty();
    r.B = tileNumber(dialog, L"B");
    r.rows = tileNumber(dialog, L"Nn");
    r.units = tileNumber(dialog, L"nu_value");
    r.t1 = tileNumber(dialog, L"t1_value");
    r.ts1 = tileNumber(dialog, L"ts1_value");
    r.G = tileNumber(dialog, L"G_value");
    r.tw1 = tileNumber(dialog, L"tw1_value");
    r.W = tileNumber(dialog, L"W_value");
    std::wstring connection;
    r.series = readTileText(dialog, L"conn", 15, connection) && connection == L"series";
    return r;
}

void clearResults(ads_hdlg dialog, Session& session) {
    for (const wchar_t* key : kResultKeys) ads_set_tile(dialog, key, L"");
    session.checked = false;
}

void showResults(ads_hdlg dialog, const CoilCheckResult& r, CoolerShown& shown) {
    const double values[] = {r.outlet.i, r.outlet.d, r.outlet.t, r.outlet.ts,
                             r.outlet.tl, r.outlet.fy, r.tw2, r.Q};
    std::wstring* texts[] = {&shown.ih, &shown.d, &shown.t, &shown.ts, &shown.tl, &shown.fy, &shown.tw2, &shown.Q};
    for (size_t k = 0; k < std::size(kResultKeys); ++k) {
        showTileNumber(dialog, kResultKeys[k], values[k], 3);
        readTileText(dialog, kResultKeys[k], 60, *texts[k]);
    }
}

void onCalculate(ads_callback_packet* packet) {
    auto* session = static_cast<Session*>(packet->client_data);
    ads_hdlg dialog = packet->dialog;
    clearInputError(dialog);
    clearResults(dialog, *session);
    const CoilCheckReadings readings = readInputs(dialog, *session);
    if (auto fault = firstCoilCheckFault(readings)) {
        showInputError(dialog, fault->message, fault->key, ErrorPlace::Alert);
        return;
    }
    const CoilCheckInput input = coilCheckInput(readings);
    const std::wstring model = chosenModel(dialog, *session);
    CoolerModel record;
    if (!lookupCoolerModel(suitePath(kCoolerDatabase), model, input.rows, record, alertBox())) {
        ads_mode_tile(dialog, L"Nn", MODE_SETFOCUS);  // the lookup has told what is wrong
        return;
    }
    CoilCheckResult result;
    const CoilCheckStatus status = checkCoil(input, record, result, alertBox());
    if (status != CoilCheckStatus::Done) {
        showInputError(dialog, coilCheckMessage(status));
        return;
    }
    showResults(dialog, result, session->shown);
    session->checked = true;
    session->input = input;
    session->model = model;
}

void onSave(ads_callback_packet* packet) {
    auto* session = static_cast<Session*>(packet->client_data);
    if (!session->checked) {
        showInputError(packet->dialog, kNothingToSave, L"cal");
        return;
    }
    if (appendResultBlock(kCoolerResultFile, coolerReportTitle(),
                          coolerReportBlock(session->input, session->model, session->shown),
                          {Channel::Alert, kMsgCannotCreateResultFile}))
        showInputError(packet->dialog, kSaved);
}

void onHelp(ads_callback_packet* packet) {
    const auto* session = static_cast<const Session*>(packet->client_data);
    DialogSession help(session->dclId);
    if (help.create(kHelpDialog, {Channel::Alert, kCannotShowDialog})) help.run();
}

// The model list and the standard inputs: a standard atmosphere, one 4-row unit, summer air
// of 27 °C dry bulb and 19.5 °C wet bulb, chilled water at 7 °C; the flows are the designer's.
void fillInputs(ads_hdlg dialog, Session& session) {
    session.models = coolerModelNames(listCoolerRecords(suitePath(kCoolerDatabase)));
    ads_start_list(dialog, L"type", LIST_NEW, 0);
    for (const std::wstring& name : session.models) ads_add_list(name.c_str());
    ads_end_list();
    if (!session.models.empty()) ads_set_tile(dialog, L"type", L"0");
    const struct {
        const wchar_t* key;
        const wchar_t* text;
    } defaults[] = {{L"B", L"101.325"}, {L"Nn", L"4"},         {L"nu_value", L"1"}, {L"conn", L"parallel"},
                    {L"t1_value", L"27"}, {L"ts1_value", L"19.5"}, {L"tw1_value", L"7"}};
    for (const auto& d : defaults) ads_set_tile(dialog, d.key, d.text);
}

}  // namespace

int coolerCheck() {
    DialogSession dialogs(kCoolerDialogFile, {Channel::Alert, kMsgCannotLoadDialog});
    if (!dialogs.loaded()) return RTERROR;
    if (!dialogs.create(kMainDialog, {Channel::Alert, kCannotShowDialog})) return RTERROR;
    Session session;
    session.dclId = dialogs.dclId();
    fillInputs(dialogs.dialog(), session);
    dialogs.action(L"cal", onCalculate, &session);
    dialogs.action(L"saveres", onSave, &session);
    dialogs.action(L"help", onHelp, &session);
    dialogs.run();
    return RTNORM;
}

}  // namespace vrn2
