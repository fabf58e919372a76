// Opening a dialog of the suite from a file under the installation root.
#include "adsdlg.h"
#include "frame/dialog_open.h"
#include "frame/paths.h"
#include "tests/support/host_session.h"

namespace {

using testing_support::HostSession;

class SuiteDialog : public HostSession {
protected:
    bool open(const wchar_t* file, const wchar_t* name) {
        bool ok = false;
        host().runInvocation(18, {}, [&] {
            if (!vrn2::loadInstallRoot()) return RTERROR;
            ok = vrn2::openSuiteDialog(file, name, dclId_, dialog_);
            return RTNORM;
        });
        return ok;
    }
    int dclId_ = -1;
    ads_hdlg dialog_ = nullptr;
};

TEST_F(SuiteDialog, ADialogThatExistsOpens) {
    ASSERT_TRUE(open(L"tests\\frame\\data\\probe.dcl", L"probe"));
    EXPECT_NE(dialog_, nullptr);
    EXPECT_TRUE(failures().empty());
    int status = 99;
    EXPECT_EQ(ads_start_dialog(dialog_, &status), RTNORM);
    EXPECT_EQ(status, DLGCANCEL) << "nothing queued: the headless dialog is cancelled";
    ads_unload_dialog(dclId_);
}

TEST_F(SuiteDialog, AMissingFileOrDialogIsReportedWithTheFixedMessage) {
    EXPECT_FALSE(open(L"dwglib\\no-such-file.dcl", L"probe"));
    ASSERT_EQ(failures().size(), 1u);
    EXPECT_EQ(failures()[0], L"Unable open dialogue box\n");
    EXPECT_EQ(dialog_, nullptr);

    EXPECT_FALSE(open(L"tests\\frame\\data\\probe.dcl", L"no_such_dialog"));
    ASSERT_EQ(failures().size(), 2u);
    EXPECT_EQ(failures()[1], L"Unable open dialogue box\n");
    EXPECT_EQ(dialog_, nullptr);
}

}  // namespace
