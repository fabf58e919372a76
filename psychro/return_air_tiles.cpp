#include "psychro/return_air_tiles.h"

#include <vector>

#include "acedads.h"
#include "frame/tile_numbers.h"
#include "psychro/remembered_pressure.h"

namespace vrn2 {
namespace {

constexpr int kMaxInputChars = 30;

struct TileDefault {
    const wchar_t* key;
    const wchar_t* text;
};

// The dialog's first opening: a room at 22 °C and 55 % with 3.314 kW of heat and 0.9504 kg/h
// of moisture, summer outdoor air of 33.2 °C with a 26.4 °C wet bulb, 15 % fresh air, supply
// 8 K below the room, dew point at 95 %; winter fresh air preheated below 5 °C.
constexpr TileDefault kEditDefaults[] = {
    {L"B", L"101.325"},     {L"tn_value", L"22"}, {L"rhn_value", L"55"},  {L"tw_value", L"33.2"},
    {L"ow_value", L"26.4"}, {L"q_value", L"3.314"}, {L"w_value", L"0.9504"}, {L"m_value", L"15"},
    {L"sup_value", L"8"},   {L"tp_value", L"5"},  {L"g2_value", L"0"},
};
// Radio buttons, one group a row; the first of each is on at the first opening.
const std::vector<std::vector<const wchar_t*>> kRadioGroups = {
    {L"sys1", L"sys2"},        {L"summer", L"winter"},   {L"ow_ts", L"ow_fy"},   {L"load_w", L"load_e"},
    {L"fresh_m", L"fresh_g"},  {L"sup_dt", L"sup_dew", L"sup_g"}, {L"rhl95", L"rhl90"}, {L"hum_ad", L"hum_st"},
};

bool on(ads_hdlg dialog, const wchar_t* key) {
    std::wstring value;
    return readTileText(dialog, key, 7, value) && value == L"1";
}

std::optional<double> number(ads_hdlg dialog, const wchar_t* key) {
    double value = 0.0;
    if (readTileNumber(dialog, key, kMaxInputChars, value)) return value;
    return std::nullopt;
}

ReturnAirTexts defaultTexts() {
    ReturnAirTexts texts;
    for (const TileDefault& d : kEditDefaults) texts[d.key] = d.text;
    for (const auto& group : kRadioGroups)
        for (std::size_t k = 0; k < group.size(); ++k) texts[group[k]] = k == 0 ? L"1" : L"0";
    return texts;
}

void label(ads_hdlg dialog, const wchar_t* key, bool first, const wchar_t* ifFirst, const wchar_t* otherwise) {
    ads_set_tile(dialog, key, first ? ifFirst : otherwise);
}

void enable(ads_hdlg dialog, const wchar_t* key, bool enabled) {
    ads_mode_tile(dialog, key, enabled ? MODE_ENABLE : MODE_DISABLE);
}

void onChoice(ads_callback_packet* packet) { showReturnAirChoices(packet->dialog); }

}  // namespace

ReturnAirTexts& rememberedReturnAirTexts() {
    static ReturnAirTexts texts = defaultTexts();
    return texts;
}

void fillReturnAirTiles(ads_hdlg dialog, const ReturnAirTexts& texts) {
    for (const auto& [key, text] : texts) ads_set_tile(dialog, key.c_str(), text.c_str());
    // A pressure another psychrometric dialog accepted since is the one to start from.
    double kPa = 0.0;
    if (rememberedPressure(kPa)) showTileNumber(dialog, L"B", kPa, kRememberedPressureDecimals);
    showReturnAirChoices(dialog);
}

void keepReturnAirTiles(ads_hdlg dialog, ReturnAirTexts& texts) {
    for (auto& [key, text] : texts) readTileText(dialog, key.c_str(), kMaxInputChars, text);
}

ReturnAirReadings readReturnAirTiles(ads_hdlg dialog) {
    ReturnAirReadings r;
    ReturnAirInput& c = r.choices;
    c.kind = on(dialog, L"sys2") ? ReturnAirKind::secondary : ReturnAirKind::primary;
    c.season = on(dialog, L"winter") ? Season::winter : Season::summer;
    c.outdoorWetBulb = !on(dialog, L"ow_fy");
    c.ratioGiven = on(dialog, L"load_e");
    c.freshFlowGiven = on(dialog, L"fresh_g");
    c.supply = on(dialog, L"sup_dew") ? SupplyRule::dewPoint
               : on(dialog, L"sup_g") ? SupplyRule::airFlow
                                      : SupplyRule::temperatureDifference;
    c.fyL = on(dialog, L"rhl90") ? 90.0 : 95.0;
    c.humidifier = on(dialog, L"hum_st") ? Humidifier::steam : Humidifier::adiabatic;
    std::optional<double>* fields[] = {&r.B, &r.tN, &r.fyN, &r.tW, &r.outdoorSecond, &r.Q, &r.loadSecond,
                                       &r.fresh, &r.supplyValue, &r.preheatLimit, &r.secondaryFlow};
    static_assert(sizeof fields / sizeof fields[0] == sizeof kEditDefaults / sizeof kEditDefaults[0]);
    for (std::size_t k = 0; k < sizeof fields / sizeof fields[0]; ++k) *fields[k] = number(dialog, kEditDefaults[k].key);
    return r;
}

void showReturnAirChoices(ads_hdlg dialog) {
    const bool winter = on(dialog, L"winter");
    label(dialog, L"ow_text", !on(dialog, L"ow_fy"), L"湿球温度(℃):", L"相对湿度(%):");
    label(dialog, L"w_text", !on(dialog, L"load_e"), L"余湿量(kg/h):", L"热湿比(kJ/kg):");
    label(dialog, L"m_text", !on(dialog, L"fresh_g"), L"新风比(%):", L"新风量(kg/h):");
    label(dialog, L"sup_text", !on(dialog, L"sup_g"), L"送风温差(℃):", L"送风量(kg/h):");
    enable(dialog, L"sup_value", !on(dialog, L"sup_dew"));
    enable(dialog, L"tp_value", winter);
    enable(dialog, L"hum_ad", winter);
    enable(dialog, L"hum_st", winter);
    enable(dialog, L"g2_value", winter && on(dialog, L"sys2"));
}

void bindReturnAirChoices(ads_hdlg dialog) {
    for (const auto& group : kRadioGroups)
        for (const wchar_t* key : group) ads_action_tile(dialog, key, onChoice);
}

}  // namespace vrn2
