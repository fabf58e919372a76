// A host session for tests: a session of its own (nothing left from an earlier test), a new
// document, the module loaded from the build, and everything the module prints captured.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "host/lisp/interpreter.h"
#include "host/output.h"
#include "host/runtime/host.h"
#include "host/runtime/lisp_value.h"
#include "host/session.h"

namespace testing_support {

namespace lisp = host::lisp;

class HostSession : public ::testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;

    // Calls a registered function by name, as AutoLISP would.
    host::CallResult call(const std::wstring& name, const std::vector<lisp::ValuePtr>& args = {});
    // Evaluates AutoLISP text with the console's interpreter; returns the printed value.
    std::wstring eval(const std::wstring& text);
    // The same, answering the value itself; an AutoLISP error fails the test.
    lisp::ValuePtr evalValue(const std::wstring& text);

    host::Host& host() { return host::Host::instance(); }
    host::Document& doc() { return host().current(); }
    const std::wstring& printed() const { return capture_->commandLine(); }
    const std::vector<std::wstring>& alerts() const { return capture_->alerts(); }
    const std::vector<std::wstring>& failures() const { return capture_->failures(); }
    void clearOutput() { capture_->clear(); }

    host::Session session_;
    host::Module* module_ = nullptr;
    std::unique_ptr<host::OutputCapture> capture_;
    std::unique_ptr<lisp::Interpreter> interpreter_;
};

// The installation root of the source tree, with a trailing separator.
std::wstring sourceRoot();
std::wstring buildRoot();

}  // namespace testing_support
