// The i-d chart and the air mix kept for it belong to one drawing: a chart drawn in one
// drawing is not there in another, while the remembered dialog inputs follow the user.
#include "psychro/air_mix.h"
#include "psychro/id_chart.h"
#include "psychro/psychro_handlers.h"
#include "tests/psychro/result_file_session.h"

namespace {

using host::dcl::lastDialog;

class ChartPerDrawing : public result_file_test::ResultFileSession {
protected:
    // A second drawing with the installation root, as the suite's start-up code gives it.
    host::Document& openSecond() {
        host::lisp::ValuePtr root = doc().symbols()[L"_DRV"];
        host::Document& second = host().openDocument(L"second.dxf");
        second.symbols()[L"_DRV"] = root;
        return second;
    }
    bool chartButtonEnabled() {
        EXPECT_TRUE(call(L"c:airmix").defined);
        const auto* mix = lastDialog(L"airmixdlg");
        return mix && mix->tile(L"i_d") && mix->tile(L"i_d")->enabled;
    }
};

TEST_F(ChartPerDrawing, TwoDrawingsKeepSeparateCharts) {
    host::Document& first = doc();
    vrn2::IdChart& chart = vrn2::idChart();
    chart.drawn = true;
    chart.originX = 100.0;
    host::Document& second = openSecond();
    EXPECT_FALSE(vrn2::idChart().drawn) << "no chart has been drawn in the second drawing";
    EXPECT_EQ(vrn2::idChart().originX, 0.0);
    vrn2::idChart().originX = 55.0;
    host().makeCurrent(first);
    EXPECT_TRUE(vrn2::idChart().drawn);
    EXPECT_EQ(vrn2::idChart().originX, 100.0);

    // Picking a point in the second drawing finds no chart there.
    host().makeCurrent(second);
    queue(L"ci_dt", LR"((press "sel_point"))");
    host().runInvocation(18, {}, [] { return vrn2::statePoint(); });
    EXPECT_EQ(printed(), L"先生成焓湿图.");
    EXPECT_EQ(runs(L"ci_dt"), 2) << "the dialog opens again, as without any chart";
}

TEST_F(ChartPerDrawing, TheMixForTheChartStaysWithItsDrawingAndThePressureWithTheUser) {
    queue(L"airmixdlg", LR"((set "press" "95.5") (press "procres"))");
    EXPECT_TRUE(chartButtonEnabled()) << "enabled by the mix just computed";
    EXPECT_TRUE(chartButtonEnabled()) << "and the first drawing keeps it";

    host::Document& second = openSecond();
    EXPECT_FALSE(chartButtonEnabled()) << "the second drawing has none";
    EXPECT_EQ(lastDialog(L"airmixdlg")->value(L"press"), L"95.5") << "the remembered pressure is the module's";

    host().closeDocument(second);
    EXPECT_TRUE(chartButtonEnabled());
}

}  // namespace
