// Broken or hostile DCL files: deep nesting, long prototype chains, subassemblies that name
// each other until the dialog would fill memory, control characters. Each is refused with one
// DCL error naming the file and line, and nothing else is printed.
#include <string>

#include "dcl_fixture.h"
#include "tests/support/temporary_folder.h"

namespace dcltest {
namespace {

class HostileDcl : public DclTest {
protected:
    // Writes the file, loads it (it must be refused) and answers what was printed.
    std::wstring refused(const std::string& text) {
        folder_.write("hostile.dcl", text);
        host::OutputCapture out;
        int id = 12345;
        EXPECT_EQ(ads_load_dialog(folder_.path("hostile.dcl").c_str(), &id), RTERROR);
        return out.commandLine();
    }
    std::wstring error(int line, const std::wstring& message) {
        return L"DCL error in " + folder_.path("hostile.dcl") + L" line " + std::to_wstring(line) + L": " + message +
               L"\n";
    }
    testing_support::TemporaryFolder folder_;
};

TEST_F(HostileDcl, TilesNestedDeeperThanTheLimitAreRefused) {
    // 11 000 rows inside each other, one per line: the row that opens level 257 is on line 257.
    std::string text = "deep : dialog {\n";
    for (int i = 0; i < 11000; ++i) text += ": row {\n";
    for (int i = 0; i < 11000; ++i) text += "}\n";
    text += "ok_only; }\n";
    EXPECT_EQ(refused(text), error(257, L"tiles are nested more than 256 levels deep"));

    // Nesting well within the limit loads.
    std::string fine = "fine : dialog {\n";
    for (int i = 0; i < 100; ++i) fine += ": row {\n";
    fine += ": text { label = \"x\"; }\n";
    for (int i = 0; i < 100; ++i) fine += "}\n";
    fine += "ok_only; }\n";
    folder_.write("fine.dcl", fine);
    int id = -1;
    EXPECT_EQ(ads_load_dialog(folder_.path("fine.dcl").c_str(), &id), RTNORM);
    EXPECT_GT(id, 0);
}

TEST_F(HostileDcl, ALongPrototypeChainIsReportedOnce) {
    // p0 : p1, p1 : p2, ... 14 000 links, pK named as a prototype on line K.
    std::string text;
    const int links = 14000;
    for (int i = 0; i < links; ++i) text += "p" + std::to_string(i) + " : p" + std::to_string(i + 1) + " { }\n";
    text += "p" + std::to_string(links) + " : text { label = \"end\"; }\n";
    text += "chain : dialog { p0; ok_only; }\n";
    std::wstring printed = refused(text);
    EXPECT_EQ(printed, error(256, L"the prototypes of tile 'p256' derive from each other more than 256 levels deep"));
}

TEST_F(HostileDcl, SubassembliesNamingEachOtherPastTheTileLimitAreRefused) {
    // r0 holds r1 four times, r1 holds r2 four times ... 4^30 tiles if expanded.
    std::string text;
    for (int i = 0; i < 30; ++i) {
        std::string next = "r" + std::to_string(i + 1) + "; ";
        text += "r" + std::to_string(i) + " : row { " + next + next + next + next + "}\n";
    }
    text += "r30 : text { label = \"leaf\"; }\n";
    text += "fan : dialog { r0; ok_only; }\n";
    std::wstring printed = refused(text);
    EXPECT_NE(printed.find(L"the dialog expands to more than 100000 tiles"), std::wstring::npos) << host::toUtf8(printed);
    EXPECT_EQ(printed.find(L"DCL error"), printed.rfind(L"DCL error"));  // one message
    EXPECT_EQ(printed.rfind(L"DCL error in " + folder_.path("hostile.dcl"), 0), 0u);
}

TEST_F(HostileDcl, AControlCharacterIsNamedByItsCodeAndTheMessageEndsItsLine) {
    std::string text = "nul : dialog { label = \"a\"; ok_only; }";
    text += '\0';
    text += "\n";
    EXPECT_EQ(refused(text), error(1, L"unexpected control character (code 0)"));
    EXPECT_EQ(refused("bell : dialog { \x07 ok_only; }\n"), error(1, L"unexpected control character (code 7)"));
}

TEST_F(HostileDcl, AFileNamedPastAsciiIsNamedInItsErrorsAndItsIncludesAreFound) {
    // The folder's name is ASCII; the files' names are not.
    std::wstring dir = folder_.dir().wstring();
    folder_.write("部件.dcl", "part : button { label = \"a\"; }\n");
    folder_.write("对话框.dcl", "@include \"部件.dcl\"\nd : dialog { : part { key = \"k\"; } ok_only; }\n");
    int id = -1;
    EXPECT_EQ(ads_load_dialog((dir + L"/对话框.dcl").c_str(), &id), RTNORM);
    ads_unload_dialog(id);

    folder_.write("坏.dcl", "bell : dialog { \x07 ok_only; }\n");
    host::OutputCapture out;
    EXPECT_EQ(ads_load_dialog((dir + L"/坏.dcl").c_str(), &id), RTERROR);
    EXPECT_EQ(out.commandLine(), L"DCL error in " + dir + L"/坏.dcl line 1: unexpected control character (code 7)\n");
}

}  // namespace
}  // namespace dcltest
