// AutoLISP values of the console and of the host's symbol tables.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace host::lisp {

struct Value;
using ValuePtr = std::shared_ptr<const Value>;
class Interpreter;

// A built-in function receives its evaluated arguments.
using Builtin = std::function<ValuePtr(Interpreter&, const std::vector<ValuePtr>& args)>;

struct UserFunction {
    std::vector<std::wstring> params;  // upper-case names
    std::vector<std::wstring> locals;
    ValuePtr body;                     // list of forms
};

// File: an open file (integer is its number in the interpreter's table, text its name).
// CatchAll: the error an AutoLISP call gave to vl-catch-all-apply (text is the message).
enum class Kind { Nil, Int, Real, Str, Sym, Cons, Ename, PickSet, Subr, Lambda, Void, File, CatchAll };

struct Value {
    Kind kind = Kind::Nil;
    long long integer = 0;
    double real = 0.0;
    std::wstring text;            // string contents or symbol name (symbols upper-case)
    ValuePtr car, cdr;            // cons cell
    long name[2] = {0, 0};        // entity or selection-set name
    std::shared_ptr<Builtin> builtin;
    std::shared_ptr<UserFunction> lambda;
    bool special = false;         // a builtin that receives its arguments unevaluated

    Value() = default;
    Value(const Value&) = delete;
    Value& operator=(const Value&) = delete;
    // Frees the cells this one alone holds with a loop: a list of a million elements is
    // ordinary data, and freeing it cell by cell through nested destructors would exhaust
    // the stack.
    ~Value();
};

ValuePtr nil();
ValuePtr voidValue();
ValuePtr t();
ValuePtr makeInt(long long v);
ValuePtr makeReal(double v);
ValuePtr makeStr(std::wstring s);
ValuePtr makeSym(std::wstring_view name);  // upper-cases; "NIL" gives nil
ValuePtr cons(ValuePtr car, ValuePtr cdr);
ValuePtr makeEname(const long name[2]);
ValuePtr makePickSet(const long name[2]);
ValuePtr makeList(const std::vector<ValuePtr>& items);

bool isNil(const ValuePtr& v);
bool isTrue(const ValuePtr& v);
bool isNumber(const ValuePtr& v);
bool isList(const ValuePtr& v);  // nil or a cons
bool isSym(const ValuePtr& v, std::wstring_view upperName);
double toDouble(const ValuePtr& v);
// Elements of a proper list; a dotted tail is ignored.
std::vector<ValuePtr> listItems(const ValuePtr& v);
bool equalValues(const ValuePtr& a, const ValuePtr& b);  // `equal`
bool sameValue(const ValuePtr& a, const ValuePtr& b);    // `eq`

// The text the editor's command line shows for a value (prin1 form).
std::wstring printValue(const ValuePtr& v, bool readable = true);

}  // namespace host::lisp
