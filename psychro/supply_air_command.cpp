// "c:gscal": the supply-air dialog. It opens with the standard inputs, checks the inputs in a
// fixed order when "cal" is pressed, and shows the result over the dialog, which stays open
// for the next case.
#include <string>

#include "acedads.h"
#include "adsdlg.h"
#include "frame/dialog_session.h"
#include "frame/messages.h"
#include "frame/tile_numbers.h"
#include "psychro/psychro_handlers.h"
#include "psychro/supply_air_checks.h"
#include "psychro/supply_air_result_dialog.h"

namespace vrn2 {
namespace {

constexpr wchar_t kDialogFile[] = L"dwglib/gscal.dcl";
constexpr wchar_t kMainDialog[] = L"gs_caldlg";
constexpr wchar_t kHelpDialog[] = L"intro_scproofcal";
constexpr wchar_t kNoResult[] = L"无法求得结果,检查输入参数是否合理?";
constexpr wchar_t kTotalLoadLabel[] = L"  总热冷负荷(kW):  ";
constexpr wchar_t kSensibleLoadLabel[] = L"  显热冷负荷(kW):  ";
constexpr int kMaxInputChars = 30;

// The input tiles, in the order of the checks.
constexpr const wchar_t* kInputKeys[] = {L"B", L"tn_value", L"rhn_value", L"q_value", L"w_value", L"dt_value"};
constexpr int kInputCount = sizeof kInputKeys / sizeof kInputKeys[0];

// What the dialog opens with every time: a standard atmosphere, a room at 22 °C and 60 %,
// 11.6 kW of total load with 5 kg/h of moisture, supplied 6 K below the room.
constexpr const wchar_t* kDefaultTexts[kInputCount] = {L"101.325", L"22", L"60", L"11.6", L"5", L"6"};

struct Session {
    int dclId = -1;
};

bool toggleOn(ads_hdlg dialog, const wchar_t* key) {
    wchar_t value[8] = {};
    return ads_get_tile(dialog, key, value, 7) == RTNORM && value[0] == L'1';
}

void showLoadKind(ads_hdlg dialog, bool totalLoad) {
    ads_set_tile(dialog, L"q_text", totalLoad ? kTotalLoadLabel : kSensibleLoadLabel);
}

void showMoistureGiven(ads_hdlg dialog, bool given) {
    ads_mode_tile(dialog, L"w_value", given ? MODE_ENABLE : MODE_DISABLE);
}

void onLoadKind(ads_callback_packet* packet) { showLoadKind(packet->dialog, toggleOn(packet->dialog, L"q")); }
void onMoistureGiven(ads_callback_packet* packet) {
    showMoistureGiven(packet->dialog, toggleOn(packet->dialog, L"w"));
}

SupplyAirReadings readInputs(ads_hdlg dialog) {
    SupplyAirReadings r;
    std::optional<double>* fields[kInputCount] = {&r.B, &r.tn, &r.rhn, &r.load, &r.w, &r.dt};
    for (int k = 0; k < kInputCount; ++k) {
        double value = 0.0;
        if (readTileNumber(dialog, kInputKeys[k], kMaxInputChars, value)) *fields[k] = value;
    }
    r.totalLoad = toggleOn(dialog, L"q");
    r.moistureGiven = toggleOn(dialog, L"w");
    return r;
}

void onCalculate(ads_callback_packet* packet) {
    const auto* session = static_cast<const Session*>(packet->client_data);
    ads_hdlg dialog = packet->dialog;
    clearInputError(dialog);
    SupplyAirReadings readings = readInputs(dialog);
    if (auto fault = firstSupplyAirFault(readings)) {
        showInputError(dialog, fault->message, fault->key, ErrorPlace::Alert);
        return;
    }
    SupplyAirInput input = supplyAirInput(readings);
    SupplyAirResult result;
    if (computeSupplyAir(input, result) != RTNORM) {
        showInputError(dialog, kNoResult);
        return;
    }
    showSupplyAirResult(session->dclId, input, result);
}

void onHelp(ads_callback_packet* packet) {
    const auto* session = static_cast<const Session*>(packet->client_data);
    DialogSession help(session->dclId);
    if (help.create(kHelpDialog, {Channel::Alert, kMsgCannotShowDialog})) help.run();
}

void fillInputs(ads_hdlg dialog) {
    for (int k = 0; k < kInputCount; ++k) ads_set_tile(dialog, kInputKeys[k], kDefaultTexts[k]);
    ads_set_tile(dialog, L"q", L"1");
    ads_set_tile(dialog, L"w", L"1");
    showLoadKind(dialog, true);
    showMoistureGiven(dialog, true);
}

void connectActions(const DialogSession& dialogs, Session& session) {
    dialogs.action(L"q", onLoadKind);
    dialogs.action(L"w", onMoistureGiven);
    dialogs.action(L"cal", onCalculate, &session);
    dialogs.action(L"help", onHelp, &session);
}

}  // namespace

int supplyAirCalculation() {
    DialogSession dialogs(kDialogFile, {Channel::Alert, kMsgCannotLoadDialog});
    if (!dialogs.loaded()) return RTERROR;
    if (!dialogs.create(kMainDialog, {Channel::Alert, kMsgCannotCreateDialog})) return RTERROR;
    Session session{dialogs.dclId()};
    fillInputs(dialogs.dialog());
    connectActions(dialogs, session);
    dialogs.run();
    return RTNORM;
}

}  // namespace vrn2
