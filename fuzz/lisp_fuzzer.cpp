// AutoLISP: text is read and every form evaluated by the console's interpreter; an AutoLISP
// error is an answer, anything else (a crash, undefined behaviour, a hang) is a fault. Each run
// has a budget of evaluation steps, so a loop without end is an answer ("Function cancelled").
#include <cstdint>
#include <string>

#include "host/lisp/interpreter.h"
#include "host/output.h"
#include "host/runtime/host.h"
#include "host/session.h"
#include "host/text.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    host::Session session;
    host::OutputCapture quiet;
    host::Host::instance().openDocument(L"");
    std::string text(reinterpret_cast<const char*>(data), size);
    host::lisp::Interpreter lisp;
    lisp.limitSteps(200000);  // a program looping for ever is AutoLISP too; it is cut short
    try {
        lisp.evalText(host::fromUtf8(text));
    } catch (const host::lisp::LispError&) {
    }
    host::Host::instance().closeAllDocuments();
    return 0;
}
