// c:constp run as a designer runs it: the dialog file has every key the command uses, each bad
// input has its message and focus, a saved process lands in qres.txt and in the calculation
// journal, and with a chart drawn the process is drawn on it.
#include <cmath>
#include <string>

#include "adsdlg.h"
#include "host/dcl/dcl.h"
#include "psychro/calculation_journal.h"
#include "psychro/chart_state.h"
#include "psychro/id_chart.h"
#include "psychro/process_checks.h"
#include "psychro/psychro_handlers.h"
#include "tests/psychro/result_file_session.h"

namespace {

using host::dcl::lastDialog;
using result_file_test::utf8;

class ProcessCommand : public result_file_test::ResultFileSession {
protected:
    void TearDown() override {
        vrn2::idChart() = vrn2::IdChart{};
        vrn2::calculatedStates().clear();
        vrn2::clearCalculationJournal();
        ResultFileSession::TearDown();
    }
    // The test's own copy of the module code, whose chart, states and journal the test sees.
    void runOwnCopy() {
        host().runInvocation(24, {}, [] { return vrn2::airProcess(); });
    }
    std::wstring qres() {
        const std::string bytes = fileBytes("qres.txt");
        return host::fromUtf8(bytes);
    }
    // A chart with a simple mapping: x = 10·d, y = i − 2.5·d.
    void fakeChart() {
        vrn2::IdChart& chart = vrn2::idChart();
        chart.drawn = true;
        chart.B = 101.325;
        chart.originX = chart.originY = 0.0;
        chart.moistureScale = 10.0;
        chart.enthalpyScale = 1.0;
        chart.enthalpySkew = 2.5;
        chart.markDiameter = 2.0;
        vrn2::drawnChart().textHeight = 1.5;
    }
    // The entities of the drawing as "TYPE LAYER" words, oldest first.
    std::wstring entityTypes() {
        return eval(LR"((progn (setq e (entnext) out "") (while e (setq out (strcat out (cdr (assoc 0 (entget e))) ":" (cdr (assoc 8 (entget e))) " ")) (setq e (entnext e))) out))");
    }
};

struct Key {
    const wchar_t* key;
    const wchar_t* kind;
};

TEST_F(ProcessCommand, TheDialogFileHasEveryKeyTheCommandUses) {
    std::vector<Key> main = {{L"by_d", L"toggle"},        {L"last_state", L"button"}, {L"sel_point", L"button"},
                             {L"cal", L"button"},          {L"help", L"button"},       {L"cancel", L"button"},
                             {L"label1", L"edit_box"},     {L"label2", L"edit_box"},   {L"label3", L"edit_box"},
                             {L"error", L"text"}};
    for (int t = 0; t < vrn2::kProcessTileCount; ++t)
        main.push_back({vrn2::processTileSpec(static_cast<vrn2::ProcessTile>(t)).key, L"edit_box"});
    for (const wchar_t* key : vrn2::kProcessKindKeys) main.push_back({key, L"radio_button"});
    const std::vector<Key> result = {{L"kind_name", L"text"}, {L"r_t", L"text"},   {L"r_d", L"text"},
                                     {L"r_fy", L"text"},      {L"r_i", L"text"},   {L"r_ts", L"text"},
                                     {L"r_q", L"text"},       {L"r_w", L"text"},   {L"r_eps", L"text"},
                                     {L"r_g", L"text"},       {L"r_cf", L"text"},  {L"saveres", L"button"},
                                     {L"i_d", L"button"},     {L"error", L"text"}};
    const std::wstring path = testing_support::sourceRoot() + L"dwglib/constp.dcl";
    int id = -1;
    ASSERT_EQ(ads_load_dialog(path.c_str(), &id), RTNORM) << utf8(printed());
    EXPECT_EQ(printed().find(L"DCL error"), std::wstring::npos) << utf8(printed());
    for (const auto& [name, keys] : {std::pair{L"constpdlg", main}, std::pair{L"constpres", result},
                                      std::pair{L"constphlp", std::vector<Key>{{L"accept", L"button"}}}}) {
        ads_hdlg h = nullptr;
        ASSERT_EQ(ads_new_dialog(name, id, NULLCB, &h), RTNORM) << utf8(name);
        int status = 0;
        ads_start_dialog(h, &status);
        const auto* record = lastDialog(name);
        ASSERT_NE(record, nullptr);
        EXPECT_FALSE(record->title.empty());
        for (const Key& k : keys) {
            const auto* tile = record->tile(k.key);
            ASSERT_NE(tile, nullptr) << utf8(name) << " lacks " << utf8(k.key);
            EXPECT_EQ(tile->kind, k.kind) << utf8(name) << " " << utf8(k.key);
        }
    }
    ads_unload_dialog(id);
}

struct BadInput {
    const wchar_t* actions;
    const wchar_t* message;
    const wchar_t* focus;
};

TEST_F(ProcessCommand, EachBadInputHasItsMessageAndFocusAndNothingIsSaved) {
    const std::vector<BadInput> cases = {
        {LR"((set "B" "x"))", L"输入大气压力.", L"B"},
        {LR"((set "B" "30"))", L"大气压要求在50-200kPa之间.", L"B"},
        {LR"((set "t1" ""))", L"输入初始干球温度.", L"t1"},
        {LR"((set "fy1" "120"))", L"相对湿度要求在0-100之间.", L"fy1"},
        {LR"((set "k_heat" "1") (set "t2" "?"))", L"输入终点干球温度.", L"t2"},
        {LR"((set "k_dehum" "1") (set "by_d" "1") (set "d2" "-1"))", L"含湿量要求在0-100g/kg之间.", L"d2"},
        {LR"((set "k_mix" "1") (set "g3" "0"))", L"空气流量应大于0.", L"g3"},
        {LR"((set "k_heat" "1") (set "G" "abc"))", L"输入空气流量.", L"G"},
        // Inputs in range that make no process: the process's own message, at its input.
        {LR"((set "k_heat" "1") (set "t1" "30") (set "t2" "20"))", L"加热过程的终点温度应高于初始温度.", L"t2"},
        {LR"((set "k_cool" "1") (set "t1" "30") (set "fy1" "60") (set "t2" "18"))",
         L"终点温度低于初始状态的露点温度(21.", L"t2"},
        {LR"((set "k_steam" "1") (set "by_d" "0") (set "fy2" "40") (set "fy1" "60"))",
         L"加湿过程的终点相对湿度应高于初始相对湿度.", L"fy2"},
    };
    for (const BadInput& c : cases) {
        queue(L"constpdlg", std::wstring(c.actions) + LR"( (press "cal"))");
        runOwnCopy();
        const auto* dialog = lastDialog(L"constpdlg");
        ASSERT_NE(dialog, nullptr);
        EXPECT_EQ(dialog->value(L"error").rfind(c.message, 0), 0u)
            << utf8(c.actions) << " shows " << utf8(dialog->value(L"error"));
        EXPECT_EQ(dialog->focus, c.focus) << utf8(c.actions);
        EXPECT_EQ(lastDialog(L"constpres"), nullptr) << utf8(c.actions);
    }
    EXPECT_FALSE(exists("qres.txt"));
    EXPECT_TRUE(vrn2::calculationJournal().empty());
}

TEST_F(ProcessCommand, ASavedHeatingIsInTheFileTheJournalAndOnTheChart) {
    fakeChart();
    // 20 °C and 50 % (d = 7.343, i = 38.79 by the library), heated to 30 °C, 3600 kg/h:
    // Q = 3600·(i2 − i1)/3600 = i2 − i1 = (1.01 + 0.00184·d)·10 K = 10.235 kW.
    queue(L"constpdlg", LR"((set "k_heat" "1") (set "B" "101.325") (set "t1" "20") (set "fy1" "50") (set "t2" "30") (set "G" "3600") (set "label1" "W") (set "label2" "H") (press "cal"))");
    queue(L"constpres", LR"((press "saveres"))");
    runOwnCopy();
    const auto* res = lastDialog(L"constpres");
    ASSERT_NE(res, nullptr);
    const double d = std::stod(res->value(L"r_d"));
    EXPECT_NEAR(std::stod(res->value(L"r_q")), (1.01 + 0.00184 * d) * 10.0, 0.0015);
    EXPECT_EQ(res->value(L"r_w"), L"0");
    EXPECT_EQ(res->value(L"r_eps"), L"∞");
    EXPECT_EQ(res->value(L"r_t"), L"30");
    EXPECT_NE(printed().find(L"结果已存在文件qres.txt中."), std::wstring::npos);

    const std::wstring file = qres();
    EXPECT_EQ(file.find(L"\n          空气处理过程与回风系统计算结果\n"), 0u);
    EXPECT_NE(file.find(L"(B=101.325kPa)"), std::wstring::npos);
    EXPECT_NE(file.find(L"空气处理过程: 等湿加热 (W→H)"), std::wstring::npos) << utf8(file);
    EXPECT_NE(file.find(L"终点干球温度(℃)"), std::wstring::npos);
    const size_t ratio = file.find(L"热湿比ε(kJ/kg)");
    ASSERT_NE(ratio, std::wstring::npos);
    const size_t eol = file.find(L'\n', ratio);
    const std::wstring row = file.substr(ratio, eol == std::wstring::npos ? eol : eol - ratio);
    EXPECT_EQ(row.substr(row.size() - 5), L":   ∞") << utf8(file);
    EXPECT_NE(file.find(L"热量Q(kW)"), std::wstring::npos);

    ASSERT_EQ(vrn2::calculationJournal().size(), 1u);
    const vrn2::JournalEntry& entry = vrn2::calculationJournal().back();
    EXPECT_EQ(entry.kind, vrn2::JournalKind::process);
    EXPECT_EQ(entry.title, L"等湿加热");
    ASSERT_EQ(entry.states.size(), 2u);
    EXPECT_EQ(entry.states[0].label, L"W");
    EXPECT_EQ(entry.states[1].label, L"H");
    EXPECT_DOUBLE_EQ(entry.states[1].state.t, 30.0);

    // Drawn after the dialog closed, then the dialog opened again (and was cancelled).
    EXPECT_EQ(runs(L"constpdlg"), 2);
    EXPECT_EQ(entityTypes(), L"\"LINE:ID_PROCESS SOLID:ID_PROCESS LWPOLYLINE:ID_PROCESS TEXT:ID_PROCESS "
                             L"LWPOLYLINE:ID_PROCESS TEXT:ID_PROCESS \"");
    EXPECT_EQ(eval(L"(getvar \"CLAYER\")"), L"\"0\"") << "the designer's layer is current again";
    // The line runs from W to H at x = 10·d, y = i − 2.5·d: vertical, rising by Δi.
    const double x = 10.0 * entry.states[0].state.d;
    const double y1 = entry.states[0].state.i - 2.5 * entry.states[0].state.d;
    const double y2 = entry.states[1].state.i - 2.5 * entry.states[1].state.d;
    const std::wstring line = eval(L"(entget (entnext))");
    wchar_t start[96], end[96];
    std::swprintf(start, 96, L"(list %.9f %.9f 0.0)", x, y1);
    std::swprintf(end, 96, L"(list %.9f %.9f 0.0)", x, y2);
    EXPECT_EQ(eval(L"(< (distance (cdr (assoc 10 (entget (entnext)))) " + std::wstring(start) + L") 1e-6)"), L"T") << utf8(line);
    EXPECT_EQ(eval(L"(< (distance (cdr (assoc 11 (entget (entnext)))) " + std::wstring(end) + L") 1e-6)"), L"T") << utf8(line);
    // The arrowhead's tip touches the mark of H (radius 1) below it.
    std::swprintf(end, 96, L"(list %.9f %.9f 0.0)", x, y2 - 1.0);
    EXPECT_EQ(eval(L"(< (distance (cdr (assoc 10 (entget (entnext (entnext))))) " + std::wstring(end) + L") 1e-6)"), L"T");
    // The labels at the chart's text height.
    EXPECT_EQ(eval(L"(cdr (assoc 1 (entget (entlast))))"), L"\"H\"");
    EXPECT_EQ(eval(L"(cdr (assoc 40 (entget (entlast))))"), L"1.5");
}

TEST_F(ProcessCommand, WithoutAChartASavedProcessDrawsNothingAndTheDialogStaysOpen) {
    // Steam from 20 °C and 30 % to 60 %: ε = r + 1.84·t = 2536.8 kJ/kg.
    queue(L"constpdlg", LR"((set "k_steam" "1") (set "t1" "20") (set "fy1" "30") (set "by_d" "0") (set "fy2" "60") (set "G" "1000") (press "cal"))");
    queue(L"constpres", LR"((press "saveres"))");
    runOwnCopy();
    const auto* res = lastDialog(L"constpres");
    ASSERT_NE(res, nullptr);
    EXPECT_FALSE(res->tile(L"i_d")->enabled);
    EXPECT_EQ(res->value(L"r_eps"), L"2536.8");
    EXPECT_EQ(res->value(L"r_t"), L"20");
    // The heat comes with the steam's moisture: Q = W·ε/3600.
    EXPECT_NEAR(std::stod(res->value(L"r_q")), std::stod(res->value(L"r_w")) * 2536.8 / 3600.0, 0.002);
    EXPECT_NE(qres().find(L"等温加湿"), std::wstring::npos);
    EXPECT_EQ(runs(L"constpdlg"), 1) << "nothing to draw: the dialog was not closed for it";
    EXPECT_EQ(eval(L"(entlast)"), L"nil");
    EXPECT_EQ(vrn2::calculationJournal().size(), 1u);
}

TEST_F(ProcessCommand, AMixingIsADashedLineWithoutArrowAndTheInputsAreRemembered) {
    fakeChart();
    queue(L"constpdlg", LR"((set "k_mix" "1") (set "t1" "26") (set "fy1" "55") (set "t3" "34") (set "fy3" "50") (set "g3" "1000") (set "G" "3000") (press "cal"))");
    queue(L"constpres", LR"((press "i_d"))");
    runOwnCopy();
    EXPECT_FALSE(exists("qres.txt")) << "drawn without saving";
    EXPECT_TRUE(vrn2::calculationJournal().empty());
    const std::wstring types = entityTypes();
    EXPECT_EQ(types.find(L"SOLID"), std::wstring::npos) << utf8(types);
    EXPECT_NE(types.find(L"LINE:ID_PROCESS"), std::wstring::npos) << utf8(types);
    EXPECT_EQ(eval(L"(cdr (assoc 6 (entget (entnext))))"), L"\"ID_DASHED\"");
    EXPECT_EQ(eval(L"(and (tblsearch \"LTYPE\" \"ID_DASHED\") T)"), L"T");
    // Three marks: the two streams and the mixture, labelled 1, 2 and 3.
    int marks = 0;
    for (size_t at = 0; (at = types.find(L"LWPOLYLINE", at)) != std::wstring::npos; ++at) ++marks;
    EXPECT_EQ(marks, 3);
    // The next run opens with what was typed and the kind chosen.
    runOwnCopy();
    const auto* dialog = lastDialog(L"constpdlg");
    EXPECT_EQ(dialog->value(L"t3"), L"34");
    EXPECT_EQ(dialog->value(L"G"), L"3000");
    EXPECT_EQ(dialog->value(L"k_mix"), L"1");
    EXPECT_TRUE(dialog->tile(L"g3")->enabled);
    EXPECT_FALSE(dialog->tile(L"t2")->enabled);
}

TEST_F(ProcessCommand, TheStartCanBeTheLastStatePointOrAPointPickedOnTheChart) {
    queue(L"constpdlg", LR"((press "last_state"))");
    runOwnCopy();
    EXPECT_EQ(lastDialog(L"constpdlg")->value(L"error"), L"还没有求得的状态点,先用状态点计算(CI_DT)求出.");

    AirState kept;
    kept.B = 99.86;
    kept.t = 33.5;
    kept.fy = 57.25;
    StateFromTempHumidity(kept);
    vrn2::keepCalculatedState(kept);
    queue(L"constpdlg", LR"((press "last_state"))");
    runOwnCopy();
    EXPECT_EQ(lastDialog(L"constpdlg")->value(L"t1"), L"33.5");
    EXPECT_EQ(lastDialog(L"constpdlg")->value(L"fy1"), L"57.25");
    EXPECT_EQ(lastDialog(L"constpdlg")->value(L"B"), L"99.86");

    // Without a chart a pick is refused; on the chart the picked state becomes the start:
    // (x, y) = (100, 25) is d = 10 g/kg, i = 25 + 25 = 50 kJ/kg.
    queue(L"constpdlg", LR"((press "sel_point"))");
    runOwnCopy();
    EXPECT_NE(printed().find(L"先生成焓湿图."), std::wstring::npos);
    fakeChart();
    queue(L"constpdlg", LR"((press "sel_point"))");
    eval(L"(host-getpoint '(100 25))");
    runOwnCopy();
    const auto* dialog = lastDialog(L"constpdlg");
    const double t = (50.0 - 25.0) / (1.01 + 0.0184);  // (i − 2.5·d)/(1.01 + 0.00184·d)
    EXPECT_NEAR(std::stod(dialog->value(L"t1")), t, 0.0005);
    EXPECT_EQ(dialog->value(L"B"), L"101.325");
}

}  // namespace
