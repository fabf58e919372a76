// Reading DXF text: structures other writers produce, damaged files refused with the line at
// fault, handles repaired without loss, and files written back as they were read.
#include <gtest/gtest.h>

#include <set>
#include <string>

#include "host/db/blob.h"
#include "host/db/database.h"
#include "host/db/group_values.h"
#include "host/text.h"
#include "tests/host_db/db_fixture.h"

namespace dbtest {
namespace {

using host::db::Database;

std::unique_ptr<Database> parse(const std::string& text, std::wstring& error) {
    return Database::parse(text, L"t.dxf", error);
}

std::unique_ptr<Database> parseOk(const std::string& text) {
    std::wstring error;
    auto db = parse(text, error);
    EXPECT_NE(db, nullptr) << host::toUtf8(error);
    return db;
}

std::string refusal(const std::string& text) {
    std::wstring error;
    auto db = parse(text, error);
    EXPECT_EQ(db, nullptr);
    return host::toUtf8(error);
}

std::string entitiesOnly(const std::string& entities) {
    return "  0\nSECTION\n  2\nENTITIES\n" + entities + "  0\nENDSEC\n  0\nEOF\n";
}

const std::string kLine = "  0\nLINE\n  8\n0\n 10\n0.0\n 20\n0.0\n 30\n0.0\n 11\n1.0\n 21\n1.0\n 31\n0.0\n";

std::set<uint64_t> handlesOf(const Database& db) {
    std::set<uint64_t> handles;
    for (uint32_t i : db.entities()) handles.insert(db.record(i).handle);
    return handles;
}

TEST(DxfReader, StructuresOfOtherWriters) {
    // Entities only (R12): handles are given to every entity and announced in a header.
    auto db = parseOk(entitiesOnly(kLine + kLine));
    ASSERT_EQ(db->entities().size(), 2u);
    EXPECT_EQ(handlesOf(*db).size(), 2u);
    EXPECT_EQ(handlesOf(*db).count(0), 0u);
    EXPECT_EQ(db->acadver(), "AC1009");
    std::string out = db->dxfText();
    EXPECT_NE(out.find("$HANDLING"), std::string::npos);
    auto again = parseOk(out);
    EXPECT_EQ(handlesOf(*again), handlesOf(*db));

    // R2000 entities without handles next to ones with handles 1 and 2: no collision.
    std::string header = "  0\nSECTION\n  2\nHEADER\n  9\n$ACADVER\n  1\nAC1015\n  0\nENDSEC\n";
    std::string mixed = header + "  0\nSECTION\n  2\nENTITIES\n" + kLine +
                        "  0\nLINE\n  5\n1\n  8\n0\n 10\n0\n 20\n0\n 30\n0\n 11\n1\n 21\n1\n 31\n0\n"
                        "  0\nLINE\n  5\n2\n  8\n0\n 10\n0\n 20\n0\n 30\n0\n 11\n1\n 21\n1\n 31\n0\n"
                        "  0\nENDSEC\n  0\nEOF\n";
    db = parseOk(mixed);
    EXPECT_EQ(handlesOf(*db), (std::set<uint64_t>{1, 2, 3}));
    auto written = parseOk(db->dxfText());
    uint64_t seed = 0;
    ASSERT_TRUE(host::db::parseHandle(written->headerValue("$HANDSEED", 5), seed));
    EXPECT_EQ(seed, 4u) << "the written seed lies above every handle";

    // A handle used twice: both entities stay, the second gets a new handle, and it is said.
    std::string twice = header + "  0\nSECTION\n  2\nENTITIES\n"
                        "  0\nLINE\n  5\nA0\n  8\n0\n 10\n0\n 20\n0\n 30\n0\n 11\n1\n 21\n1\n 31\n0\n"
                        "  0\nLINE\n  5\nA0\n  8\n1\n 10\n0\n 20\n0\n 30\n0\n 11\n1\n 21\n1\n 31\n0\n"
                        "  0\nENDSEC\n  0\nEOF\n";
    db = parseOk(twice);
    EXPECT_EQ(handlesOf(*db), (std::set<uint64_t>{0xA0, 0xA1}));
    ASSERT_EQ(db->warnings().size(), 1u);
    EXPECT_NE(db->warnings()[0].find(L"A0"), std::wstring::npos);
}

TEST(DxfReader, LineEndsAndUnpaddedCodesAreWrittenAsRead) {
    std::string lf = "0\nSECTION\n2\nENTITIES\n0\nLINE\n5\n7C5\n8\n0\n10\n1.50\n20\n2\n30\n0\n11\n3\n21\n4\n31\n0\n"
                     "0\nENDSEC\n0\nEOF\n";
    std::string header = "0\nSECTION\n2\nHEADER\n9\n$ACADVER\n1\nAC1009\n9\n$HANDLING\n70\n1\n9\n$HANDSEED\n5\n7c6\n0\nENDSEC\n";
    auto db = parseOk(header + lf);
    EXPECT_EQ(db->dxfText(), header + lf);
    std::string crlf;
    for (char c : header + lf) crlf += c == '\n' ? std::string("\r\n") : std::string(1, c);
    db = parseOk(crlf);
    EXPECT_EQ(db->dxfText(), crlf);
}

TEST(DxfReader, DamagedFilesAreRefusedWithTheLine) {
    std::string whole = entitiesOnly(kLine);
    // Cut after the group code of the layer (line 7 holds "  8").
    std::string cut = whole.substr(0, whole.find("  8\n") + 4);
    std::string message = refusal(cut);
    EXPECT_NE(message.find("line 7"), std::string::npos) << message;
    EXPECT_NE(message.find("truncated"), std::string::npos) << message;

    message = refusal(whole.substr(0, whole.find("  0\nENDSEC")));
    EXPECT_NE(message.find("ENTITIES section"), std::string::npos) << message;

    message = refusal("  0\nSECTION\n  2\nENTITIES\n  0\nLINE\n xx\n0\n  0\nENDSEC\n  0\nEOF\n");
    EXPECT_NE(message.find("line 7: expected a group code"), std::string::npos) << message;

    message = refusal("  0\nSECTION\n  2\nENTITIES\n  0\nLINE\n 10\nabc\n  0\nENDSEC\n  0\nEOF\n");
    EXPECT_NE(message.find("line 8: group code 10 needs a number"), std::string::npos) << message;

    message = refusal("  0\nSECTION\n  2\nENTITIES\n  0\nPOLYLINE\n  8\n0\n  0\nVERTEX\n 10\n0\n"
                      "  0\nLINE\n  8\n0\n  0\nENDSEC\n  0\nEOF\n");
    EXPECT_NE(message.find("line 13: POLYLINE at line 5 is not closed by SEQEND"), std::string::npos) << message;

    message = refusal("  0\nSECTION\n  2\nENTITIES\n  0\nENDSEC\n");
    EXPECT_NE(message.find("EOF"), std::string::npos) << message;

    EXPECT_NE(refusal("AutoCAD Binary DXF\r\n\x1a").find("binary DXF"), std::string::npos);
    EXPECT_NE(refusal(std::string("AC1015\0\0\0\x01", 10)).find("DWG"), std::string::npos);
    EXPECT_NE(refusal("").find("empty"), std::string::npos);
    EXPECT_NE(refusal("  0\nSECTION\n  2\nTABLES\n  0\nTABLE\n  2\nLAYER\n  0\nLAYER\n  2\n0\n  0\nENDSEC\n"
                      "  0\nEOF\n").find("ENDTAB"),
              std::string::npos);
}

TEST(DxfReader, EverythingTheHostDoesNotKnowIsWrittenBack) {
    std::string text = dxf({{999, "written by hand"},
                            {0, "SECTION"}, {2, "HEADER"}, {9, "$ACADVER"}, {1, "AC1015"}, {9, "$HANDSEED"},
                            {5, "FF"}, {9, "$CUSTOMVAR"}, {40, "1.25"}, {0, "ENDSEC"},
                            {0, "SECTION"}, {2, "CLASSES"}, {0, "CLASS"}, {1, "WIPEOUTVARIABLES"},
                            {2, "AcDbWipeoutVariables"}, {0, "ENDSEC"},
                            {0, "SECTION"}, {2, "ENTITIES"}, {0, "WIPEOUT"}, {5, "20"}, {100, "AcDbEntity"},
                            {8, "0"}, {100, "AcDbWipeout"}, {90, "0"}, {10, "1"}, {20, "2"}, {30, "3"},
                            {1001, "ACAD"}, {1000, "x"}, {1071, "2147483647"}, {0, "ENDSEC"},
                            {0, "SECTION"}, {2, "OBJECTS"}, {0, "DICTIONARY"}, {5, "C"}, {330, "0"},
                            {100, "AcDbDictionary"}, {0, "XRECORD"}, {5, "21"}, {102, "{ACAD_REACTORS"},
                            {330, "C"}, {102, "}"}, {310, "00FFEE"}, {0, "ENDSEC"},
                            {0, "SECTION"}, {2, "THUMBNAILIMAGE"}, {90, "3"}, {310, "ABCDEF"}, {0, "ENDSEC"},
                            {0, "EOF"}});
    // THUMBNAILIMAGE has groups straight after its name: kept all the same.
    auto db = parseOk(text);
    ASSERT_NE(db, nullptr);
    EXPECT_EQ(db->dxfText(), text);
}

struct TextCase {
    const char* acadver;
    const char* codepage;
    std::string raw;    // bytes in the file
    std::wstring text;  // what entget gives
};

TEST(DxfReader, TextOfEachCodePage) {
    const TextCase cases[] = {
        {"AC1015", "ANSI_1252", "\\U+9001\\U+98CE\\U+7BA1 DN100", L"送风管 DN100"},
        {"AC1015", "ANSI_1252", "\\U+98ce lower", L"风 lower"},
        {"AC1015", "ANSI_1252", "\xC4\xDC\xD6 \x80", L"ÄÜÖ €"},
        {"AC1015", "ANSI_936", "\xCB\xCD\xB7\xE7\xB9\xDC", L"送风管"},
        {"AC1015", "ANSI_936", "\\M+5CBCD", L"送"},
        {"AC1021", "ANSI_1252", "\xE9\x80\x81\xE9\xA3\x8E\xE7\xAE\xA1", L"送风管"},
        {"AC1015", "ANSI_1252", "%%c100", L"%%c100"},
        {"AC1009", "", "caret^Jline and ^ lone", L"caret\nline and ^lone"},
    };
    for (const auto& c : cases) {
        std::string header = "  0\nSECTION\n  2\nHEADER\n  9\n$ACADVER\n  1\n" + std::string(c.acadver) +
                             "\n  9\n$DWGCODEPAGE\n  3\n" + c.codepage +
                             "\n  9\n$HANDLING\n 70\n1\n  9\n$HANDSEED\n  5\n11\n  0\nENDSEC\n";
        std::string text = header + "  0\nSECTION\n  2\nENTITIES\n  0\nTEXT\n  5\n10\n  8\n0\n 10\n0\n 20\n0\n 30\n0\n 40\n1\n  1\n" +
               c.raw + "\n  0\nENDSEC\n  0\nEOF\n";
        auto db = parseOk(text);
        ASSERT_NE(db, nullptr);
        host::db::GroupList data;
        host::db::decodeGroups(*db, db->record(db->entities()[0]).groups, data, nullptr);
        const host::db::Group* g = host::db::findCode(data, 1);
        ASSERT_NE(g, nullptr);
        EXPECT_EQ(g->text, c.text) << c.raw;
        EXPECT_EQ(db->dxfText(), text) << "read text is written back byte for byte";
    }
}

TEST(DxfReader, NewTextTakesTheCodePageOrEscapes) {
    struct Case {
        const char* acadver;
        const char* codepage;
        std::wstring text;
        std::string raw;
    };
    const Case cases[] = {
        {"AC1015", "ANSI_1252", L"送风管 ä", "\\U+9001\\U+98CE\\U+7BA1 \xE4"},
        {"AC1015", "ANSI_936", L"送风管 ä", "\xCB\xCD\xB7\xE7\xB9\xDC \\U+00E4"},
        {"AC1021", "ANSI_936", L"送风管 ä", "\xE9\x80\x81\xE9\xA3\x8E\xE7\xAE\xA1 \xC3\xA4"},
        {"AC1015", "ANSI_1252", L"two\nlines", "two^Jlines"},
    };
    for (const auto& c : cases) {
        std::string text = "  0\nSECTION\n  2\nHEADER\n  9\n$ACADVER\n  1\n" + std::string(c.acadver) +
                           "\n  9\n$DWGCODEPAGE\n  3\n" + c.codepage + "\n  0\nENDSEC\n  0\nEOF\n";
        auto db = parseOk(text);
        ASSERT_NE(db, nullptr);
        EXPECT_EQ(db->rawText(c.text), c.raw);
        EXPECT_EQ(db->text(c.raw), c.text);
    }
}

}  // namespace
}  // namespace dbtest
