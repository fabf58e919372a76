// c:q_res in the host: the choice dialog tells what there is, "view" lists qres.txt like the
// other viewers (and says when it is missing), "report" asks for a name, refuses bad names in
// the dialog, refuses an empty journal, writes the Word document in one piece and reports a
// file that cannot be written without touching what was there.
#include <zip.h>

#include "adscodes.h"
#include "tests/psychro/result_file_session.h"

namespace result_file_test {
namespace {

using Entries = std::vector<std::wstring>;

class ProcessResults : public ResultFileSession {
protected:
    void saveSupplyAir() {
        queue(L"gs_caldlg", {press(L"cal")});
        queue(L"gscalres", {press(L"saveres")});
        call(L"c:gscal");
    }
    void writeReport(const std::wstring& name) {
        queue(L"q_resdlg", {press(L"report")});
        queue(L"q_report", {set(L"name", name), press(L"accept")});
        call(L"c:q_res");
    }
    // The names of the entries of the ZIP file NAME in the current folder.
    Entries zipEntries(const std::string& name) {
        Entries names;
        zip_t* zip = zip_open((dir_ / name).c_str(), ZIP_RDONLY, nullptr);
        if (!zip) return {L"<not a zip file>"};
        for (zip_int64_t k = 0; k < zip_get_num_entries(zip, 0); ++k)
            names.push_back(host::fromUtf8(zip_get_name(zip, static_cast<zip_uint64_t>(k), 0)));
        zip_close(zip);
        return names;
    }
};

TEST_F(ProcessResults, TheChoiceDialogTellsWhatThereIs) {
    queue(L"q_resdlg", std::vector<host::DialogAction>{});
    call(L"c:q_res");
    const auto* choice = dialog(L"q_resdlg");
    ASSERT_NE(choice, nullptr);
    EXPECT_EQ(choice->value(L"file_state"), L"过程计算结果文件 qres.txt: 没有");
    EXPECT_EQ(choice->value(L"journal_state"), L"可写入计算书的计算: 0 项");
    EXPECT_EQ(choice->value(L"chart_state"), L"当前图形中的焓湿图: 没有");

    saveSupplyAir();
    writeFile("qres.txt", "x\n");
    queue(L"q_resdlg", std::vector<host::DialogAction>{});
    call(L"c:q_res");
    choice = dialog(L"q_resdlg");
    EXPECT_EQ(choice->value(L"file_state"), L"过程计算结果文件 qres.txt: 有");
    EXPECT_EQ(choice->value(L"journal_state"), L"可写入计算书的计算: 1 项");
    EXPECT_EQ(runs(L"v_resdlg"), 0) << "closing the choice shows nothing";
}

TEST_F(ProcessResults, ViewListsTheFileOrSaysThereIsNone) {
    queue(L"q_resdlg", {press(L"view")});
    call(L"c:q_res");
    EXPECT_EQ(alerts(), (Entries{L"没有保存结果."}));
    EXPECT_EQ(runs(L"v_resdlg"), 0);

    writeFile("qres.txt", utf8(L"\n          空气处理过程与回风系统计算结果\n末行"));
    queue(L"q_resdlg", {press(L"view")});
    queue(L"v_resdlg", {press(L"resintr")});
    call(L"c:q_res");
    const auto* viewer = dialog(L"v_resdlg");
    ASSERT_NE(viewer, nullptr);
    EXPECT_EQ(viewer->file.filename(), "qres.dcl");
    EXPECT_EQ(viewer->tile(L"reslist")->list, (Entries{L"", L"          空气处理过程与回风系统计算结果", L"末行"}));
    EXPECT_EQ(runs(L"introduce4"), 1);
    EXPECT_EQ(alerts().size(), 1u);
}

TEST_F(ProcessResults, BadNamesAreRefusedInTheDialogAndNothingIsWritten) {
    saveSupplyAir();
    queue(L"q_resdlg", {press(L"report")});
    queue(L"q_report", {set(L"name", L"  "), press(L"accept"), set(L"name", L"a/b"), press(L"accept")});
    call(L"c:q_res");
    const auto* named = dialog(L"q_report");
    ASSERT_NE(named, nullptr);
    EXPECT_EQ(named->value(L"error"), L"文件名中不能有 \\ / : * ? \" < > | 等字符.");
    Entries files;
    for (const auto& e : fs::directory_iterator(dir_)) files.push_back(e.path().filename().wstring());
    EXPECT_EQ(files, (Entries{L"gscal.txt"}));
}

TEST_F(ProcessResults, AnEmptyJournalGivesNoReport) {
    writeReport(L"空.docx");
    EXPECT_EQ(alerts(), (Entries{L"还没有可写入计算书的计算: 先计算并保存结果."}));
    EXPECT_FALSE(exists("空.docx"));
}

TEST_F(ProcessResults, TheReportIsAWordPackageWithoutAChartWhenNoneIsDrawn) {
    saveSupplyAir();
    writeReport(L"送风");
    EXPECT_TRUE(alerts().empty()) << utf8(alerts().front());
    EXPECT_NE(printed().find(L"计算书已写入文件 送风.docx (1 项计算)."), std::wstring::npos) << utf8(printed());
    EXPECT_EQ(zipEntries("送风.docx"), (Entries{L"[Content_Types].xml", L"_rels/.rels", L"word/document.xml",
                                              L"word/_rels/document.xml.rels", L"word/styles.xml"}));
    EXPECT_FALSE(exists("送风.docx.part"));
}

TEST_F(ProcessResults, AnExistingReportIsReplacedOnlyWhenAcceptIsPressedAgain) {
    saveSupplyAir();
    writeFile("计算书.docx", "edited by hand");
    // Pressed once: told in the dialog, and the user cancels.
    queue(L"q_resdlg", {press(L"report")});
    queue(L"q_report", {press(L"accept"), press(L"cancel")});
    call(L"c:q_res");
    EXPECT_EQ(dialog(L"q_report")->value(L"error"), L"文件 计算书.docx 已存在: 再按\"生成\"替换它, 或改用别的文件名.");
    EXPECT_EQ(fileBytes("计算书.docx"), "edited by hand");
    // A new name goes through at once; the warned name needs its second press.
    queue(L"q_resdlg", {press(L"report")});
    queue(L"q_report", {press(L"accept"), set(L"name", L"另一份"), press(L"accept")});
    call(L"c:q_res");
    EXPECT_EQ(fileBytes("计算书.docx"), "edited by hand");
    EXPECT_EQ(zipEntries("另一份.docx").size(), 5u);
    queue(L"q_resdlg", {press(L"report")});
    queue(L"q_report", {press(L"accept"), press(L"accept")});
    call(L"c:q_res");
    EXPECT_EQ(zipEntries("计算书.docx").size(), 5u) << "replaced by the report";
}

TEST_F(ProcessResults, AFileThatCannotBeWrittenIsReportedAndLeftAsItWas) {
    saveSupplyAir();
    fs::create_directory(dir_ / "占用.docx");
    queue(L"q_resdlg", {press(L"report")});
    queue(L"q_report", {set(L"name", L"占用.docx"), press(L"accept"), press(L"accept")});
    call(L"c:q_res");
    EXPECT_EQ(alerts(), (Entries{L"不能写入计算书文件 占用.docx, 原有文件未改动."}));
    EXPECT_TRUE(fs::is_directory(dir_ / "占用.docx"));
    EXPECT_FALSE(exists("占用.docx.part"));
}

}  // namespace
}  // namespace result_file_test
