// The console's AutoLISP evaluator: a small real subset with the editor's error messages.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "host/runtime/lisp_value.h"

namespace host::lisp {

// An AutoLISP error; message is the text after "; error: ".
struct LispError {
    std::wstring message;
    std::wstring source;  // file of the form that failed; empty until a source is known
    int line = 0;         // its first line there
    bool handled = false; // *error* has seen it
};

[[noreturn]] void fail(std::wstring message);
// "bad argument type: PREDICATE: VALUE"
[[noreturn]] void badArgument(const wchar_t* predicate, const ValuePtr& value);

class Interpreter {
public:
    Interpreter();

    // Reads and evaluates every form; returns the value of the last. Throws LispError, which
    // names SOURCE and the line of the form that failed unless a deeper source named itself.
    ValuePtr evalText(std::wstring_view text, const std::wstring& source = L"");
    ValuePtr eval(const ValuePtr& form);
    ValuePtr apply(const ValuePtr& function, const std::vector<ValuePtr>& args);

    // Symbols live in the current document, so the module sees them with acedGetSym.
    ValuePtr symbolValue(const std::wstring& upperName);
    void setSymbol(const std::wstring& upperName, ValuePtr value);

    // A special built-in receives its argument forms unevaluated.
    void define(const std::wstring& name, Builtin fn, bool special = false);
    ValuePtr builtin(const std::wstring& upperName) const;

    // Gives an error that ends evaluation to the user's *error* function, once, as the editor
    // does while the failing function's locals are still bound. Not inside vl-catch-all-apply.
    void offerToErrorHandler(LispError& e);
    struct CatchScope {
        Interpreter& in;
        explicit CatchScope(Interpreter& i) : in(i) { ++in.catching_; }
        ~CatchScope() { --in.catching_; }
    };

    // A budget of evaluation steps (a form evaluated, a turn of a loop) for a run that must
    // end, as under a fuzzer: past it evaluation stops with "Function cancelled", the error
    // of a program the user breaks. Without one (0, the default) a program runs as long as
    // its loops do.
    void limitSteps(unsigned long long steps) { stepsLeft_ = steps; limited_ = steps > 0; }
    void step() {
        if (!limited_) return;
        if (stepsLeft_ == 0) fail(L"Function cancelled");
        --stepsLeft_;
    }

    // The file being loaded, for load and findfile to look beside it.
    const std::wstring& currentSource() const { return source_; }

private:
    ValuePtr callNamed(const ValuePtr& head, const ValuePtr& argForms);
    ValuePtr callLambda(const UserFunction& fn, const std::vector<ValuePtr>& args);
    std::map<std::wstring, ValuePtr> builtins_;
    std::map<std::wstring, ValuePtr> detachedSymbols_;  // when no document is open
    int depth_ = 0;
    int catching_ = 0;
    bool inErrorHandler_ = false;
    bool limited_ = false;
    unsigned long long stepsLeft_ = 0;
    std::wstring source_;
};

// Groups of built-ins, each in its own file.
void addCoreBuiltins(Interpreter& in);      // control, arithmetic, lists, strings, output
void addSystemBuiltins(Interpreter& in);     // system variables, commands, geometry, formats
void addDrawingBuiltins(Interpreter& in);   // entities and selection sets
void addHeadlessBuiltins(Interpreter& in);  // host-dialog, host-entsel, host-getpoint, host-input
void addInputBuiltins(Interpreter& in);     // initget and the get-functions
void addWindowBuiltins(Interpreter& in);    // host-window, host-window-text
void addVlStringBuiltins(Interpreter& in);  // vl-string-*, vl-princ-to-string, vl-prin1-to-string
void addVlListBuiltins(Interpreter& in);    // vl-position, vl-remove, vl-sort and the predicates
void addMathBuiltins(Interpreter& in);      // bits, gcd, sqrt checks
void addFileBuiltins(Interpreter& in);      // open, close, read/write, findfile, file names, load
void addEnvironmentBuiltins(Interpreter& in);  // getenv, ver, *error*, exit, vl-catch-all-*
void addUnitBuiltins(Interpreter& in);      // rtos, distof, angtos, angtof, cvunit
void addGeometryBuiltins(Interpreter& in);  // inters, textbox, tblnext, tblobjname
void addPickBuiltins(Interpreter& in);      // getpoint, entsel, nentsel

// Argument helpers for built-ins.
void expectCount(const std::vector<ValuePtr>& args, size_t min, size_t max);
const std::wstring& stringArg(const ValuePtr& v);
long long intArg(const ValuePtr& v);
double numberArg(const ValuePtr& v);
// A list of two or three numbers as a point; a 2D point gets z = 0.
void pointArg(const ValuePtr& v, double point[3]);

}  // namespace host::lisp
