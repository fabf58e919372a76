// AutoLISP the console reads may be broken or huge: deep nesting is refused with the editor's
// error, long and deep lists are freed, printed, compared and passed to a module without
// exhausting the stack, and numbers that do not fit an integer are not cast.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>

#include "acutads.h"
#include "adscodes.h"
#include "host/text.h"
#include "host/runtime/convert.h"
#include "tests/support/host_session.h"
#include "tests/support/temporary_folder.h"

namespace {

using testing_support::HostSession;
namespace lisp = host::lisp;

class HostileLisp : public HostSession {};

std::wstring repeat(const std::wstring& s, int n) {
    std::wstring out;
    out.reserve(s.size() * static_cast<size_t>(n));
    for (int i = 0; i < n; ++i) out += s;
    return out;
}

TEST_F(HostileLisp, DeepNestingAndQuoteChainsAreRefusedAsAStackOverflow) {
    EXPECT_EQ(eval(repeat(L"(", 40000) + repeat(L")", 40000)), L"; error: stack overflow");
    EXPECT_EQ(eval(repeat(L"'", 10000) + L"x"), L"; error: stack overflow");
    // Nesting a program uses is read and evaluated.
    EXPECT_EQ(eval(repeat(L"(list ", 100) + L"1" + repeat(L")", 100)), repeat(L"(", 100) + L"1" + repeat(L")", 100));
    EXPECT_EQ(eval(L"'''x"), L"(QUOTE (QUOTE X))");
}

TEST_F(HostileLisp, RecursionThroughBuiltInsThatCallBackIsAStackOverflow) {
    // Each level passes through mapcar, apply, vl-sort or vl-some as well as the evaluator.
    EXPECT_EQ(eval(L"(defun f (n) (mapcar 'f (list n))) (f 1)"), L"; error: stack overflow");
    EXPECT_EQ(eval(L"(defun g (n) (apply 'g (list n))) (g 1)"), L"; error: stack overflow");
    EXPECT_EQ(eval(L"(defun h (n) (vl-sort (list 1 2) '(lambda (a b) (h 1)))) (h 1)"), L"; error: stack overflow");
    EXPECT_EQ(eval(L"(defun q (n) (vl-some 'q (list n))) (q 1)"), L"; error: stack overflow");
    EXPECT_EQ(eval(L"(defun m (n) (vl-catch-all-apply 'm (list n))) (vl-catch-all-error-message (m 1))"),
              L"\"stack overflow\"");
    // Afterwards evaluation goes on as before.
    EXPECT_EQ(eval(L"(mapcar '1+ (list 1 2))"), L"(2 3)");
}

TEST_F(HostileLisp, LongListsAreFreedAndComparedWithoutRecursion) {
    // A million cells freed when the symbol is set again.
    EXPECT_EQ(eval(L"(setq l nil) (repeat 1000000 (setq l (cons 1 l))) (length l)"), L"1000000");
    EXPECT_EQ(eval(L"(setq m nil) (repeat 1000000 (setq m (cons 1 m))) (equal l m)"), L"T");
    EXPECT_EQ(eval(L"(equal l (cons 2 (cdr m)))"), L"nil");
    EXPECT_EQ(eval(L"(setq l nil m nil)"), L"nil");
}

TEST_F(HostileLisp, DeepListsArePrintedAndCompared) {
    evalValue(L"(setq x nil i 0) (while (< i 100000) (setq x (list x) i (1+ i)))");
    std::wstring printed = eval(L"x");
    EXPECT_EQ(printed, repeat(L"(", 100000) + L"nil" + repeat(L")", 100000));
    EXPECT_EQ(eval(L"(setq y nil i 0) (while (< i 100000) (setq y (list y) i (1+ i))) (equal x y)"), L"T");
    EXPECT_EQ(eval(L"(equal x (list y))"), L"nil");
    EXPECT_EQ(eval(L"'(1 (2 . 3) \"a\")"), L"(1 (2 . 3) \"a\")");
}

TEST_F(HostileLisp, ADeepListBecomesAResultBufferChainWithoutRecursion) {
    lisp::ValuePtr deep = lisp::nil();
    const int depth = 100000;
    for (int i = 0; i < depth; ++i) deep = lisp::cons(deep, lisp::cons(lisp::makeInt(i), lisp::nil()));
    resbuf* chain = host::valueToResbuf(deep);
    ASSERT_NE(chain, nullptr);
    // Each level: RTLB, the inner list, the integer, RTLE; the innermost list holds nil.
    int opens = 0, closes = 0, numbers = 0, nils = 0, level = 0, deepest = 0;
    for (const resbuf* rb = chain; rb; rb = rb->rbnext) {
        if (rb->restype == RTLB) deepest = std::max(deepest, ++level), ++opens;
        if (rb->restype == RTLE) --level, ++closes;
        if (rb->restype == RTSHORT || rb->restype == RTLONG) ++numbers;
        if (rb->restype == RTNIL) ++nils;
    }
    acutRelRb(chain);
    EXPECT_EQ(opens, depth);
    EXPECT_EQ(closes, depth);
    EXPECT_EQ(numbers, depth);
    EXPECT_EQ(nils, 1);
    EXPECT_EQ(deepest, depth);
    EXPECT_EQ(level, 0);

    // And back: the chain of a deep list reads as that list.
    resbuf* again = host::valueToResbuf(deep);
    lisp::ValuePtr back = host::resbufToValue(again);
    acutRelRb(again);
    EXPECT_TRUE(lisp::equalValues(back, deep));

    // A dotted pair keeps its dot.
    resbuf* pair = host::valueToResbuf(lisp::cons(lisp::makeInt(1), lisp::makeStr(L"a")));
    ASSERT_NE(pair, nullptr);
    EXPECT_EQ(pair->restype, RTLB);
    EXPECT_EQ(pair->rbnext->rbnext->restype, RTDOTE);
    EXPECT_EQ(pair->rbnext->rbnext->rbnext->rbnext->restype, RTLE);
    EXPECT_EQ(lisp::printValue(host::resbufToValue(pair)), L"(1 . \"a\")");
    acutRelRb(pair);
}

TEST_F(HostileLisp, NumbersBeyondTheIntegersStayReals) {
    EXPECT_EQ(eval(L"(fix 1e10)"), L"1e+10");
    EXPECT_EQ(eval(L"(fix -2.7)"), L"-2");
    EXPECT_EQ(eval(L"(fix 2147483647.5)"), L"2147483647");
    EXPECT_EQ(eval(L"(expt 2 30)"), L"1073741824");
    EXPECT_EQ(eval(L"(= (expt 2 31) 2147483648.0)"), L"T");
    EXPECT_EQ(eval(L"(= (expt 2 100) (* 1024.0 1024 1024 1024 1024 1024 1024 1024 1024 1024))"), L"T");
    EXPECT_EQ(eval(L"(expt 0 -1)"), L"; error: divide by zero");
    EXPECT_EQ(eval(L"(expt 2 -1)"), L"0");
    EXPECT_EQ(eval(L"(expt 2.0 -1)"), L"0.5");
    EXPECT_EQ(eval(L"(type 99999999999)"), L"REAL");
    EXPECT_EQ(eval(L"(type 2147483647)"), L"INT");
}

TEST_F(HostileLisp, RtosOfAHugeValueIsWholeAndRight) {
    std::wstring huge = eval(L"(rtos 1e300 2 8)");
    EXPECT_LT(huge.size(), 40u) << host::toUtf8(huge);
    EXPECT_EQ(eval(L"(= (atof (rtos 1e300 2 8)) 1e300)"), L"T");
    EXPECT_EQ(eval(L"(= (atof (rtos -3.5e20 2 8)) -3.5e20)"), L"T");
    EXPECT_EQ(eval(L"(atof (rtos 1234.5 2 1))"), L"1234.5");
}

TEST_F(HostileLisp, IntegerGroupsRefuseARealThatDoesNotFit) {
    std::wstring line = L"(list (cons 0 \"LINE\") (list 10 0.0 0.0 0.0) (list 11 1.0 1.0 0.0)";
    std::wstring made = eval(L"(entmake " + line + L" (cons 62 1e30)))");
    EXPECT_EQ(made.rfind(L"; error:", 0), 0u) << host::toUtf8(made);
    EXPECT_EQ(eval(L"(entmake " + line + L" (cons 62 1.0)))").rfind(L"((0 . \"LINE\")", 0), 0u);
    EXPECT_EQ(eval(L"(ssget \"X\" (list (cons 62 1e30)))").rfind(L"; error:", 0), 0u);
    EXPECT_EQ(eval(L"(ssget \"X\" (list (cons 1071 1e30)))").rfind(L"; error:", 0), 0u);
    EXPECT_EQ(eval(L"(sslength (ssget \"X\" (list (cons 62 1.0))))"), L"1");
}

TEST_F(HostileLisp, AStepBudgetEndsLoopsWithoutEndAsACancelledFunction) {
    // Without a budget a long loop runs to its end.
    EXPECT_EQ(eval(L"(setq i 0) (while (< i 300000) (setq i (1+ i))) i"), L"300000");
    interpreter_->limitSteps(10000);
    EXPECT_EQ(eval(L"(while t)"), L"; error: Function cancelled");
    interpreter_->limitSteps(10000);
    EXPECT_EQ(eval(L"(repeat 2000000000)"), L"; error: Function cancelled");
    interpreter_->limitSteps(100000);  // deep recursion meets the stack's limit first
    EXPECT_EQ(eval(L"(defun f (n) (f n)) (f 1)"), L"; error: stack overflow");
    // Each turn of (repeat 100 (setq n (1+ n))) is 4 steps: the turn, the setq form, the
    // (1+ n) form and the symbol n; with the 5 steps around it 405 in all.
    interpreter_->limitSteps(405);
    EXPECT_EQ(eval(L"(setq n 0) (repeat 100 (setq n (1+ n))) n"), L"100");
    interpreter_->limitSteps(404);
    EXPECT_EQ(eval(L"(setq n 0) (repeat 100 (setq n (1+ n))) n"), L"; error: Function cancelled");
    EXPECT_EQ(eval(L"n"), L"; error: Function cancelled");  // spent stays spent
}

TEST_F(HostileLisp, AnErrorInsideTheErrorHandlerIsNotHandedToItAgain) {
    // The handler fails itself; it runs once and the first error ends the evaluation.
    std::wstring failing = L"(setq calls 0) "
                           L"(defun *error* (msg) (setq calls (1+ calls) seen msg) (mapcar 'setvar ' '(\"OSMODE\"))) "
                           L"(defun f () (/ 10 (length nil))) ";
    EXPECT_EQ(eval(failing + L"(f)"), L"; error: divide by zero");
    EXPECT_EQ(eval(L"calls"), L"1");
    EXPECT_EQ(eval(L"seen"), L"\"divide by zero\"");
    // A later error is offered to the handler again.
    EXPECT_EQ(eval(L"(f)"), L"; error: divide by zero");
    EXPECT_EQ(eval(L"calls"), L"2");
}

TEST_F(HostileLisp, FileNamesPastAsciiAreOpenedFoundAndTakenApart) {
    testing_support::TemporaryFolder folder;
    folder.write("载入.lsp", "(setq loaded \"yes\")");
    std::wstring dir = folder.dir().wstring();  // ASCII
    std::wstring file = dir + L"/报告.txt";
    auto quoted = [](const std::wstring& s) { return L"\"" + s + L"\""; };
    EXPECT_EQ(eval(L"(setq f (open " + quoted(file) + L" \"w\")) (write-line \"第一行\" f) (close f)"), L"nil");
    EXPECT_TRUE(std::filesystem::is_regular_file(folder.dir() / "报告.txt"));
    EXPECT_EQ(eval(L"(setq f (open " + quoted(file) + L" \"r\")) (setq l (read-line f)) (close f) l"),
              L"\"第一行\"");
    EXPECT_EQ(eval(L"(vl-filename-base " + quoted(file) + L")"), L"\"报告\"");
    EXPECT_EQ(eval(L"(vl-filename-extension " + quoted(file) + L")"), L"\".txt\"");
    EXPECT_EQ(eval(L"(vl-filename-directory " + quoted(file) + L")"), quoted(dir));
    EXPECT_EQ(eval(L"(vl-directory-files " + quoted(dir) + L" \"*.txt\" 1)"), L"(\"报告.txt\")");
    EXPECT_EQ(eval(L"(findfile " + quoted(file) + L")"), quoted(file));
    EXPECT_EQ(eval(L"(load " + quoted(dir + L"/载入.lsp") + L") loaded"), L"\"yes\"");
    // A name that is no file at all is an answer, not a fault.
    EXPECT_EQ(eval(L"(open \"" + dir + L"/\uFFFD/无.txt\" \"r\")"), L"nil");
}

}  // namespace
