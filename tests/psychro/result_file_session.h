// A host session for the psychrometric commands and their result files: a temporary folder as
// the current folder (where result files go), and helpers for
// scripted dialogs and for files read and written as bytes.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "host/dcl/dcl.h"
#include "host/dcl/dialog_script.h"
#include "host/text.h"
#include "tests/support/host_session.h"
#include "tests/support/temporary_folder.h"

namespace result_file_test {

namespace fs = std::filesystem;

inline host::DialogAction set(std::wstring key, std::wstring value) {
    return {host::DialogAction::Kind::Set, std::move(key), std::move(value)};
}
inline host::DialogAction press(std::wstring key) { return {host::DialogAction::Kind::Press, std::move(key), L""}; }

class ResultFileSession : public testing_support::HostSession {
protected:
    void SetUp() override {
        HostSession::SetUp();
        saved_ = fs::current_path();
        dir_ = folder_.dir();
        fs::current_path(dir_);
    }
    void TearDown() override {
        fs::current_path(saved_);
        HostSession::TearDown();
    }

    // The status a handler of the module returns (RTNORM or RTERROR), run as the invocation of
    // its function. It runs the test program's copy of the module code, whose module-wide
    // values are not those of the loaded module that call() reaches.
    int handlerStatus(short code, int (*handler)()) {
        return host().runInvocation(code, {}, handler).entryResult;
    }

    void queue(const std::wstring& dialog, std::vector<host::DialogAction> actions) {
        host::queueDialogActions(dialog, std::move(actions));
    }
    // The same through the console, with ACTIONS written as in a script:
    // (set "temp" "20") (press "result") ...
    void queue(const std::wstring& dialog, const std::wstring& actions) {
        ASSERT_EQ(eval(L"(host-dialog \"" + dialog + L"\" '(" + actions + L"))"), L"T");
    }
    const host::dcl::DialogRecord* dialog(const std::wstring& name) { return host::dcl::lastDialog(name); }
    int runs(const std::wstring& name) const {
        int n = 0;
        for (const auto& d : host::dcl::dialogHistory()) n += d.name == name;
        return n;
    }

    std::string fileBytes(const std::string& name) const { return folder_.bytes(name); }
    void writeFile(const std::string& name, const std::string& bytes) const { folder_.write(name, bytes); }
    bool exists(const std::string& name) const { return fs::exists(dir_ / name); }

    // Points _DRV at a folder of the test's own, for dialog files that are missing or lack a
    // dialog.
    void useRoot(const std::string& relative) {
        fs::create_directories(dir_ / relative);
        doc().symbols()[L"_DRV"] = host::lisp::makeStr(host::fromUtf8((dir_ / relative).string() + "/"));
    }

    testing_support::TemporaryFolder folder_;
    fs::path dir_, saved_;
};

inline std::string utf8(const std::wstring& text) { return host::toUtf8(text); }

}  // namespace result_file_test
