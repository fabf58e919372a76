#include "tests/support/host_session.h"

#include "host/lisp/interpreter.h"
#include "host/text.h"

namespace testing_support {

std::wstring sourceRoot() { return host::fromUtf8(VRN2_SOURCE_ROOT); }
std::wstring buildRoot() { return host::fromUtf8(VRN2_BUILD_ROOT); }

void HostSession::SetUp() {
    capture_ = std::make_unique<host::OutputCapture>();
    interpreter_ = std::make_unique<lisp::Interpreter>();
    host().openDocument(L"");
    doc().symbols()[L"_DRV"] = lisp::makeStr(sourceRoot());
    std::wstring error;
    module_ = host().loadModule(VRN2_MODULE_PATH, error);
    ASSERT_NE(module_, nullptr) << host::toUtf8(error);
}

void HostSession::TearDown() {
    host().unloadAllModules();
    host().closeAllDocuments();
    interpreter_.reset();
    capture_.reset();
}

host::CallResult HostSession::call(const std::wstring& name, const std::vector<lisp::ValuePtr>& args) {
    return host().invoke(name, args);
}

std::wstring HostSession::eval(const std::wstring& text) {
    try {
        return lisp::printValue(interpreter_->evalText(text));
    } catch (const host::lisp::LispError& e) {
        return L"; error: " + e.message;
    }
}

lisp::ValuePtr HostSession::evalValue(const std::wstring& text) {
    try {
        return interpreter_->evalText(text);
    } catch (const host::lisp::LispError& e) {
        ADD_FAILURE() << "AutoLISP error in the test's own script: " << std::string(e.message.begin(), e.message.end());
        return lisp::nil();
    }
}

}  // namespace testing_support
