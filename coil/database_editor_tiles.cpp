#include "coil/database_editor_tiles.h"

#include "coil/database_text.h"
#include "frame/paths.h"
#include "frame/tile_numbers.h"

namespace vrn2 {
namespace {

constexpr int kMaxTextChars = 30;

struct NumberTile {
    const wchar_t* key;
    double CoolerModel::*value;
    std::wstring RecordTexts::*text;
    int decimals;  // as the database writes the value
};

constexpr NumberTile kNumberTiles[] = {
    {L"A_value", &CoolerModel::A, &RecordTexts::A, 4},    {L"B_value", &CoolerModel::B, &RecordTexts::B, 4},
    {L"m_value", &CoolerModel::m, &RecordTexts::m, 4},    {L"p_value", &CoolerModel::p, &RecordTexts::p, 4},
    {L"n_value", &CoolerModel::n, &RecordTexts::n, 4},    {L"L1_value", &CoolerModel::L1, &RecordTexts::L1, 2},
    {L"L2_value", &CoolerModel::L2, &RecordTexts::L2, 2}, {L"Fd_value", &CoolerModel::Fd, &RecordTexts::Fd, 4},
    {L"Fy_value", &CoolerModel::Fy, &RecordTexts::Fy, 4}, {L"fw_value", &CoolerModel::fw, &RecordTexts::fw, 6},
};

}  // namespace

std::vector<std::wstring> showRecord(ads_hdlg dialog, const CoolerModel& record) {
    for (const NumberTile& tile : kNumberTiles) showTileNumber(dialog, tile.key, record.*tile.value, tile.decimals);
    std::vector<std::wstring> entries;
    for (const ContactPair& pair : record.E2) {
        if (pair.Vy == 0.0) break;
        entries.push_back(contactListEntry(pair.Vy, pair.E2));
    }
    showList(dialog, L"E2_list", entries);
    return entries;
}

void showList(ads_hdlg dialog, const wchar_t* key, const std::vector<std::wstring>& entries) {
    ads_start_list(dialog, key, LIST_NEW, 0);
    for (const std::wstring& entry : entries) ads_add_list(entry.c_str());
    ads_end_list();
}

RecordTexts readRecordTexts(ads_hdlg dialog, const std::vector<std::wstring>& entries) {
    RecordTexts texts;
    readTileText(dialog, L"type", kMaxTextChars, texts.type);
    readTileText(dialog, L"Nn", kMaxTextChars, texts.rows);
    for (const NumberTile& tile : kNumberTiles) readTileText(dialog, tile.key, kMaxTextChars, texts.*tile.text);
    texts.entries = entries;
    return texts;
}

void showFormula(ads_hdlg dialog) {
    short width = 0, height = 0;
    if (ads_dimensions_tile(dialog, L"formula", &width, &height) != RTNORM) return;
    if (ads_start_image(dialog, L"formula") != RTNORM) return;
    ads_slide_image(0, 0, width, height, suitePath(L"dwglib/formula").c_str());
    ads_end_image();
}

}  // namespace vrn2
