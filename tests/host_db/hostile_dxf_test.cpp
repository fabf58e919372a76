// Drawings from any program: numbers that do not fit their group are refused with the line,
// handles never wrap, sections given twice are not doubled on save, and blocks inserting
// themselves (or each other many times over) are measured in time.
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "host/db/database.h"
#include "host/db/extents.h"
#include "host/text.h"

namespace {

using host::db::Database;

std::string group(int code, const std::string& value) { return std::to_string(code) + "\n" + value + "\n"; }

std::string line(const std::string& x1 = "0", const std::string& flag = "") {
    return group(0, "LINE") + group(8, "0") + (flag.empty() ? "" : group(70, flag)) + group(10, x1) + group(20, "0") +
           group(30, "0") + group(11, "1") + group(21, "1") + group(31, "0");
}

std::string r12(const std::string& header, const std::string& blocks, const std::string& entities) {
    std::string s = group(0, "SECTION") + group(2, "HEADER") + group(9, "$ACADVER") + group(1, "AC1009") + header +
                    group(0, "ENDSEC");
    if (!blocks.empty()) s += group(0, "SECTION") + group(2, "BLOCKS") + blocks + group(0, "ENDSEC");
    return s + group(0, "SECTION") + group(2, "ENTITIES") + entities + group(0, "ENDSEC") + group(0, "EOF");
}

std::string refusal(const std::string& text) {
    std::wstring error;
    auto db = Database::parse(text, L"t.dxf", error);
    EXPECT_EQ(db, nullptr);
    return host::toUtf8(error);
}

std::unique_ptr<Database> parseOk(const std::string& text) {
    std::wstring error;
    auto db = Database::parse(text, L"t.dxf", error);
    EXPECT_NE(db, nullptr) << host::toUtf8(error);
    return db;
}

std::string insert(const std::string& block, const std::string& x, const std::string& y) {
    return group(0, "INSERT") + group(8, "0") + group(2, block) + group(10, x) + group(20, y);
}

std::string block(const std::string& name, const std::string& content) {
    return group(0, "BLOCK") + group(8, "0") + group(2, name) + group(70, "0") + group(10, "0") + group(20, "0") +
           group(3, name) + content + group(0, "ENDBLK") + group(8, "0");
}

TEST(HostileDxf, NumbersThatDoNotFitTheirGroupAreRefusedWithTheLine) {
    // Line 8 holds the value of the header's group 60; line 20 the LINE's group 70.
    std::string header = r12(group(9, "$TILEMODE") + group(70, "1e20"), "", "");
    EXPECT_NE(refusal(header).find("line 12: group code 70 needs a whole number from -32768 to 32767, found \"1e20\""),
              std::string::npos)
        << refusal(header);
    std::string flag = r12("", "", line("0", "1e30"));
    EXPECT_NE(refusal(flag).find("group code 70 needs a whole number"), std::string::npos);
    EXPECT_NE(refusal(r12("", "", line("0", "2.5"))).find("found \"2.5\""), std::string::npos);
    for (const char* notANumber : {"nan", "inf", "-inf", "1e400"})
        EXPECT_NE(refusal(r12("", "", line(notANumber))).find("group code 10 needs a number"), std::string::npos)
            << notANumber;
    // What does fit is read: a whole number written as a real, the ends of the range.
    EXPECT_NE(parseOk(r12("", "", line("0", "1.0"))), nullptr);
    EXPECT_NE(parseOk(r12("", "", line("0", "-32768"))), nullptr);
    EXPECT_NE(refusal(r12("", "", line("0", "32768"))).find("found \"32768\""), std::string::npos);
}

TEST(HostileDxf, HandlesNeverWrapAndAnUnreadableHandleIsReplaced) {
    auto db = parseOk(r12(group(9, "$HANDSEED") + group(5, "FFFFFFFFFFFFFFFF"), "", line()));
    ASSERT_NE(db, nullptr);
    uint64_t first = db->newHandle();
    uint64_t second = db->newHandle();
    EXPECT_NE(first, 0u);
    EXPECT_NE(second, 0u);
    EXPECT_NE(first, second);
    for (uint32_t e : db->entities()) {
        EXPECT_NE(db->record(e).handle, first);
        EXPECT_NE(db->record(e).handle, second);
    }

    // 17 hex digits are no handle: the LINE gets a new one, and only that one is written.
    std::string entity = group(0, "LINE") + group(5, "1FFFFFFFFFFFFFFFF") + line().substr(std::string("0\nLINE\n").size());
    auto repaired = parseOk(r12("", "", entity));
    ASSERT_NE(repaired, nullptr);
    std::string out = repaired->dxfText();
    EXPECT_EQ(out.find("1FFFFFFFFFFFFFFFF"), std::string::npos);
    size_t entities = out.find("ENTITIES");
    size_t handles = 0;
    for (size_t at = out.find("\n5\n", entities); at != std::string::npos; at = out.find("\n5\n", at + 1)) ++handles;
    EXPECT_EQ(handles, 1u) << out;
}

TEST(HostileDxf, ASectionGivenTwiceIsWrittenOnceAndSavingTwiceChangesNothing) {
    std::string once = group(0, "SECTION") + group(2, "ENTITIES") + line() + group(0, "ENDSEC");
    std::string text = group(0, "SECTION") + group(2, "HEADER") + group(9, "$ACADVER") + group(1, "AC1009") +
                       group(0, "ENDSEC") + once + once + group(0, "EOF");
    auto db = parseOk(text);
    ASSERT_NE(db, nullptr);
    EXPECT_EQ(db->entities().size(), 2u);
    std::string saved = db->dxfText();
    auto again = parseOk(saved);
    ASSERT_NE(again, nullptr);
    EXPECT_EQ(again->entities().size(), 2u);
    EXPECT_EQ(again->dxfText(), saved);
}

std::string layerTable(const std::string& tableHandle, const std::vector<std::pair<std::string, std::string>>& layers) {
    std::string s = group(0, "TABLE") + group(2, "LAYER") + group(5, tableHandle) + group(330, "0") +
                    group(100, "AcDbSymbolTable") + group(70, std::to_string(layers.size()));
    for (const auto& [handle, name] : layers)
        s += group(0, "LAYER") + group(5, handle) + group(330, tableHandle) + group(100, "AcDbSymbolTableRecord") +
             group(100, "AcDbLayerTableRecord") + group(2, name) + group(70, "0") + group(62, "7") + group(6, "CONTINUOUS");
    return s + group(0, "ENDTAB");
}

TEST(HostileDxf, ASecondTablesSectionJoinsTheFirst) {
    // The first TABLES section holds layers 0 and PIPES; the second holds PIPES again (its own
    // handle, owned by its own LAYER table) and DUCTS, and an APPID table the first lacks.
    auto section = [](const std::string& content) {
        return group(0, "SECTION") + group(2, "TABLES") + content + group(0, "ENDSEC");
    };
    std::string appids = group(0, "TABLE") + group(2, "APPID") + group(5, "30") + group(330, "0") +
                         group(100, "AcDbSymbolTable") + group(70, "1") + group(0, "APPID") + group(5, "31") +
                         group(330, "30") + group(100, "AcDbSymbolTableRecord") + group(100, "AcDbRegAppTableRecord") +
                         group(2, "ACAD") + group(70, "0") + group(0, "ENDTAB");
    std::string text = group(0, "SECTION") + group(2, "HEADER") + group(9, "$ACADVER") + group(1, "AC1015") +
                       group(9, "$HANDSEED") + group(5, "100") + group(0, "ENDSEC") +
                       section(layerTable("2", {{"10", "0"}, {"11", "PIPES"}})) +
                       section(layerTable("20", {{"21", "pipes"}, {"22", "DUCTS"}}) + appids) +
                       group(0, "SECTION") + group(2, "ENTITIES") + group(0, "ENDSEC") + group(0, "EOF");
    auto db = parseOk(text);
    ASSERT_NE(db, nullptr);
    ASSERT_EQ(db->tables().size(), 2u);
    EXPECT_EQ(db->tables()[0].name, "LAYER");
    EXPECT_EQ(db->tables()[1].name, "APPID");
    EXPECT_NE(db->findEntry("LAYER", L"DUCTS"), host::db::kNone);
    EXPECT_NE(db->findEntry("APPID", L"ACAD"), host::db::kNone);
    ASSERT_EQ(db->warnings().size(), 1u);
    EXPECT_EQ(host::toUtf8(db->warnings()[0]), "the LAYER table names PIPES twice; the entry at line 87 was left out");

    // Written: one TABLES section, one LAYER table of three layers, DUCTS owned by the table
    // that holds it; the left-out PIPES (handle 21) and the second table head (20) are gone.
    std::string saved = db->dxfText();
    auto count = [&saved](const std::string& what) {
        size_t n = 0;
        for (size_t at = saved.find(what); at != std::string::npos; at = saved.find(what, at + 1)) ++n;
        return n;
    };
    EXPECT_EQ(count("\nTABLES\n"), 1u);
    EXPECT_EQ(count("\nTABLE\n2\nLAYER\n"), 1u) << saved;
    EXPECT_EQ(count("\n0\nLAYER\n"), 3u) << saved;
    EXPECT_NE(saved.find("\n5\n22\n330\n2\n"), std::string::npos) << saved;
    EXPECT_EQ(saved.find("\n5\n21\n"), std::string::npos);
    EXPECT_EQ(saved.find("\n5\n20\n"), std::string::npos);
    EXPECT_EQ(saved.find("\n330\n20\n"), std::string::npos) << saved;
    auto again = parseOk(saved);
    ASSERT_NE(again, nullptr);
    EXPECT_TRUE(again->warnings().empty());
    EXPECT_EQ(again->dxfText(), saved);
}

TEST(HostileDxf, BlocksInsertingThemselvesOrEachOtherManyTimesAreMeasured) {
    // R holds a line from 0,0 to 1,1 and ten inserts of itself at 1,1: a cycle adds only the
    // insertion point, so R measures 0,0 to 1,1.
    std::string selfInserts;
    for (int i = 0; i < 10; ++i) selfInserts += insert("R", "1", "1");
    auto cyclic = parseOk(r12("", block("R", selfInserts + line()), insert("R", "0", "0")));
    ASSERT_NE(cyclic, nullptr);
    host::db::Box box = host::db::modelSpaceExtents(*cyclic);
    EXPECT_DOUBLE_EQ(box.minX, 0.0);
    EXPECT_DOUBLE_EQ(box.maxX, 1.0);
    EXPECT_DOUBLE_EQ(box.maxY, 1.0);

    // B0 inserts B1 ten times at 1,0, B1 inserts B2 so, ... B9 holds the line: 10^10 inserts
    // in all, each level moving the line one unit right, so B0 at 0,0 spans x 9..10.
    std::string blocks;
    for (int level = 0; level < 9; ++level) {
        std::string fan;
        for (int i = 0; i < 10; ++i) fan += insert("B" + std::to_string(level + 1), "1", "0");
        blocks += block("B" + std::to_string(level), fan);
    }
    blocks += block("B9", line());
    auto fan = parseOk(r12("", blocks, insert("B0", "0", "0")));
    ASSERT_NE(fan, nullptr);
    box = host::db::modelSpaceExtents(*fan);
    EXPECT_DOUBLE_EQ(box.minX, 9.0);
    EXPECT_DOUBLE_EQ(box.maxX, 10.0);
    EXPECT_DOUBLE_EQ(box.minY, 0.0);
    EXPECT_DOUBLE_EQ(box.maxY, 1.0);
}

TEST(HostileDxf, ExtendedDataIsAuditedOnReading) {
    std::string tables = group(0, "SECTION") + group(2, "TABLES") + group(0, "TABLE") + group(2, "APPID") +
                         group(70, "1") + group(0, "APPID") + group(2, "GOOD") + group(70, "0") + group(0, "ENDTAB") +
                         group(0, "ENDSEC");
    std::string unregistered = line() + group(1001, "GOOD") + group(1000, "kept") + group(1001, "UNREG") +
                               group(1000, "registered now") + group(1001, "A<B") + group(1000, "no name");
    std::string unbalanced = line() + group(1001, "GOOD") + group(1002, "{") + group(1000, "lost");
    std::string tooBig = line() + group(1001, "GOOD");
    for (int i = 0; i < 70; ++i) tooBig += group(1000, std::string(250, 'y'));  // 70 * 253 bytes > 16383
    std::string header = group(0, "SECTION") + group(2, "HEADER") + group(9, "$ACADVER") + group(1, "AC1009") +
                         group(0, "ENDSEC");
    std::string text = header + tables + group(0, "SECTION") + group(2, "ENTITIES") + unregistered + unbalanced +
                       tooBig + group(0, "ENDSEC") + group(0, "EOF");
    auto db = parseOk(text);
    ASSERT_NE(db, nullptr);
    ASSERT_EQ(db->warnings().size(), 4u);
    EXPECT_NE(db->warnings()[0].find(L"application UNREG of extended data was not registered; it is now"),
              std::wstring::npos);
    EXPECT_NE(db->warnings()[1].find(L"application A<B on the LINE"), std::wstring::npos);
    EXPECT_NE(db->warnings()[2].find(L"its braces do not balance"), std::wstring::npos);
    EXPECT_NE(db->warnings()[3].find(L"more than 16383 bytes"), std::wstring::npos);
    std::string out = db->dxfText();
    EXPECT_NE(out.find("kept"), std::string::npos);
    EXPECT_NE(out.find("registered now"), std::string::npos);
    EXPECT_EQ(out.find("A<B"), std::string::npos);
    EXPECT_EQ(out.find("lost"), std::string::npos);
    EXPECT_EQ(out.find(std::string(250, 'y')), std::string::npos);
    // What was repaired reads back without a warning, and sound data is not touched.
    auto again = parseOk(out);
    ASSERT_NE(again, nullptr);
    EXPECT_TRUE(again->warnings().empty());
    EXPECT_EQ(again->dxfText(), out);
}

}  // namespace
