// Tile values: declared values, radio clusters, lists, sliders, edit limits; images and their
// size in pixels.
#include "dcl_fixture.h"
#include "host/runtime/screen.h"

namespace dcltest {
namespace {

class DclTiles : public DclTest {
protected:
    void SetUp() override {
        DclTest::SetUp();
        h = open(load("basic.dcl"), L"basic");
    }
    void TearDown() override {
        if (h) start(h);
        DclTest::TearDown();
    }
    std::vector<std::wstring> list(const wchar_t* key) {
        start(h);
        h = nullptr;
        const auto* t = host::dcl::lastDialog(L"basic")->tile(key);
        return t ? t->list : std::vector<std::wstring>{L"<missing>"};
    }
    ads_hdlg h = nullptr;
};

TEST_F(DclTiles, DeclaredValuesAreMadeValid) {
    EXPECT_EQ(tileValue(h, L"name"), L"abc");
    EXPECT_EQ(tileValue(h, L"flag"), L"1");
    // two radio buttons declared on: only the last one stays on
    EXPECT_EQ(tileValue(h, L"r1"), L"0");
    EXPECT_EQ(tileValue(h, L"r2"), L"1");
    EXPECT_EQ(tileValue(h, L"choice"), L"r2");
    EXPECT_EQ(tileValue(h, L"items"), L"1");
    EXPECT_EQ(tileValue(h, L"many"), L"");
    EXPECT_EQ(tileValue(h, L"pick"), L"0");   // a popup list shows its first item
    EXPECT_EQ(tileValue(h, L"level"), L"20"); // 25 is beyond max_value
    EXPECT_EQ(tileValue(h, L"msg"), L"Hello");
    EXPECT_EQ(tileValue(h, L"cn"), L"\u5927\u6C14\u538B(kPa):");
    EXPECT_EQ(tileValue(h, L"go"), L"");
    EXPECT_EQ(tileValue(h, L"error"), L"");
    EXPECT_EQ(attribute(h, L"go", L"errmsg"), L"Go failed");  // a user-defined attribute
}

TEST_F(DclTiles, RadioClusterValueIsTheSelectedKey) {
    EXPECT_EQ(ads_set_tile(h, L"r3", L"1"), RTNORM);
    EXPECT_EQ(tileValue(h, L"choice"), L"r3");
    EXPECT_EQ(tileValue(h, L"r2"), L"0");
    EXPECT_EQ(ads_set_tile(h, L"choice", L"r1"), RTNORM);
    EXPECT_EQ(tileValue(h, L"r1"), L"1");
    EXPECT_EQ(tileValue(h, L"r3"), L"0");
    EXPECT_EQ(ads_set_tile(h, L"r1", L"0"), RTNORM);
    EXPECT_EQ(tileValue(h, L"choice"), L"");
    EXPECT_EQ(ads_set_tile(h, L"choice", L"nosuch"), RTNORM);  // names no button: nothing changes
    EXPECT_EQ(tileValue(h, L"choice"), L"");
}

TEST_F(DclTiles, ToggleSliderAndListValuesFromTheProgram) {
    ads_set_tile(h, L"flag", L"yes");
    EXPECT_EQ(tileValue(h, L"flag"), L"0");
    ads_set_tile(h, L"level", L"5");
    EXPECT_EQ(tileValue(h, L"level"), L"10");
    ads_set_tile(h, L"level", L"15");
    EXPECT_EQ(tileValue(h, L"level"), L"15");
    ads_set_tile(h, L"items", L"2 0");
    EXPECT_EQ(tileValue(h, L"items"), L"2");  // one item unless multiple_select
    ads_set_tile(h, L"many", L"3 1 9");
    EXPECT_EQ(tileValue(h, L"many"), L"1 3");
    ads_set_tile(h, L"msg", L"Changed text");
    EXPECT_EQ(tileValue(h, L"msg"), L"Changed text");
    ads_set_tile(h, L"error", L"Bad input.");
    EXPECT_EQ(tileValue(h, L"error"), L"Bad input.");
}

TEST_F(DclTiles, ListNewAppendChange) {
    ASSERT_EQ(ads_start_list(h, L"items", LIST_NEW, 0), RTNORM);
    EXPECT_EQ(ads_add_list(L"one"), RTNORM);
    EXPECT_EQ(ads_add_list(L"two"), RTNORM);
    EXPECT_EQ(ads_set_tile(h, L"msg", L"x"), RTERROR);  // not while a list is open
    EXPECT_EQ(ads_end_list(), RTNORM);
    EXPECT_EQ(tileValue(h, L"items"), L"");  // a new list has nothing selected

    ASSERT_EQ(ads_start_list(h, L"items", LIST_APPEND, 0), RTNORM);
    ads_add_list(L"three");
    ads_end_list();
    ads_set_tile(h, L"items", L"2");

    ASSERT_EQ(ads_start_list(h, L"items", LIST_CHANGE, 1), RTNORM);
    ads_add_list(L"TWO");
    ads_add_list(L"Two again");  // replaces the same item again
    ads_end_list();
    EXPECT_EQ(tileValue(h, L"items"), L"2");  // changing an item keeps the selection

    EXPECT_EQ(ads_start_list(h, L"items", LIST_CHANGE, 3), RTERROR);  // no item 3
    EXPECT_EQ(ads_add_list(L"lost"), RTERROR);
    EXPECT_EQ(ads_end_list(), RTERROR);
    EXPECT_EQ(ads_start_list(h, L"msg", LIST_NEW, 0), RTERROR);  // not a list
    EXPECT_EQ(list(L"items"), (std::vector<std::wstring>{L"one", L"Two again", L"three"}));
}

TEST_F(DclTiles, PopupListAfterANewList) {
    ads_start_list(h, L"pick", LIST_NEW, 0);
    ads_end_list();
    EXPECT_EQ(tileValue(h, L"pick"), L"");
    ads_start_list(h, L"pick", LIST_APPEND, 0);
    ads_add_list(L"p");
    ads_add_list(L"q");
    ads_end_list();
    EXPECT_EQ(tileValue(h, L"pick"), L"0");
    ads_set_tile(h, L"pick", L"1");
    EXPECT_EQ(tileValue(h, L"pick"), L"1");
}

TEST_F(DclTiles, DimensionsAreSizeMinusOne) {
    short cx = 0, cy = 0;
    // 10 x 4 cells of 8 x 16 pixels
    ASSERT_EQ(ads_dimensions_tile(h, L"pic", &cx, &cy), RTNORM);
    EXPECT_EQ(cx, 79);
    EXPECT_EQ(cy, 63);
    // width 5 cells = 40 px; aspect_ratio 0.5 = width / height gives 80 px
    ASSERT_EQ(ads_dimensions_tile(h, L"ibtn", &cx, &cy), RTNORM);
    EXPECT_EQ(cx, 39);
    EXPECT_EQ(cy, 79);
    // list_box defaults: 10 x 10 cells
    ASSERT_EQ(ads_dimensions_tile(h, L"items", &cx, &cy), RTNORM);
    EXPECT_EQ(cx, 79);
    EXPECT_EQ(cy, 159);
    EXPECT_EQ(ads_dimensions_tile(h, L"nope", &cx, &cy), RTERROR);
}

TEST_F(DclTiles, ImageDrawingIsRecordedInTheTile) {
    host::clearScreenVectors();
    ASSERT_EQ(ads_start_image(h, L"pic"), RTNORM);
    EXPECT_EQ(ads_fill_image(0, 0, 80, 64, BGLCOLOR), RTNORM);
    EXPECT_EQ(ads_vector_image(0, 0, 79, 63, 1), RTNORM);
    EXPECT_EQ(ads_slide_image(0, 0, 80, 64, L"lib(chart)"), RTNORM);
    EXPECT_EQ(ads_set_tile(h, L"msg", L"x"), RTERROR);  // not while an image is open
    EXPECT_EQ(ads_end_image(), RTNORM);
    EXPECT_TRUE(host::screenVectors().empty());

    // Outside an image, vectors go to the graphics screen and fills are refused.
    EXPECT_EQ(ads_vector_image(1, 2, 3, 4, 5), RTNORM);
    ASSERT_EQ(host::screenVectors().size(), 1u);
    EXPECT_EQ(host::screenVectors()[0].x2, 3);
    EXPECT_EQ(ads_fill_image(0, 0, 1, 1, 1), RTERROR);
    EXPECT_EQ(ads_end_image(), RTERROR);
    EXPECT_EQ(ads_start_image(h, L"msg"), RTERROR);  // not an image tile
    host::clearScreenVectors();

    start(h);
    const auto& ops = host::dcl::lastDialog(L"basic")->tile(L"pic")->image;
    h = nullptr;
    ASSERT_EQ(ops.size(), 3u);
    using K = host::dcl::ImageOp::Kind;
    EXPECT_EQ(ops[0].kind, K::Fill);
    EXPECT_EQ(ops[0].x2, 80);
    EXPECT_EQ(ops[0].color, BGLCOLOR);
    EXPECT_EQ(ops[1].kind, K::Vector);
    EXPECT_EQ(ops[1].x2, 79);
    EXPECT_EQ(ops[1].y2, 63);
    EXPECT_EQ(ops[1].color, 1);
    EXPECT_EQ(ops[2].kind, K::Slide);
    EXPECT_EQ(ops[2].slide, L"lib(chart)");
}

TEST_F(DclTiles, TitleFromLabelWithEscapes) {
    start(h);
    h = nullptr;
    EXPECT_EQ(host::dcl::lastDialog(L"basic")->title, L"Basic \"quoted\"\ttab\\end");
}

}  // namespace
}  // namespace dcltest
