// Loading DCL files: refused files and their messages, @include, paths in the platform's forms.
#include <filesystem>
#include <fstream>

#include <unistd.h>

#include "dcl_fixture.h"

namespace dcltest {
namespace {

class DclLoad : public DclTest {
protected:
    // Loads a file that must be refused; answers what was printed.
    std::wstring refused(const std::string& relative) {
        host::OutputCapture out;
        int id = 12345;
        EXPECT_EQ(ads_load_dialog(dataPath(relative).c_str(), &id), RTERROR) << relative;
        EXPECT_LT(id, 0);
        return out.commandLine();
    }
    std::wstring line(const std::string& relative, int n, const std::wstring& message) {
        return L"DCL error in " + dataPath(relative) + L" line " + std::to_wstring(n) + L": " + message + L"\n";
    }
};

TEST_F(DclLoad, SyntaxErrorsNameFileLineAndProblem) {
    EXPECT_EQ(refused("errors/syntax.dcl"),
              line("errors/syntax.dcl", 4, L"expected ';' after the value of attribute 'label', found name 'ok_only'"));
    EXPECT_EQ(refused("errors/real.dcl"),
              line("errors/real.dcl", 3, L"a real number needs a digit before the decimal point"));
    EXPECT_EQ(refused("errors/string.dcl"), line("errors/string.dcl", 2, L"string not closed on its line"));
    EXPECT_EQ(refused("errors/comment.dcl"), line("errors/comment.dcl", 2, L"comment not closed"));
}

TEST_F(DclLoad, AuditErrorsRefuseTheFile) {
    EXPECT_EQ(refused("errors/undefined.dcl"), line("errors/undefined.dcl", 3, L"undefined tile 'fancy_button'"));
    EXPECT_EQ(refused("errors/circular.dcl"), line("errors/circular.dcl", 3, L"circular definition of tile 'loop_a'"));
    EXPECT_EQ(refused("errors/self.dcl"), line("errors/self.dcl", 6, L"circular definition of tile 'self_row'"));
    EXPECT_EQ(refused("errors/nokey.dcl"), line("errors/nokey.dcl", 3, L"active tile 'toggle' has no key"));
    EXPECT_EQ(refused("errors/subassembly.dcl"),
              line("errors/subassembly.dcl", 3, L"the subassembly 'ok_cancel' cannot be changed; use it as 'ok_cancel;'"));
    EXPECT_EQ(refused("errors/dupkey.dcl"),
              line("errors/dupkey.dcl", 4, L"key \"same\" is used more than once in dialog 'dk'"));
    EXPECT_EQ(refused("errors/radio.dcl"),
              line("errors/radio.dcl", 3, L"radio_button \"lonely\" is not inside a radio_row or radio_column"));
    EXPECT_EQ(refused("errors/include.dcl"),
              line("errors/include.dcl", 1, L"cannot find the included file \"nowhere.dcl\""));
}

TEST_F(DclLoad, AProblemInAnIncludedFileNamesThatFile) {
    EXPECT_EQ(refused("inc/broken_parent.dcl"),
              line("inc/broken_child.dcl", 2, L"a digit must follow the decimal point"));
}

TEST_F(DclLoad, EveryProblemOfAFileIsReported) {
    EXPECT_EQ(refused("errors/several.dcl"),
              line("errors/several.dcl", 1, L"undefined tile 'nothing_here'") +
                  line("errors/several.dcl", 2, L"active tile 'button' has no key"));
}

TEST_F(DclLoad, MissingFile) {
    host::OutputCapture out;
    int id = 0;
    EXPECT_EQ(ads_load_dialog(dataPath("no_such_file").c_str(), &id), RTERROR);
    EXPECT_LT(id, 0);
    EXPECT_EQ(out.commandLine(), L"DCL error in " + dataPath("no_such_file.dcl") + L": file not found\n");
}

TEST_F(DclLoad, AuditLevelZeroAcceptsAKeylessTile) {
    int id = load("level0.dcl");
    ads_hdlg h = open(id, L"quiet");
    EXPECT_EQ(start(h), DLGCANCEL);
}

TEST_F(DclLoad, IncludeSearchesTheIncludingFolderThenTheSearchPath) {
    int id = -1;
    // common.dcl lies only in lib/: without the search path the include fails
    host::OutputCapture out;
    EXPECT_EQ(ads_load_dialog(dataPath("inc/main.dcl").c_str(), &id), RTERROR);
    EXPECT_NE(out.commandLine().find(L"cannot find the included file \"common\""), std::wstring::npos);

    host::dcl::setDclSearchPath({dataDir() + "lib"});
    id = load("inc/main.dcl");
    ads_hdlg h = open(id, L"included");
    EXPECT_EQ(attribute(h, L"who", L"edit_limit"), L"30");  // inc/parts.dcl, not lib/parts.dcl
    EXPECT_EQ(attribute(h, L"who", L"label"), L"Name");
    EXPECT_EQ(attribute(h, L"b2", L"label"), L"B2");        // lib/common.dcl
    EXPECT_EQ(start(h), DLGCANCEL);
}

TEST_F(DclLoad, PlatformPathFormsWork) {
    std::wstring root = dataPath("");
    std::wstring back = root;
    for (auto& c : back)
        if (c == L'/') c = L'\\';
    for (std::wstring name : {back + L"basic", L"C:" + back + L"basic.dcl", root + L"BASIC", root + L"inc/../basic"}) {
        int id = -1;
        EXPECT_EQ(ads_load_dialog(name.c_str(), &id), RTNORM) << host::toUtf8(name);
        EXPECT_GT(id, 0);
    }
}

TEST_F(DclLoad, RelativeNamesUseTheCurrentFolderThenTheSearchPath) {
    int id = -1;
    {
        host::OutputCapture quiet;
        EXPECT_EQ(ads_load_dialog(L"dwglib\\runtime", &id), RTERROR);
    }
    // A suite root as the module forms it: root + "dwglib\" + name, without extension.
    auto tmp = std::filesystem::temp_directory_path() / ("dcl_search_" + std::to_string(::getpid()));
    std::filesystem::create_directories(tmp / "dwglib");
    std::filesystem::copy_file(dataDir() + "runtime.dcl", tmp / "dwglib" / "runtime.dcl",
                               std::filesystem::copy_options::overwrite_existing);
    host::dcl::setDclSearchPath({tmp});
    EXPECT_EQ(ads_load_dialog(L"dwglib\\runtime", &id), RTNORM);
    EXPECT_GT(id, 0);
    std::filesystem::remove_all(tmp);
}

TEST_F(DclLoad, IdsArePositiveDistinctAndUnloadable) {
    int a = load("basic.dcl");
    int b = load("basic.dcl");
    EXPECT_NE(a, b);
    EXPECT_EQ(ads_unload_dialog(a), RTNORM);
    ads_hdlg h = BAD_DIALOG;
    EXPECT_EQ(ads_new_dialog(L"basic", a, NULLCB, &h), RTERROR);
    EXPECT_TRUE(h == BAD_DIALOG);
    EXPECT_EQ(ads_new_dialog(L"basic", b, NULLCB, &h), RTNORM);
    EXPECT_EQ(start(h), DLGCANCEL);
}

TEST_F(DclLoad, UnknownDialogNameGivesBadDialog) {
    int id = load("basic.dcl");
    ads_hdlg h = reinterpret_cast<ads_hdlg>(1);
    EXPECT_EQ(ads_new_dialog(L"Basic", id, NULLCB, &h), RTERROR);  // names are case-sensitive
    EXPECT_TRUE(h == BAD_DIALOG);
    EXPECT_EQ(ads_new_dialog(L"ok_cancel", id, NULLCB, &h), RTERROR);  // not a dialog
    EXPECT_TRUE(h == BAD_DIALOG);
}

TEST_F(DclLoad, BaseNamesAreUsableInAFile) {
    int id = load("base_names.dcl");
    for (const wchar_t* name : {L"exits_ok", L"exits_oc", L"exits_och", L"exits_ochi", L"exits_oche", L"exits_oce"}) {
        ads_hdlg h = open(id, name);
        EXPECT_EQ(start(h), DLGCANCEL);
    }
    ads_hdlg h = open(id, L"parts");
    EXPECT_EQ(attribute(h, L"show_image", L"width"), L"1");
    EXPECT_EQ(attribute(h, L"icon", L"aspect_ratio"), L"0.66");
    EXPECT_EQ(attribute(h, L"e12", L"edit_limit"), L"148");
    EXPECT_EQ(attribute(h, L"t25", L"width"), L"25");
    EXPECT_EQ(attribute(h, L"def", L"is_default"), L"true");
    EXPECT_EQ(attribute(h, L"ret", L"alignment"), L"centered");
    EXPECT_EQ(attribute(h, L"sw", L"height"), L"1.5");
    EXPECT_EQ(tileValue(h, L"error"), L"");
    EXPECT_EQ(start(h), DLGCANCEL);
}

}  // namespace
}  // namespace dcltest
