// Dialog sessions over files under the installation root: loading, creating, the caller's
// messages on their channels, nested dialogs, and the file unloaded on every way out.
#include "adsdlg.h"
#include "frame/dialog_session.h"
#include "host/dcl/dcl.h"
#include "host/dcl/dialog_script.h"
#include "tests/support/host_session.h"

namespace {

using testing_support::HostSession;
using vrn2::Channel;
using vrn2::DialogSession;

constexpr wchar_t kProbeFile[] = L"tests\\frame\\data\\probe.dcl";
const vrn2::Message kUnableOpen{Channel::Fail, L"Unable open dialogue box\n"};

class SuiteDialog : public HostSession {
protected:
    // Runs BODY as the invocation of a handler, so that _DRV and the dialogs are the
    // document's.
    template <class Body>
    void inHandler(Body body) {
        host().runInvocation(18, {}, [&] {
            body();
            return RTNORM;
        });
    }
    bool open(const wchar_t* file, const wchar_t* name) {
        bool ok = false;
        inHandler([&] {
            DialogSession session(file, kUnableOpen);
            ok = session.create(name, kUnableOpen);
            if (ok) {
                EXPECT_NE(session.dialog(), nullptr);
                EXPECT_EQ(session.run(), DLGCANCEL) << "nothing queued: the headless dialog is cancelled";
            } else {
                EXPECT_EQ(session.dialog(), nullptr);
            }
        });
        return ok;
    }
};

TEST_F(SuiteDialog, ADialogThatExistsOpens) {
    ASSERT_TRUE(open(kProbeFile, L"probe"));
    EXPECT_TRUE(failures().empty());
    EXPECT_TRUE(alerts().empty());
}

TEST_F(SuiteDialog, AMissingFileOrDialogIsReportedWithTheFixedMessage) {
    EXPECT_FALSE(open(L"dwglib\\no-such-file.dcl", L"probe"));
    ASSERT_EQ(failures().size(), 1u);
    EXPECT_EQ(failures()[0], L"Unable open dialogue box\n");

    EXPECT_FALSE(open(kProbeFile, L"no_such_dialog"));
    ASSERT_EQ(failures().size(), 2u);
    EXPECT_EQ(failures()[1], L"Unable open dialogue box\n");
}

TEST_F(SuiteDialog, EachMessageGoesThroughTheChannelTheCallerNames) {
    inHandler([] {
        DialogSession missing(L"dwglib\\no-such-file.dcl", {Channel::Alert, L"不能装载对话框."});
        EXPECT_FALSE(missing.loaded());
        EXPECT_FALSE(missing.create(L"probe", {Channel::Print, L"\nnot loaded: never said"}));
        DialogSession probe(kProbeFile, {Channel::Alert, L"unused"});
        EXPECT_FALSE(probe.create(L"no_such_dialog", {Channel::Print, L"\nnot created"}));
        EXPECT_FALSE(probe.create(L"nothing_here", {}));  // no text: nothing is reported
    });
    EXPECT_EQ(alerts(), std::vector<std::wstring>{L"不能装载对话框."});
    EXPECT_EQ(printed().find(L"never said"), std::wstring::npos);
    EXPECT_EQ(printed().size() - printed().rfind(L"\nnot created"), 12u) << "said once, at the end";
    EXPECT_TRUE(failures().empty());
}

TEST_F(SuiteDialog, WithoutTheRootOnlyItsAlertIsShown) {
    doc().symbols().erase(L"_DRV");
    EXPECT_FALSE(open(kProbeFile, L"probe"));
    EXPECT_EQ(alerts(), std::vector<std::wstring>{L"找不到暖通软件目录!"});
    EXPECT_TRUE(failures().empty());
}

// The probe file's action: a nested dialog of the same file, through its own session.
struct Nested {
    int dclId = -1;
    bool created = false;
    int status = -7;
};

void openNested(ads_callback_packet* packet) {
    auto* nested = static_cast<Nested*>(packet->client_data);
    DialogSession inner(nested->dclId);
    nested->created = inner.create(L"probe", {Channel::Fail, L"nested"});
    if (nested->created) nested->status = inner.run();
    ads_done_dialog(packet->dialog, 5);
}

TEST_F(SuiteDialog, ANestedDialogRunsOverTheLoadedFileWhichIsUnloadedOnce) {
    host::queueDialogActions(L"probe", {{host::DialogAction::Kind::Press, L"accept", L""}});
    Nested nested;
    int status = -1;
    int fileId = -1;
    inHandler([&] {
        DialogSession outer(kProbeFile, kUnableOpen);
        ASSERT_TRUE(outer.create(L"probe", kUnableOpen));
        nested.dclId = fileId = outer.dclId();
        outer.action(L"accept", openNested, &nested);
        status = outer.run();
        EXPECT_EQ(outer.dialog(), nullptr) << "a dialog that has run is gone";
    });
    EXPECT_TRUE(nested.created);
    EXPECT_EQ(nested.status, DLGCANCEL);
    EXPECT_EQ(status, 5) << "the status the action closed the dialog with";
    EXPECT_TRUE(failures().empty());
    // The session unloaded the file: its id no longer makes dialogs.
    ads_hdlg stale = nullptr;
    EXPECT_NE(ads_new_dialog(L"probe", fileId, NULLCB, &stale), RTNORM);
}

TEST_F(SuiteDialog, InputErrorsGoToTheErrorTileOrAnAlertWithTheFocus) {
    host::queueDialogActions(L"probe", {{host::DialogAction::Kind::Press, L"accept", L""}});
    inHandler([] {
        DialogSession session(kProbeFile, kUnableOpen);
        ASSERT_TRUE(session.create(L"probe", kUnableOpen));
        session.action(L"accept", [](ads_callback_packet* packet) {
            vrn2::showInputError(packet->dialog, L"输入温度值.", L"tn_value");
            vrn2::showInputError(packet->dialog, L"  输入大气压值.  ", nullptr, vrn2::ErrorPlace::Alert);
        });
        session.run();
    });
    const auto* probe = host::dcl::lastDialog(L"probe");
    ASSERT_NE(probe, nullptr);
    EXPECT_EQ(probe->value(L"error"), L"输入温度值.");
    EXPECT_EQ(probe->focus, L"tn_value");
    EXPECT_EQ(alerts(), std::vector<std::wstring>{L"  输入大气压值.  "});
}

}  // namespace
